// SPDX-License-Identifier: Apache-2.0
// The subcommand "find".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Looks for the chart in an image and prints its corners as "measure --grid" reads them.
/// \throws CommandError  also if there is none
void findCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
