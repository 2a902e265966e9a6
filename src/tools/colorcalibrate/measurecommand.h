// SPDX-License-Identifier: Apache-2.0
// The subcommand "measure".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Measures the patches of an image of the chart and prints them as "compute" reads them.
/// \throws CommandError
void measureCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
