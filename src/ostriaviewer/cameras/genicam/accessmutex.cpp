// SPDX-License-Identifier: Apache-2.0
// One thread at a time uses a device.
#include "accessmutex_p.h"

#include "patience.h"

namespace Cameras::GenICam {

bool AccessMutex::lock()
{
    std::unique_lock lock(m_mutex);
    if (m_depth > 0 && m_holder == std::this_thread::get_id()) {
        ++m_depth;
        return true;
    }
    const auto isFree = [this] {
        return m_depth == 0;
    };
    const auto patience = Patience::ofThisThread();
    if (!patience) {
        m_freed.wait(lock, isFree);
    } else if (!isFree() && (m_isLate || !m_freed.wait_for(lock, *patience, isFree))) {
        m_isLate = true;
        Patience::addFailure();
        return false;
    }
    m_holder = std::this_thread::get_id();
    m_depth = 1;
    m_isLate = false;
    return true;
}

void AccessMutex::unlock()
{
    const std::lock_guard lock(m_mutex);
    if (--m_depth == 0)
        m_freed.notify_all();
}

} // namespace Cameras::GenICam
