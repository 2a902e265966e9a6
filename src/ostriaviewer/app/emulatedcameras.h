// SPDX-License-Identifier: Apache-2.0
// The emulated cameras of the viewer, and the scene before them.
#pragma once

#include "hostcamera.h"

#include <QList>
#include <QString>

namespace Viewer {

/// The cameras that the viewer shows when nothing is plugged in.
/// \param sceneFile  an image that they see; empty: a chart on a table
/// \param error      receives why the image cannot be the scene; empty if it is
QList<Cameras::HostCameraPtr> emulatedCameras(const QString& sceneFile, QString& error);

} // namespace Viewer
