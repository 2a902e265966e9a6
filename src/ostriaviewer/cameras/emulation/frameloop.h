// SPDX-License-Identifier: Apache-2.0
// The thread on which an emulated camera takes its frames.
#pragma once

#include "delivery.h"
#include "grabresult.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace Cameras::Emulation {

/// Takes frames one after the other, continuously or one at a time, at the pace that the exposure
/// gives. All waiting ends at once when the frame is no longer wanted.
///
/// Thread-safe. The functions of the source are called on the loop's thread, one at a time; they
/// may use the loop, and may even destroy it.
class FrameLoop
{
public:
    using Clock = std::chrono::steady_clock;

    struct Frame
    {
        Ostria::CGrabResultPtr result;           ///< null: this frame is lost
        std::chrono::microseconds exposure = {}; ///< from its beginning until it is delivered
        std::chrono::microseconds period = {};   ///< from its beginning to that of the next
    };

    /// Takes a frame while its exposure runs.
    using Take = std::function<Frame(std::uint64_t frameNumber)>;
    using Deliver = std::function<void(const Ostria::CGrabResultPtr& result)>;

    FrameLoop(Take take, Deliver deliver);

    /// Ends the thread; no delivery may be waiting for the caller.
    ~FrameLoop();
    FrameLoop(const FrameLoop&) = delete;
    FrameLoop& operator=(const FrameLoop&) = delete;

    /// Takes frames until stop.
    void startContinuous();
    bool isContinuous() const;

    /// Takes one frame, in the place of one that was requested before and is still waited for.
    /// \param timeout  after which nothing is delivered any more
    /// \return  false while frames are taken continuously
    bool requestSingle(std::chrono::milliseconds timeout);

    /// Ends continuous and single frames, without waiting for anything.
    void cancel();

    /// The second half of stop: waits for what had begun before cancel.
    void wait() const;

    /// Ends continuous and single frames: when it returns, no delivery begins any more.
    ///
    /// A frame that is being taken and a delivery that has begun are waited for, but not longer
    /// than longestWait each: the source or the receiver may itself be waiting for a lock that the
    /// caller holds. Not at all on the loop's own thread, where they are the caller.
    void stop();

    static constexpr std::chrono::milliseconds longestWait = Delivery::longestWait;

private:
    struct State;
    static void run(const std::shared_ptr<State>& state);

    const std::shared_ptr<State> m_state;
    std::thread m_thread;
};

} // namespace Cameras::Emulation
