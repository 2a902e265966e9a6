// SPDX-License-Identifier: Apache-2.0
// The cameras of the host, which come and go.
#include "cameraroster.h"

namespace Cameras {

CameraRoster::CameraRoster(const QList<HostCameraPtr>& cameras)
    : m_cameras(cameras)
{}

QList<HostCameraPtr> CameraRoster::cameras() const
{
    const std::lock_guard lock(m_mutex);
    return m_cameras;
}

bool CameraRoster::add(const HostCameraPtr& camera)
{
    const std::lock_guard lock(m_mutex);
    if (m_cameras.contains(camera))
        return false;
    m_cameras.append(camera);
    return true;
}

bool CameraRoster::remove(const HostCameraPtr& camera)
{
    const std::lock_guard lock(m_mutex);
    return m_cameras.removeOne(camera);
}

} // namespace Cameras
