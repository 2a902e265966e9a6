// SPDX-License-Identifier: Apache-2.0
// The host's services over a list of cameras.
#pragma once

#include "cameraroster.h"
#include "hostcamera.h"
#include "icameraservices.h"
#include "iparameterservice.h"
#include "recordings.h"

#include <QList>

#include <functional>
#include <memory>
#include <utility>

namespace Cameras {

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::CameraPtr;

/// The camera behind a pointer to it or to a handle; null if it is another kind of object.
HostCameraPtr hostCamera(const CameraPtr& camera);
HostCameraPtr hostCamera(const CameraInfoPtr& camera);

class CameraStatusService final : public Plugin::CameraPool::ICameraStatusService
{
    Q_OBJECT

public:
    explicit CameraStatusService(const QSharedPointer<Recordings>& recordings);

    /// Begins and ends to tell of the camera's lost connection.
    void watch(const HostCameraPtr& camera);
    void forget(const HostCameraPtr& camera);

    bool isCameraOpen(const CameraPtr& camera) const override;
    bool isAcquiringOrRecording(const CameraInfoPtr& camera) const override;

    /// Lets deviceOpened be emitted in the service's thread: at once if this is it. Thread-safe.
    void announceOpened(const HostCameraPtr& camera);

    /// See CameraPool::setAnnouncer.
    using Announcer =
        std::function<void(const HostCameraPtr& camera, const std::function<void()>& announce)>;
    void setAnnouncer(Announcer announcer) { m_announcer = std::move(announcer); }

private:
    Announcer m_announcer; // of the service's thread
    const QSharedPointer<Recordings> m_recordings;
};

class CameraEnumerationService final : public Plugin::CameraPool::ICameraEnumerationService
{
    Q_OBJECT

public:
    explicit CameraEnumerationService(std::shared_ptr<CameraRoster> roster);

    QList<Plugin::CameraPool::DeviceGroup> deviceGroups() const override;

private:
    const std::shared_ptr<CameraRoster> m_roster;
};

class CameraStreamControlService final : public Plugin::CameraPool::ICameraStreamControlService
{
    Q_OBJECT

public:
    CameraStreamControlService(std::shared_ptr<CameraRoster> roster,
                               const QSharedPointer<Recordings>& recordings);

    void stopAllAcquisitionsAndRecordings() override;

private:
    const std::shared_ptr<CameraRoster> m_roster;
    const QSharedPointer<Recordings> m_recordings;
};

class CameraControlService final : public Plugin::CameraPool::ICameraControlService
{
    Q_OBJECT

public:
    explicit CameraControlService(const QSharedPointer<CameraStatusService>& status);

    CameraPtr getExclusiveAccess(const CameraPtr& camera) override;
    CameraPtr openWithExclusiveAccess(const CameraPtr& camera) override;
    void close(const CameraPtr& camera) override;

private:
    const QSharedPointer<CameraStatusService> m_status;
};

class ParameterService final : public Plugin::ParameterCollectionPool::IParameterService
{
    Q_OBJECT

public:
    Core::ParameterCollection::ParameterCollectionPtr
    parameterCollection(const CameraInfoPtr& camera) override;
};

} // namespace Cameras
