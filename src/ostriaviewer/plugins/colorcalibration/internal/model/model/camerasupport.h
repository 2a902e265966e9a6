// SPDX-License-Identifier: Apache-2.0
// Which cameras can be calibrated.
#pragma once

#include "icamerainfo.h"
#include "iparameterservice.h"

namespace ColorCalibration {

/// Whether a camera can be calibrated: by its model name, for most models together with the version
/// of its colour pipeline, which can be read while the camera is open. Reentrant.
/// \param camera      may be null, which is not supported
/// \param parameters  lent for the call; null where the host has no such service
bool isCameraSupported(const Core::CameraPoolComponents::CameraInfoPtr& camera,
                       Plugin::ParameterCollectionPool::IParameterService* parameters);

} // namespace ColorCalibration
