// SPDX-License-Identifier: Apache-2.0
// Notices that a network camera does not answer any more.
#pragma once

#include "udpsocket.h"

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>

typedef struct _ArvDevice ArvDevice;

namespace Cameras::GenICam {

/// Asks a network camera once a second whether it still is there: the library's own heartbeat takes
/// longer to give up. Cameras on USB tell it themselves.
class DeviceWatch
{
public:
    /// \param device  lent for the call
    /// \param lost    called once, on the watch's thread, when the camera does not answer
    DeviceWatch(ArvDevice* device, std::function<void()> lost);

    /// Tells the watch to end. It may still be waiting for an answer.
    void end();

    /// Waits until it has ended.
    void wait() const;

private:
    bool isEndingAfterPause();
    void run(const UdpAddress& camera, const std::function<void()>& lost);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isEnding = false; // guarded by the mutex
    std::shared_future<void> m_ended;
};

} // namespace Cameras::GenICam
