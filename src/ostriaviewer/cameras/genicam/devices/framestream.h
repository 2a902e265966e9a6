// SPDX-License-Identifier: Apache-2.0
// Images as they come from a device.
#pragma once

#include "delivery.h"
#include "device.h"
#include "grabresult.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace Cameras::GenICam {

/// What became of the frames of one stream.
struct StreamStatistics
{
    std::uint64_t delivered = 0;      ///< whole images
    std::uint64_t damaged = 0;        ///< dropped, as a part of them was lost on the way
    std::uint64_t endedEarly = 0;     ///< dropped, as the camera sent less than it said
    std::uint64_t overrun = 0;        ///< came while no buffer was free
    std::uint64_t missingPackets = 0; ///< lost on the network, and not got again
};

/// One run of images, from its beginning to its end. Damaged and short frames are counted and
/// dropped.
/// Thread-safe.
class FrameStream
{
public:
    /// Called on the stream's thread, one at a time.
    using Deliver = std::function<void(const Ostria::CGrabResultPtr& result)>;

    /// Only one image is wanted. The functions are called on the stream's thread, and must not
    /// throw.
    struct Single
    {
        std::chrono::milliseconds timeout; ///< after which nothing is delivered any more
        std::function<void()> again;       ///< called when a damaged one came: ask for another
        std::function<void()> end;         ///< called before the delivery, or when time is over
    };

    /// Prepares to receive; the camera is told to send after that.
    /// \param payloadSize  bytes of a frame, from the camera
    /// \param deliver      receives whole images, and failures that have a reason
    /// \throws ::GenICam::RuntimeException  no stream can be had, or no frame can be that large
    FrameStream(std::shared_ptr<Device> device, std::size_t payloadSize, Deliver deliver,
                std::optional<Single> single = {});

    /// Stops. May be called by a delivery.
    ~FrameStream();
    FrameStream(const FrameStream&) = delete;
    FrameStream& operator=(const FrameStream&) = delete;

    /// When it returns, no delivery begins any more. A delivery that has begun is waited for, but
    /// not longer than longestWait, as its receiver may wait for a lock that the caller holds; not
    /// at all on the stream's own thread.
    void stop();

    /// Whether nothing more comes: stopped, the one image was delivered, or its time is over.
    bool isFinished() const;

    /// Whether this is the thread that delivers.
    bool isOwnThread() const { return m_thread.get_id() == std::this_thread::get_id(); }

    StreamStatistics statistics() const;

    static constexpr std::chrono::milliseconds longestWait = Delivery::longestWait;

private:
    struct State;
    static void run(const std::shared_ptr<State>& state);

    const std::shared_ptr<State> m_state;
    std::thread m_thread;
};

} // namespace Cameras::GenICam
