// SPDX-License-Identifier: Apache-2.0
// The subcommand "compute".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Computes camera settings from 24 patch colours.
/// \throws CommandError
void computeCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
