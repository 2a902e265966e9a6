// SPDX-License-Identifier: Apache-2.0
// Images as they come from a device.
#include "framestream.h"

#include "aside_p.h"
#include "bufferimage_p.h"
#include "genicamexception.h"

#include <arv.h>

#include <QCoreApplication>

#include <mutex>
#include <utility>

namespace Cameras::GenICam {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::FrameStream)
};

using Clock = std::chrono::steady_clock;

/// Enough for the frames of a fifth of a second at 50 frames per second.
constexpr int bufferCount = 10;
constexpr std::chrono::microseconds pollTime(20000);

[[noreturn]] void fail(const QString& text)
{
    throw ::GenICam::RuntimeException(text.toStdString());
}

/// The library ends the program where memory is missing, so sizes that cannot be are refused.
void requireSize(std::size_t payloadSize)
{
    constexpr std::size_t largestPayload = std::size_t{256} << 20;
    if (payloadSize == 0)
        fail(Texts::tr("The camera does not tell how large its images are."));
    if (payloadSize > largestPayload)
        fail(Texts::tr("The camera says that an image has %1 bytes, which is too much.")
                 .arg(payloadSize));
}

ArvStream* makeStream(Device& device, std::size_t payloadSize)
{
    requireSize(payloadSize);
    ArvStream* stream = device.createStream();
    for (int index = 0; index < bufferCount; ++index)
        arv_stream_push_buffer(stream, arv_buffer_new_allocate(payloadSize));
    return stream;
}

} // namespace

struct FrameStream::State
{
    State(std::shared_ptr<Device> openDevice, std::size_t payloadSize, Deliver receiver,
          std::optional<Single> onlyOne)
        : device(std::move(openDevice))
        , stream(makeStream(*device, payloadSize))
        , deliver(std::move(receiver))
        , single(std::move(onlyOne))
        , deadline(single ? Clock::now() + single->timeout : Clock::time_point::max())
    {}

    ~State() { release(); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    // Null once released; the mutex guards that.
    std::shared_ptr<Device> device;
    ArvStream* stream;

    const Deliver deliver;
    const std::optional<Single> single;
    const Clock::time_point deadline;

    mutable std::mutex mutex; ///< guards all below
    Delivery delivery;
    bool isStopped = false;
    StreamStatistics counts;
    std::uint64_t lastId = 0;
    std::uint64_t number = 0;

    bool isWanted() const;
    bool isStillWanted() const { return !isStopped && Clock::now() < deadline; }
    void hand(const Ostria::CGrabResultPtr& result);
    std::uint64_t countFrame(ArvBuffer* buffer);
    void receive(ArvBuffer* buffer);
    void drop(std::uint64_t& count);
    void endAtDeadline();
    bool giveBack(ArvBuffer* buffer);
    void release();
};

/// \return  false if there is no stream any more
bool FrameStream::State::giveBack(ArvBuffer* buffer)
{
    const std::lock_guard lock(mutex);
    if (stream)
        arv_stream_push_buffer(stream, buffer);
    else
        g_object_unref(buffer);
    return stream != nullptr;
}

/// A stream that ends tells the camera to send nowhere, so it must have ended before the next one
/// begins. Only while the thread does not wait for a buffer. It waits for the camera's answer,
/// which nobody is to do for a camera that has gone. A receiver that is still called does not keep
/// the device.
void FrameStream::State::release()
{
    ArvStream* ended = nullptr;
    std::shared_ptr<Device> owner;
    {
        const std::lock_guard lock(mutex);
        ended = std::exchange(stream, nullptr);
        owner = std::move(device);
    }
    if (!ended)
        return;
    if (owner->isLost())
        runAside([ended, kept = std::move(owner)] { g_object_unref(ended); });
    else
        g_object_unref(ended);
}

bool FrameStream::State::isWanted() const
{
    const std::lock_guard lock(mutex);
    return isStillWanted();
}

void FrameStream::State::hand(const Ostria::CGrabResultPtr& result)
{
    std::unique_lock lock(mutex);
    if (!isStillWanted())
        return;
    delivery.run(lock, [&] { deliver(result); });
    if (result->GrabSucceeded())
        ++counts.delivered;
    if (single)
        isStopped = true;
}

/// Frames that never came count too, as the camera's own numbers tell of them.
std::uint64_t FrameStream::State::countFrame(ArvBuffer* buffer)
{
    const std::lock_guard lock(mutex);
    const std::uint64_t id = arv_buffer_get_frame_id(buffer);
    number += lastId != 0 && id > lastId ? id - lastId : 1;
    lastId = id;
    return number;
}

/// \param count  the one of the counts that the frame belongs to
void FrameStream::State::drop(std::uint64_t& count)
{
    {
        const std::lock_guard lock(mutex);
        ++count;
    }
    if (single && isWanted())
        single->again();
}

// For the library a frame is whole that its trailer ends, wherever that is.
void FrameStream::State::receive(ArvBuffer* buffer)
{
    const std::uint64_t frame = countFrame(buffer);
    if (arv_buffer_get_status(buffer) != ARV_BUFFER_STATUS_SUCCESS) {
        drop(counts.damaged);
        return;
    }
    const Ostria::CGrabResultPtr result = toGrabResult(buffer, frame);
    if (!result) {
        drop(counts.endedEarly);
        return;
    }
    if (!isWanted())
        return;
    if (single)
        single->end();
    hand(result);
}

void FrameStream::State::endAtDeadline()
{
    {
        const std::lock_guard lock(mutex);
        if (isStopped)
            return;
        isStopped = true;
    }
    single->end();
}

FrameStream::FrameStream(std::shared_ptr<Device> device, std::size_t payloadSize, Deliver deliver,
                         std::optional<Single> single)
    : m_state(std::make_shared<State>(std::move(device), payloadSize, std::move(deliver),
                                      std::move(single)))
    , m_thread([state = m_state] { run(state); })
{}

// A thread that waits for its receiver ends by itself, later.
FrameStream::~FrameStream()
{
    stop();
    bool isDelivering = false;
    {
        const std::lock_guard lock(m_state->mutex);
        isDelivering = m_state->delivery.isUnderWay();
    }
    if (isDelivering || isOwnThread()) {
        m_state->release();
        joinAside(std::move(m_thread));
    } else {
        m_thread.join();
    }
}

void FrameStream::run(const std::shared_ptr<State>& state)
{
    while (state->isWanted()) {
        ArvBuffer* buffer =
            arv_stream_timeout_pop_buffer(state->stream, static_cast<guint64>(pollTime.count()));
        if (!buffer)
            continue;
        state->receive(buffer);
        if (!state->giveBack(buffer))
            return;
    }
    if (state->single)
        state->endAtDeadline();
}

void FrameStream::stop()
{
    std::unique_lock lock(m_state->mutex);
    m_state->isStopped = true;
    m_state->delivery.wait(lock);
}

bool FrameStream::isFinished() const
{
    return !m_state->isWanted();
}

StreamStatistics FrameStream::statistics() const
{
    guint64 completed = 0;
    guint64 failures = 0;
    guint64 underruns = 0;
    const std::lock_guard lock(m_state->mutex);
    arv_stream_get_statistics(m_state->stream, &completed, &failures, &underruns);
    StreamStatistics statistics = m_state->counts;
    statistics.overrun = underruns;
    guint64 resent = 0;
    if (ARV_IS_GV_STREAM(m_state->stream))
        arv_gv_stream_get_statistics(ARV_GV_STREAM(m_state->stream), &resent,
                                     &statistics.missingPackets);
    return statistics;
}

} // namespace Cameras::GenICam
