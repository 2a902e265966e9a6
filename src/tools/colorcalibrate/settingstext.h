// SPDX-License-Identifier: Apache-2.0
// Camera settings for people and for programs.
#pragma once

#include "calibrationsettings.h"

#include <QJsonObject>

#include <iosfwd>

namespace ColorCalibrate {

/// Writes white balance, matrix, hue and saturation of the sectors, and gamma.
void writeSettings(std::ostream& out, const ColorCalibration::CalibrationSettings& settings);

/// {"whiteBalance", "colorMatrix", "colorAdjustment": {"hue", "saturation"}, "gamma"}.
QJsonObject settingsJson(const ColorCalibration::CalibrationSettings& settings);

} // namespace ColorCalibrate
