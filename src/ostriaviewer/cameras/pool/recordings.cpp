// SPDX-License-Identifier: Apache-2.0
// Which cameras are being recorded, and how that is ended.
#include "recordings.h"

#include <utility>

namespace Cameras {

void Recordings::begin(const HostCamera* camera, Stop stop)
{
    const std::lock_guard lock(m_mutex);
    m_running[camera] = std::move(stop);
}

void Recordings::end(const HostCamera* camera)
{
    const std::lock_guard lock(m_mutex);
    m_running.erase(camera);
}

bool Recordings::isRecording(const HostCamera* camera) const
{
    const std::lock_guard lock(m_mutex);
    return m_running.count(camera) > 0;
}

// Without the mutex, as a recording that ends calls end.
void Recordings::stopAll()
{
    std::map<const HostCamera*, Stop> running;
    {
        const std::lock_guard lock(m_mutex);
        running = m_running;
    }
    for (const auto& [camera, stop] : running)
        stop();
}

} // namespace Cameras
