// SPDX-License-Identifier: Apache-2.0
// The cameras of the host, and its services around them.
#include "camerapool.h"

#include "cameraservices.h"

namespace Cameras {

CameraPool::CameraPool(const QList<HostCameraPtr>& cameras)
    : m_cameras(cameras)
    , m_recordings(QSharedPointer<Recordings>::create())
{
    const auto status = QSharedPointer<CameraStatusService>::create(cameras, m_recordings);
    m_status = status;
    m_services = {
        status,
        QSharedPointer<CameraEnumerationService>::create(cameras),
        QSharedPointer<CameraStreamControlService>::create(cameras, m_recordings),
        QSharedPointer<CameraControlService>::create(status),
        QSharedPointer<ParameterService>::create(),
    };
}

CameraPool::~CameraPool()
{
    if (m_registry)
        for (const Core::Service::ServicePtr& service : m_services)
            m_registry->remove(service);
    for (const HostCameraPtr& camera : m_cameras)
        camera->close();
}

void CameraPool::registerServices(Core::Service::CServiceRegistry& registry)
{
    m_registry = &registry;
    for (const Core::Service::ServicePtr& service : m_services)
        registry.add(service);
}

bool CameraPool::open(const HostCameraPtr& camera)
{
    if (camera->isOpen())
        return true;
    if (!camera->open())
        return false;
    m_status.staticCast<CameraStatusService>()->announceOpened(camera);
    return true;
}

} // namespace Cameras
