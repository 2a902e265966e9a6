// SPDX-License-Identifier: Apache-2.0
// The subcommand "serve".
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Makes an emulated camera a GigE Vision device until Ctrl-C.
void serveCommand(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
