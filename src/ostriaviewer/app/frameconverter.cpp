// SPDX-License-Identifier: Apache-2.0
// Makes pictures of camera images on a thread of its own.
#include "frameconverter.h"

#include "framebuffers.h"
#include "imageformatconverter.h"
#include "withoutfullstop.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace Viewer {

// What the camera's thread, the converting thread and the GUI thread hand to each other.
struct FrameConverter::Exchange
{
    std::mutex mutex;
    std::condition_variable changed;
    FrameConverter* owner = nullptr; // null when it has ended
    std::uint64_t round = 0;         // counts the inlets
    Ostria::CGrabResultPtr waiting;
    std::uint64_t waitingRound = 0;
    std::optional<LiveFrame> done;
    bool isAnnounced = false;
    bool isPaused = false;

    void take(const Ostria::CGrabResultPtr& result, std::uint64_t ofRound)
    {
        const std::lock_guard lock(mutex);
        if (!owner || ofRound != round || !result)
            return;
        waiting = result;
        waitingRound = ofRound;
        changed.notify_one();
    }

    void finish(LiveFrame frame, std::uint64_t ofRound)
    {
        const std::lock_guard lock(mutex);
        if (!owner || ofRound != round)
            return;
        done = std::move(frame);
        if (std::exchange(isAnnounced, true))
            return;
        QMetaObject::invokeMethod(
            owner, [receiver = owner] { receiver->deliver(); }, Qt::QueuedConnection);
    }
};

namespace {

LiveFrame convert(const Ostria::CGrabResult& result, Ostria::CImageFormatConverter& converter,
                  FrameBuffers& buffers)
{
    LiveFrame frame;
    frame.number = result.frameNumber();
    frame.error = QString::fromStdString(result.errorText());
    if (!result.GrabSucceeded())
        return frame;
    try {
        auto image = buffers.take();
        converter.Convert(*image, result.image());
        frame.picture = buffers.toPicture(std::move(image));
    } catch (const std::exception& error) {
        const QString reason = QString::fromUtf8(error.what());
        frame.error = FrameConverter::tr("It cannot be shown (%1). Choose another pixel format or "
                                         "another image size.")
                          .arg(Core::withoutFullStop(reason));
    }
    return frame;
}

} // namespace

FrameConverter::FrameConverter(QObject* parent)
    : QObject(parent)
    , m_exchange(std::make_shared<Exchange>())
{
    m_exchange->owner = this;
    m_thread = std::thread([exchange = m_exchange] { run(exchange); });
}

FrameConverter::~FrameConverter()
{
    {
        const std::lock_guard lock(m_exchange->mutex);
        m_exchange->owner = nullptr;
        m_exchange->changed.notify_one();
    }
    m_thread.join();
}

FrameConverter::Inlet FrameConverter::openInlet()
{
    const std::lock_guard lock(m_exchange->mutex);
    const std::uint64_t round = ++m_exchange->round;
    m_exchange->waiting.reset();
    m_exchange->done.reset();
    return [exchange = m_exchange, round](const Ostria::CGrabResultPtr& result) {
        exchange->take(result, round);
    };
}

void FrameConverter::setPaused(bool isPaused)
{
    const std::lock_guard lock(m_exchange->mutex);
    m_exchange->isPaused = isPaused;
    m_exchange->changed.notify_one();
}

void FrameConverter::run(const std::shared_ptr<Exchange>& exchange)
{
    Ostria::CImageFormatConverter converter;
    converter.setOutputPixelFormat(Ostria::PixelType::BGRa8);
    FrameBuffers buffers;
    std::unique_lock lock(exchange->mutex);
    for (;;) {
        exchange->changed.wait(
            lock, [&] { return !exchange->owner || (exchange->waiting && !exchange->isPaused); });
        if (!exchange->owner)
            return;
        const Ostria::CGrabResultPtr result = std::exchange(exchange->waiting, nullptr);
        const std::uint64_t round = exchange->waitingRound;
        lock.unlock();
        exchange->finish(convert(*result, converter, buffers), round);
        lock.lock();
    }
}

void FrameConverter::deliver()
{
    std::optional<LiveFrame> frame;
    {
        const std::lock_guard lock(m_exchange->mutex);
        m_exchange->isAnnounced = false;
        frame = std::exchange(m_exchange->done, std::nullopt);
    }
    if (frame)
        emit frameReady(*frame);
}

} // namespace Viewer
