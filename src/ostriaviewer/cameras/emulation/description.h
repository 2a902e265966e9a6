// SPDX-License-Identifier: Apache-2.0
// The GenICam description of an emulated camera.
#pragma once

#include "featuretable.h"
#include "registerlayout.h"

#include <QString>

#include <string>

namespace Cameras::Emulation {

/// Writes the description (GenApi schema 1.1, UTF-8) that lays a table's features over its
/// registers. Limits and conditions stand in it as formulas over the registers, so that a client
/// knows them before it writes. Reentrant.
/// \param modelName  as the description's head names the camera
std::string describe(const QString& modelName, const FeatureTable& table,
                     const RegisterLayout& layout);

} // namespace Cameras::Emulation
