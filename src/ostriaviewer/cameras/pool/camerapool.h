// SPDX-License-Identifier: Apache-2.0
// The cameras of the host, and its services around them.
#pragma once

#include "cameraroster.h"
#include "hostcamera.h"
#include "icameraservices.h"
#include "iparameterservice.h"
#include "recordings.h"
#include "serviceregistry.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>

#include <functional>
#include <memory>

namespace Cameras {

class CameraStatusService;

/// The camera services of the host over a list of cameras, which come and go.
///
/// A camera in a call may be the camera itself or a handle to it; one that is not in the list is
/// treated as a closed camera that refuses. Thread-bound: GUI thread; the services have their own
/// words.
class CameraPool final : public QObject
{
    Q_OBJECT

public:
    /// \param cameras  not null, each once
    explicit CameraPool(const QList<HostCameraPtr>& cameras);

    /// Removes the services from the registry, and closes all cameras.
    ~CameraPool() override;

    /// Adds the five services.
    /// \param registry  lent until the pool ends
    void registerServices(Core::Service::CServiceRegistry& registry);

    QList<HostCameraPtr> cameras() const { return m_roster->cameras(); }

    /// Adds a camera to the end of the list, and tells of it. Nothing happens if it is there.
    void add(const HostCameraPtr& camera);

    /// Takes a camera out of the list, tells of it, and closes the camera. Nothing happens if it is
    /// not there.
    void remove(const HostCameraPtr& camera);

    /// Opens a camera for the host itself, and tells of it.
    /// \return  false on failure; the camera's last error text says why
    bool open(const HostCameraPtr& camera);

    /// Who tells of an opened camera, by calling the function that it gets, on the GUI thread: so
    /// that what others ask the camera then can be kept short. Calls it at once if there is none.
    void setAnnouncer(
        std::function<void(const HostCameraPtr& camera, const std::function<void()>& announce)>
            announcer);

    Plugin::CameraPool::ICameraStatusService& statusService() const;

    /// Where a recorder tells the services what it records.
    const QSharedPointer<Recordings>& recordings() const { return m_recordings; }

signals:
    void cameraAdded(const Cameras::HostCameraPtr& camera);

    /// The camera is not in the list any more, and is still as it was.
    void cameraRemoved(const Cameras::HostCameraPtr& camera);

private:
    const std::shared_ptr<CameraRoster> m_roster;
    const QSharedPointer<Recordings> m_recordings;
    QSharedPointer<CameraStatusService> m_status;
    QList<Core::Service::ServicePtr> m_services;
    Core::Service::CServiceRegistry* m_registry = nullptr;
};

} // namespace Cameras
