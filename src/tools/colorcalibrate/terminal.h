// SPDX-License-Identifier: Apache-2.0
// Whether a person looks on.
#pragma once

namespace ColorCalibrate {

/// Whether the process's standard error is a terminal.
bool isStandardErrorTerminal();

} // namespace ColorCalibrate
