// SPDX-License-Identifier: Apache-2.0
// Notices that a network camera does not answer any more.
#include "devicewatch_p.h"

#include "gerrorslot_p.h"

#include <arv.h>

#include <chrono>
#include <utility>

namespace Cameras::GenICam {

DeviceWatch::DeviceWatch(ArvDevice* device, std::function<void()> lost)
{
    if (ARV_IS_GV_DEVICE(device))
        m_ended = std::async(std::launch::async, [this, device, lost = std::move(lost)] {
                      run(device, lost);
                  }).share();
    else
        m_ended = std::async(std::launch::deferred, [] {}).share();
}

void DeviceWatch::end()
{
    const std::lock_guard lock(m_mutex);
    m_isEnding = true;
    m_changed.notify_all();
}

bool DeviceWatch::isEndingAfterPause()
{
    constexpr std::chrono::seconds pause(1);
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, pause, [this] { return m_isEnding; });
}

// Reading a register is the one thing that the library allows on any thread.
void DeviceWatch::run(ArvDevice* device, const std::function<void()>& lost)
{
    while (!isEndingAfterPause()) {
        GErrorSlot error;
        guint32 version = 0;
        if (arv_device_read_register(device, 0, &version, error) || !error.isTimeout())
            continue;
        lost();
        return;
    }
}

} // namespace Cameras::GenICam
