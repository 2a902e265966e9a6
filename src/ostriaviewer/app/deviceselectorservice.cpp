// SPDX-License-Identifier: Apache-2.0
// Which device the user has selected.
#include "deviceselectorservice.h"

namespace Viewer {

DeviceSelectorService::DeviceSelectorService() = default;

DeviceSelectorService::~DeviceSelectorService() = default;

void DeviceSelectorService::select(const Core::CameraPoolComponents::DeviceBaseInfoPtr& device)
{
    if (device == m_selected)
        return;
    m_selected = device;
    announce();
}

void DeviceSelectorService::announce()
{
    emit selectionChanged(m_selected);
}

} // namespace Viewer
