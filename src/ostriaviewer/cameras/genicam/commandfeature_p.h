// SPDX-License-Identifier: Apache-2.0
// Commands: their start, and whether they are done.
#pragma once

#include "feature_p.h"

namespace Cameras::GenICam {

// Both need the node map's mutex and a command; they throw ::GenICam::RuntimeException with the
// feature's name and the reason.

void startCommand(const Feature& feature);

/// A command that cannot be asked counts as done at once.
bool isCommandDone(const Feature& feature);

} // namespace Cameras::GenICam
