// SPDX-License-Identifier: Apache-2.0
// Which device the user has selected.
#include "deviceselectorservice.h"

#include "patience.h"

#include <algorithm>
#include <chrono>

namespace Viewer {

using Cameras::GenICam::Patience;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

namespace {

/// For each question of a plugin, at first and at most: a slow camera gets more of it each time.
constexpr std::chrono::milliseconds patience(100);
constexpr std::chrono::milliseconds longestPatience(400);

/// Before a camera that has not answered is asked again, at first and at most. A packet that was
/// lost is sent again after about half a second.
constexpr std::chrono::milliseconds pause(250);
constexpr std::chrono::milliseconds longestPause(4000);

std::chrono::milliseconds doubled(std::chrono::milliseconds time, int times,
                                  std::chrono::milliseconds longest)
{
    for (int i = 0; i < times && time < longest; ++i)
        time *= 2;
    return std::min(time, longest);
}

} // namespace

DeviceSelectorService::DeviceSelectorService()
{
    m_again.setSingleShot(true);
    connect(&m_again, &QTimer::timeout, this, &DeviceSelectorService::tellOfSelection);
}

DeviceSelectorService::~DeviceSelectorService() = default;

void DeviceSelectorService::select(const DeviceBaseInfoPtr& device)
{
    if (device == m_selected)
        return;
    m_selected = device;
    m_again.stop();
    m_repeats = 0;
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
    const Patience limited(doubled(patience, m_repeats, longestPatience));
    const std::uint64_t failures = Patience::failures();
    tell();
    if (!device || device != m_selected)
        return;
    if (Patience::failures() == failures) {
        m_repeats = 0;
        return;
    }
    m_again.start(doubled(pause, m_repeats, longestPause));
    ++m_repeats;
}

} // namespace Viewer
