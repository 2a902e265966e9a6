// SPDX-License-Identifier: Apache-2.0
// The cameras of the host, and its services around them.
#pragma once

#include "hostcamera.h"
#include "icameraservices.h"
#include "iparameterservice.h"
#include "recordings.h"
#include "serviceregistry.h"

#include <QList>
#include <QSharedPointer>

namespace Cameras {

/// The camera services of the host over a list of cameras.
///
/// A camera in a call may be the camera itself or a handle to it; one that is not in the list is
/// treated as a closed camera that refuses. Thread-bound: GUI thread; the services have their own
/// words.
class CameraPool
{
public:
    /// \param cameras  not null, each once
    explicit CameraPool(const QList<HostCameraPtr>& cameras);

    /// Removes the services from the registry, and closes all cameras.
    ~CameraPool();
    CameraPool(const CameraPool&) = delete;
    CameraPool& operator=(const CameraPool&) = delete;

    /// Adds the five services.
    /// \param registry  lent until the pool ends
    void registerServices(Core::Service::CServiceRegistry& registry);

    const QList<HostCameraPtr>& cameras() const { return m_cameras; }

    /// Opens a camera for the host itself, and tells of it.
    /// \return  false on failure; the camera's last error text says why
    bool open(const HostCameraPtr& camera);

    Plugin::CameraPool::ICameraStatusService& statusService() const { return *m_status; }

    /// Where a recorder tells the services what it records.
    const QSharedPointer<Recordings>& recordings() const { return m_recordings; }

private:
    const QList<HostCameraPtr> m_cameras;
    const QSharedPointer<Recordings> m_recordings;
    QSharedPointer<Plugin::CameraPool::ICameraStatusService> m_status;
    QList<Core::Service::ServicePtr> m_services;
    Core::Service::CServiceRegistry* m_registry = nullptr;
};

} // namespace Cameras
