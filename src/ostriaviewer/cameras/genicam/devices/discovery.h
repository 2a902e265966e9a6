// SPDX-License-Identifier: Apache-2.0
// Looks for cameras.
#pragma once

#include "cameraidentity.h"
#include "transportsettings.h"

#include <QVector>

#include <chrono>

namespace Cameras::GenICam {

/// Asks for cameras by broadcast on the interfaces that the settings allow and at the addresses
/// that they name, and collects what answers in that time, each camera once. Reentrant.
QVector<CameraIdentity>
findNetworkCameras(const TransportSettings& settings,
                   std::chrono::milliseconds time = std::chrono::milliseconds(1000));

/// The cameras on USB. Nothing is sent into any network. Thread-safe.
QVector<CameraIdentity> findUsbCameras();

} // namespace Cameras::GenICam
