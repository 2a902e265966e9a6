// SPDX-License-Identifier: Apache-2.0
// The subcommand "list".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Lists the cameras that can be seen.
/// \throws CommandError
void listCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
