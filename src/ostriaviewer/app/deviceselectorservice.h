// SPDX-License-Identifier: Apache-2.0
// Which device the user has selected.
#pragma once

#include "ideviceselectorservice.h"

#include <QTimer>

#include <functional>

namespace Viewer {

/// Thread-bound: GUI thread.
///
/// Plugins ask the camera that they are told of, and the windows do not wait for a camera: what it
/// does not answer at once fails, and selectionChanged is emitted again for the same device until
/// everybody has got an answer, with pauses that grow.
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

    /// Tells plugins of a device by calling a function. Where the device is selected and its camera
    /// has not answered all that they asked, selectionChanged tells them again.
    void tellPlugins(const Core::CameraPoolComponents::DeviceBaseInfoPtr& device,
                     const std::function<void()>& tell);

signals:
    /// Another device is selected: for the viewer's own parts, before plugins hear of it.
    void switched();

private:
    void tellOfSelection();

    Core::CameraPoolComponents::DeviceBaseInfoPtr m_selected;
    QTimer m_again;
    int m_repeats = 0; // of the selection, without an answer
};

} // namespace Viewer
