// SPDX-License-Identifier: Apache-2.0
// The subcommand "report".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Makes the report of an earlier calibration again.
/// \throws CommandError
void reportCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
