// SPDX-License-Identifier: Apache-2.0
// The cameras of the host, which come and go.
#pragma once

#include "hostcamera.h"

#include <QList>

#include <mutex>

namespace Cameras {

/// The cameras of the host, in the order in which they came. Thread-safe.
class CameraRoster
{
public:
    /// \param cameras  not null, each once
    explicit CameraRoster(const QList<HostCameraPtr>& cameras);

    QList<HostCameraPtr> cameras() const;

    /// \return  false if it is there already
    bool add(const HostCameraPtr& camera);

    /// \return  false if it is not there
    bool remove(const HostCameraPtr& camera);

private:
    mutable std::mutex m_mutex;
    QList<HostCameraPtr> m_cameras; // guarded by the mutex
};

} // namespace Cameras
