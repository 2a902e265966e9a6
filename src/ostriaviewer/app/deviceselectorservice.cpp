// SPDX-License-Identifier: Apache-2.0
// Which device the user has selected.
#include "deviceselectorservice.h"

#include "patience.h"

#include <chrono>

namespace Viewer {

using Cameras::GenICam::Patience;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

namespace {

/// For each question of a plugin.
constexpr std::chrono::milliseconds patience(100);

/// Before a camera that has not answered is asked again. A packet that was lost is sent again after
/// about half a second.
constexpr std::chrono::milliseconds pause(250);

} // namespace

DeviceSelectorService::DeviceSelectorService()
{
    m_again.setSingleShot(true);
    m_again.setInterval(pause);
    connect(&m_again, &QTimer::timeout, this, &DeviceSelectorService::tellOfSelection);
}

DeviceSelectorService::~DeviceSelectorService() = default;

void DeviceSelectorService::select(const DeviceBaseInfoPtr& device)
{
    if (device == m_selected)
        return;
    m_selected = device;
    m_again.stop();
    emit switched();
    tellOfSelection();
}

void DeviceSelectorService::tellOfSelection()
{
    const DeviceBaseInfoPtr device = m_selected;
    tellPlugins(device, [&] { emit selectionChanged(device); });
}

void DeviceSelectorService::tellPlugins(const DeviceBaseInfoPtr& device,
                                        const std::function<void()>& tell)
{
    const Patience limited(patience);
    const std::uint64_t failures = Patience::failures();
    tell();
    if (device && device == m_selected && Patience::failures() != failures)
        m_again.start();
}

} // namespace Viewer
