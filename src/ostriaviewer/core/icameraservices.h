// SPDX-License-Identifier: Apache-2.0
// The services around the cameras that the host knows.
#pragma once

#include "coreexport.h"
#include "icamera.h"
#include "icamerainfo.h"
#include "iservice.h"

#include <QList>
#include <QString>

namespace Plugin::CameraPool {

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::CameraPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

/// Tells of devices being opened. Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT IDeviceStatusService : public Core::Service::IService
{
    Q_OBJECT

signals:
    void deviceOpened(Core::CameraPoolComponents::DeviceBaseInfoPtr device);

protected:
    using IService::IService;
};

/// Tells what cameras are doing. Queries are thread-safe.
class OSTRIAVIEWER_CORE_EXPORT ICameraStatusService : public IDeviceStatusService
{
    Q_OBJECT

public:
    /// Whether the host holds the camera open.
    virtual bool isCameraOpen(const CameraPtr& camera) const = 0;

    /// Whether the camera is acquiring continuously or being recorded.
    virtual bool isAcquiringOrRecording(const CameraInfoPtr& camera) const = 0;

signals:
    void cameraConnectionLost(Core::CameraPoolComponents::CameraInfoPtr camera);

protected:
    using IDeviceStatusService::IDeviceStatusService;
};

/// Cameras that belong together, such as those of one interface.
struct DeviceGroup
{
    QString name;
    QList<CameraInfoPtr> cameras;
};

/// Lists the cameras that can be seen. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT ICameraEnumerationService : public Core::Service::IService
{
    Q_OBJECT

public:
    virtual QList<DeviceGroup> deviceGroups() const = 0;

protected:
    using IService::IService;
};

/// Stops what runs. Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT ICameraStreamControlService : public Core::Service::IService
{
    Q_OBJECT

public:
    virtual void stopAllAcquisitionsAndRecordings() = 0;

protected:
    using IService::IService;
};

/// Opens and closes cameras. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT ICameraControlService : public Core::Service::IService
{
    Q_OBJECT

public:
    /// A handle with exclusive rights to a camera that the host holds open.
    /// \return  null on refusal; the camera's last error text says why
    virtual CameraPtr getExclusiveAccess(const CameraPtr& camera) = 0;

    /// Opens a closed camera.
    /// \return  a handle with exclusive rights, null on refusal; the camera's last error text says
    ///          why
    virtual CameraPtr openWithExclusiveAccess(const CameraPtr& camera) = 0;

    /// Closes a camera that was opened by openWithExclusiveAccess. No error if it is closed; one
    /// that the host has opened stays open.
    virtual void close(const CameraPtr& camera) = 0;

protected:
    using IService::IService;
};

} // namespace Plugin::CameraPool
