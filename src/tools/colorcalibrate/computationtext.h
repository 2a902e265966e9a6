// SPDX-License-Identifier: Apache-2.0
// A run of the engine for people and for programs.
#pragma once

#include "computation.h"

#include <QJsonObject>

#include <iosfwd>

namespace ColorCalibrate {

/// Writes a table of the patches, their means and largest values, and the settings. Colours are
/// shown as a screen would show them, #rrggbb in sRGB.
void writeText(std::ostream& out, const Computation& computation);

/// The settings, and colours and mean Delta E after each step.
QJsonObject toJson(const Computation& computation);

} // namespace ColorCalibrate
