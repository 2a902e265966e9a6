// SPDX-License-Identifier: Apache-2.0
// Which device the user has selected.
#pragma once

#include "ideviceselectorservice.h"

namespace Viewer {

/// Thread-bound: GUI thread.
class DeviceSelectorService final : public Plugin::CameraSelector::IDeviceSelectorService
{
    Q_OBJECT

public:
    DeviceSelectorService();
    ~DeviceSelectorService() override;

    /// Null if nothing is selected.
    const Core::CameraPoolComponents::DeviceBaseInfoPtr& selected() const { return m_selected; }

    /// Tells of the selection if it is another one.
    void select(const Core::CameraPoolComponents::DeviceBaseInfoPtr& device);

    /// Tells of the selection again, for plugins that were not there when it was made.
    void announce();

private:
    Core::CameraPoolComponents::DeviceBaseInfoPtr m_selected;
};

} // namespace Viewer
