// SPDX-License-Identifier: Apache-2.0
// The settings file of an earlier calibration.
#pragma once

#include "iparametercollection.h"

#include <QString>

namespace ColorCalibrate {

/// \return  the file's text, at least one line of which is a setting
/// \throws CommandError  the file cannot be read, is no settings file, or is far too large for one
QString readPreviousSettings(const QString& fileName);

/// \throws CommandError  no setting of the text is of a feature that the camera has
void requireOwnSettings(const QString& text, const QString& fileName,
                        Core::ParameterCollection::IParameterCollection& parameters);

} // namespace ColorCalibrate
