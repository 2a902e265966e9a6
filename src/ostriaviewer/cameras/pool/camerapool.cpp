// SPDX-License-Identifier: Apache-2.0
// The cameras of the host, and its services around them.
#include "camerapool.h"

#include "cameraservices.h"

#include <utility>

namespace Cameras {

CameraPool::CameraPool(const QList<HostCameraPtr>& cameras)
    : m_roster(std::make_shared<CameraRoster>(cameras))
    , m_recordings(QSharedPointer<Recordings>::create())
    , m_status(QSharedPointer<CameraStatusService>::create(m_recordings))
{
    for (const HostCameraPtr& camera : cameras)
        m_status->watch(camera);
    m_services = {
        m_status,
        QSharedPointer<CameraEnumerationService>::create(m_roster),
        QSharedPointer<CameraStreamControlService>::create(m_roster, m_recordings),
        QSharedPointer<CameraControlService>::create(m_status),
        QSharedPointer<ParameterService>::create(),
    };
}

CameraPool::~CameraPool()
{
    if (m_registry)
        for (const Core::Service::ServicePtr& service : m_services)
            m_registry->remove(service);
    for (const HostCameraPtr& camera : cameras())
        camera->close();
}

void CameraPool::add(const HostCameraPtr& camera)
{
    if (!m_roster->add(camera))
        return;
    m_status->watch(camera);
    emit cameraAdded(camera);
}

void CameraPool::remove(const HostCameraPtr& camera)
{
    if (!m_roster->remove(camera))
        return;
    m_status->forget(camera);
    emit cameraRemoved(camera);
    camera->close();
}

Plugin::CameraPool::ICameraStatusService& CameraPool::statusService() const
{
    return *m_status;
}

void CameraPool::setAnnouncer(CameraStatusService::Announcer announcer)
{
    m_status->setAnnouncer(std::move(announcer));
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
    camera->setOpener(HostCamera::Opener::Host);
    m_status->announceOpened(camera);
    return true;
}

} // namespace Cameras
