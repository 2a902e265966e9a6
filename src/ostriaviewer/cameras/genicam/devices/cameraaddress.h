// SPDX-License-Identifier: Apache-2.0
// Addresses of network cameras as people write them.
#pragma once

#include <QString>

namespace Cameras::GenICam {

/// The IPv4 address as it is shown, without leading zeros and blanks; empty if the text is no
/// address of a single device. Thread-safe.
QString cameraAddress(const QString& text);

} // namespace Cameras::GenICam
