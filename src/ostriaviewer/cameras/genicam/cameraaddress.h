// SPDX-License-Identifier: Apache-2.0
// Addresses of network cameras as people write them.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace Cameras::GenICam {

/// An IPv4 address, of which 127.0.0.1 is 0x7f000001, from four decimal numbers, with leading zeros
/// or blanks around; nothing if the text is no address of a single device. Thread-safe.
std::optional<std::uint32_t> addressNumber(const QString& text);

/// The same as it is shown, without leading zeros and blanks; empty if there is none. Thread-safe.
QString cameraAddress(const QString& text);

} // namespace Cameras::GenICam
