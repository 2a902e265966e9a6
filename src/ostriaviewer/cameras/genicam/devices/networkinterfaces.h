// SPDX-License-Identifier: Apache-2.0
// Where cameras can be looked for.
#pragma once

#include <QStringList>

namespace Cameras::GenICam {

/// The names of this computer's network interfaces, whether they are up or not. Thread-safe.
QStringList networkInterfaces();

} // namespace Cameras::GenICam
