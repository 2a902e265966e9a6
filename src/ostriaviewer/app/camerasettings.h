// SPDX-License-Identifier: Apache-2.0
// Which cameras the viewer shows, and how it reaches them.
#pragma once

#include "transportsettings.h"
#include "viewersettings.h"

#include <QString>

#include <optional>

namespace Viewer {

/// Where cameras come from.
enum class Backends { Emulation, GenICam, All };

/// "emulation", "genicam" or "all".
QString nameOf(Backends backends);

/// Nothing if it is none of these names.
std::optional<Backends> backendsFromName(const QString& name);

/// A plain value; reentrant.
struct CameraSettings
{
    Backends backends = Backends::All;
    Cameras::GenICam::TransportSettings transport;
};

/// Values that mean nothing count as not written.
CameraSettings readCameraSettings(const ViewerSettings& settings);
void writeCameraSettings(ViewerSettings& settings, const CameraSettings& cameras);

} // namespace Viewer
