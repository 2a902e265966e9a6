// SPDX-License-Identifier: Apache-2.0
// The host's services over a list of cameras.
#include "cameraservices.h"

#include "camerahandle.h"

#include <QMetaObject>
#include <QThread>

#include <algorithm>
#include <utility>

namespace Cameras {

HostCameraPtr hostCamera(const CameraPtr& camera)
{
    if (const auto handle = camera.dynamicCast<CameraHandle>())
        return handle->camera();
    return camera.dynamicCast<HostCamera>();
}

HostCameraPtr hostCamera(const CameraInfoPtr& camera)
{
    return camera.dynamicCast<HostCamera>();
}

CameraStatusService::CameraStatusService(const QSharedPointer<Recordings>& recordings)
    : m_announcer([](const HostCameraPtr& /*camera*/, const auto& announce) { announce(); })
    , m_recordings(recordings)
{}

// The camera is held weakly: a service may outlive it, and must not keep it.
void CameraStatusService::watch(const HostCameraPtr& camera)
{
    const QWeakPointer<HostCamera> weak = camera;
    connect(camera.data(), &HostCamera::cameraConnectionLost, this, [this, weak] {
        if (const HostCameraPtr lost = weak.toStrongRef())
            emit cameraConnectionLost(lost);
    });
}

void CameraStatusService::forget(const HostCameraPtr& camera)
{
    camera->disconnect(this);
}

bool CameraStatusService::isCameraOpen(const CameraPtr& camera) const
{
    const HostCameraPtr known = hostCamera(camera);
    return known && known->isOpen();
}

bool CameraStatusService::isAcquiringOrRecording(const CameraInfoPtr& camera) const
{
    const HostCameraPtr known = hostCamera(camera);
    return known && (known->isGrabbing() || m_recordings->isRecording(known.data()));
}

void CameraStatusService::announceOpened(const HostCameraPtr& camera)
{
    QMetaObject::invokeMethod(
        this, [this, camera] { m_announcer(camera, [&] { emit deviceOpened(camera); }); });
}

CameraEnumerationService::CameraEnumerationService(std::shared_ptr<CameraRoster> roster)
    : m_roster(std::move(roster))
{}

QList<Plugin::CameraPool::DeviceGroup> CameraEnumerationService::deviceGroups() const
{
    QList<Plugin::CameraPool::DeviceGroup> groups;
    for (const HostCameraPtr& camera : m_roster->cameras()) {
        const QString name = camera->groupName();
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&name](const auto& known) { return known.name == name; });
        if (group == groups.end())
            group = groups.insert(groups.end(), {name, {}});
        group->cameras.append(camera);
    }
    return groups;
}

CameraStreamControlService::CameraStreamControlService(std::shared_ptr<CameraRoster> roster,
                                                       const QSharedPointer<Recordings>& recordings)
    : m_roster(std::move(roster))
    , m_recordings(recordings)
{}

void CameraStreamControlService::stopAllAcquisitionsAndRecordings()
{
    m_recordings->stopAll();
    for (const HostCameraPtr& camera : m_roster->cameras())
        camera->stopGrabbing();
}

CameraControlService::CameraControlService(const QSharedPointer<CameraStatusService>& status)
    : m_status(status)
{}

CameraPtr CameraControlService::getExclusiveAccess(const CameraPtr& camera)
{
    const HostCameraPtr known = hostCamera(camera);
    if (!known)
        return {};
    if (known->isOpen())
        return known->takeExclusiveAccess();
    known->setLastError(tr("The camera is not open."));
    return {};
}

CameraPtr CameraControlService::openWithExclusiveAccess(const CameraPtr& camera)
{
    const HostCameraPtr known = hostCamera(camera);
    if (!known)
        return {};
    if (known->isOpen()) {
        known->setLastError(tr("The camera is open already."));
        return {};
    }
    const CameraPtr handle = known->takeExclusiveAccess();
    if (!handle || !known->open())
        return {};
    known->setOpener(HostCamera::Opener::ControlService);
    m_status->announceOpened(known);
    return handle;
}

void CameraControlService::close(const CameraPtr& camera)
{
    const HostCameraPtr known = hostCamera(camera);
    if (known && known->setOpener(HostCamera::Opener::Host) == HostCamera::Opener::ControlService)
        known->close();
}

Core::ParameterCollection::ParameterCollectionPtr
ParameterService::parameterCollection(const CameraInfoPtr& camera)
{
    const HostCameraPtr known = hostCamera(camera);
    return known ? known->parameterCollection() : nullptr;
}

} // namespace Cameras
