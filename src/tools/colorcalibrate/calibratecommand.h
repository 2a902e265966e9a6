// SPDX-License-Identifier: Apache-2.0
// The subcommand "calibrate".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Calibrates a camera as the wizard does, and prints how well.
/// \throws CommandError  the camera has been given back as it was, or the message says plainly that
///         it could not be
void calibrateCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
