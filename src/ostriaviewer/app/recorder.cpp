// SPDX-License-Identifier: Apache-2.0
// Writes a camera's images into numbered files.
#include "recorder.h"

#include "framebuffers.h"
#include "imageformatconverter.h"
#include "picturefile.h"
#include "withoutfullstop.h"

#include <QDir>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <new>
#include <optional>
#include <utility>

namespace Viewer {
namespace {

QString fileName(std::uint64_t number)
{
    return QStringLiteral("%1.png").arg(number, 6, 10, QLatin1Char('0'));
}

QString diskProblem(const QString& reason)
{
    return Recorder::tr("A picture could not be written (%1). Make room on the disk or choose "
                        "another folder.")
        .arg(Core::withoutFullStop(reason));
}

QString pictureProblem(const QString& reason)
{
    return Recorder::tr("A picture could not be converted (%1). Choose another pixel format or "
                        "another image size.")
        .arg(Core::withoutFullStop(reason));
}

} // namespace

// What the camera's thread, the writing thread and the GUI thread share.
struct Recorder::Queue
{
    std::mutex mutex;
    std::condition_variable changed;
    Recorder* owner = nullptr; // null when it has ended
    std::deque<Ostria::CGrabResultPtr> waiting;
    std::optional<std::uint64_t> lastNumber;
    bool isEnding = false;
    RecordingResult result;

    void take(const Ostria::CGrabResultPtr& frame)
    {
        const std::lock_guard lock(mutex);
        if (isEnding || !frame)
            return;
        // The camera was stopped and counts anew; its files would replace those that are there.
        if (lastNumber && frame->frameNumber() <= *lastNumber) {
            isEnding = true;
            changed.notify_one();
            return;
        }
        lastNumber = frame->frameNumber();
        if (!frame->GrabSucceeded())
            ++result.failed;
        else if (waiting.size() >= longestQueue)
            ++result.dropped;
        else
            waiting.push_back(frame);
        changed.notify_one();
    }

    void end()
    {
        const std::lock_guard lock(mutex);
        isEnding = true;
        changed.notify_one();
    }

    /// Null when there will be no more.
    Ostria::CGrabResultPtr next()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isEnding || !waiting.empty(); });
        if (waiting.empty())
            return nullptr;
        Ostria::CGrabResultPtr frame = std::move(waiting.front());
        waiting.pop_front();
        return frame;
    }

    /// What still waits after a failure would fail too.
    void note(const QString& error)
    {
        const std::lock_guard lock(mutex);
        if (error.isEmpty()) {
            ++result.written;
            return;
        }
        result.error = error;
        result.dropped += waiting.size() + 1;
        waiting.clear();
        isEnding = true;
    }

    void announceEnd()
    {
        const std::lock_guard lock(mutex);
        if (owner)
            QMetaObject::invokeMethod(
                owner, [receiver = owner] { receiver->finish(); }, Qt::QueuedConnection);
    }
};

Recorder::Recorder(QObject* parent)
    : QObject(parent)
    , m_queue(std::make_shared<Queue>())
{
    m_queue->owner = this;
}

Recorder::~Recorder()
{
    stop();
    {
        const std::lock_guard lock(m_queue->mutex);
        m_queue->owner = nullptr;
    }
    if (m_thread.joinable())
        m_thread.join();
}

QString Recorder::start(const Cameras::HostCameraPtr& camera, const QString& folder)
{
    if (!QDir().mkpath(folder))
        return tr("The folder %1 cannot be made. Choose another one for recordings.")
            .arg(QDir::toNativeSeparators(folder));
    m_queue->result.folder = folder;
    m_thread = std::thread([queue = m_queue] { run(queue); });
    m_connection =
        connect(camera.data(), &Cameras::HostCamera::cameraImageGrabbed,
                [queue = m_queue](const Core::CameraPoolComponents::CameraInfoPtr& /*camera*/,
                                  const Ostria::CGrabResultPtr& frame) { queue->take(frame); });
    return {};
}

void Recorder::stop()
{
    disconnect(m_connection);
    m_queue->end();
}

bool Recorder::isEnding() const
{
    const std::lock_guard lock(m_queue->mutex);
    return m_queue->isEnding;
}

void Recorder::run(const std::shared_ptr<Queue>& queue)
{
    Ostria::CImageFormatConverter converter;
    converter.setOutputPixelFormat(Ostria::PixelType::BGRa8);
    FrameBuffers buffers;
    const QDir folder(queue->result.folder);
    while (const Ostria::CGrabResultPtr frame = queue->next()) {
        try {
            auto image = buffers.take();
            converter.Convert(*image, frame->image());
            const QString reason =
                writePictureFile(buffers.toPicture(std::move(image)),
                                 folder.filePath(fileName(frame->frameNumber())));
            queue->note(reason.isEmpty() ? reason : diskProblem(reason));
        } catch (const std::bad_alloc&) {
            queue->note(noMemoryForPicture());
        } catch (const std::exception& error) {
            queue->note(pictureProblem(QString::fromUtf8(error.what())));
        }
    }
    queue->announceEnd();
}

void Recorder::finish()
{
    disconnect(m_connection);
    m_thread.join();
    emit finished(m_queue->result);
}

} // namespace Viewer
