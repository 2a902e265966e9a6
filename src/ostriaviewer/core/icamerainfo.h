// SPDX-License-Identifier: Apache-2.0
// What can be known of a device without opening it.
#pragma once

#include "coreexport.h"

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace Core::CameraPoolComponents {

/// Anything that the host shows by a name.
class OSTRIAVIEWER_CORE_EXPORT IBaseInfo
{
public:
    IBaseInfo() = default;
    IBaseInfo(const IBaseInfo&) = delete;
    IBaseInfo& operator=(const IBaseInfo&) = delete;
    virtual ~IBaseInfo() = default;

    virtual QString displayName() const = 0;
};

/// Anything that can be selected in the device selector.
class OSTRIAVIEWER_CORE_EXPORT IDeviceBaseInfo : public IBaseInfo
{};

/// A camera. The host's object behind it also is an ICamera. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT ICameraInfo : public IDeviceBaseInfo
{
public:
    virtual QString modelName() const = 0;

    /// Why the last operation on the camera failed, for people; empty if none did.
    virtual QString lastErrorText() const = 0;
    virtual void clearLastError() = 0;
};

using DeviceBaseInfoPtr = QSharedPointer<IDeviceBaseInfo>;
using CameraInfoPtr = QSharedPointer<ICameraInfo>;

} // namespace Core::CameraPoolComponents

Q_DECLARE_METATYPE(Core::CameraPoolComponents::DeviceBaseInfoPtr)
Q_DECLARE_METATYPE(Core::CameraPoolComponents::CameraInfoPtr)
