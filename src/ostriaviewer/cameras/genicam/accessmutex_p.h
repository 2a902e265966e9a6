// SPDX-License-Identifier: Apache-2.0
// One thread at a time uses a device.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace Cameras::GenICam {

/// A recursive mutex that is not waited for longer than Patience allows. Thread-safe.
class AccessMutex
{
public:
    /// \return  false if this thread's patience was over; at once, if somebody else's was over with
    ///          the thread that still holds the mutex. Is counted by Patience::failures
    bool lock();
    void unlock();

private:
    std::mutex m_mutex; // guards all below
    std::condition_variable m_freed;
    std::thread::id m_holder;
    int m_depth = 0;
    bool m_isLate = false; // somebody has lost patience with the holder
};

} // namespace Cameras::GenICam
