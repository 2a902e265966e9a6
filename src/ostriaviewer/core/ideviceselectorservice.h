// SPDX-License-Identifier: Apache-2.0
// Which device the user has selected.
#pragma once

#include "coreexport.h"
#include "icamerainfo.h"
#include "iservice.h"

namespace Plugin::CameraSelector {

/// Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT IDeviceSelectorService : public Core::Service::IService
{
    Q_OBJECT

signals:
    /// May tell again of the device that was told of last, where that has not answered all that
    /// somebody asked it then.
    /// \param device  null if nothing is selected
    void selectionChanged(Core::CameraPoolComponents::DeviceBaseInfoPtr device);

protected:
    using IService::IService;
};

} // namespace Plugin::CameraSelector
