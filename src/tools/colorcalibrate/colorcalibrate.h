// SPDX-License-Identifier: Apache-2.0
// The command-line tool: finds the subcommand and runs it.
#pragma once

#include "command.h"

#include <QStringList>

namespace ColorCalibrate {

/// Runs the tool. Needs a QCoreApplication. No exception leaves it.
/// \param arguments  without the program's name
/// \return  the process's exit code, an ExitCode; each failure writes one line to streams.err
int run(const QStringList& arguments, const Streams& streams);

} // namespace ColorCalibrate
