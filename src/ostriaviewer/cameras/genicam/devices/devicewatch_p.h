// SPDX-License-Identifier: Apache-2.0
// Notices that a network camera does not answer any more.
#pragma once

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
    /// \param device  lent until the watch has ended
    /// \param lost    called once, on the watch's thread, when the camera does not answer
    DeviceWatch(ArvDevice* device, std::function<void()> lost);

    /// Tells the watch to end. It may still be waiting for an answer.
    void end();

    /// Waits until it has ended.
    void wait() const { m_ended.wait(); }

private:
    bool isEndingAfterPause();
    void run(ArvDevice* device, const std::function<void()>& lost);

    std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    bool m_isEnding = false;
    std::shared_future<void> m_ended;
};

} // namespace Cameras::GenICam
