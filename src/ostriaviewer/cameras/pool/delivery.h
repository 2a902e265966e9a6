// SPDX-License-Identifier: Apache-2.0
// The delivery of a frame, and whoever waits for its end.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Cameras {

/// Deliveries of one source, one at a time. All members need the source's mutex.
class Delivery
{
public:
    /// A receiver may itself be waiting for a lock that the one who waits for it holds.
    static constexpr std::chrono::milliseconds longestWait{250};

    /// Delivers on this thread, without the mutex meanwhile.
    /// \param deliver  must not throw
    template <class Deliver>
    void run(std::unique_lock<std::mutex>& lock, const Deliver& deliver)
    {
        m_thread = std::this_thread::get_id();
        lock.unlock();
        deliver();
        lock.lock();
        m_thread = {};
        m_ended.notify_all();
    }

    bool isUnderWay() const { return m_thread != std::thread::id(); }

    /// Waits for a delivery that has begun, but not longer than longestWait; not at all within it.
    void wait(std::unique_lock<std::mutex>& lock)
    {
        if (m_thread != std::this_thread::get_id())
            m_ended.wait_for(lock, longestWait, [this] { return !isUnderWay(); });
    }

private:
    std::condition_variable m_ended;
    std::thread::id m_thread; // that delivers now
};

} // namespace Cameras
