// SPDX-License-Identifier: Apache-2.0
// The GenICam library reads one description at a time.
#pragma once

#include <mutex>

namespace Cameras::GenICam {

/// Held around every call in which Aravis parses a description, such as the opening of a camera:
/// its parser keeps its state in one place for all threads, and ends the program or never returns
/// where two of them parse at once. What was parsed is free of it. Also around every call that uses
/// its list of devices, which the opening of a camera on USB renews.
std::mutex& libraryParsing();

} // namespace Cameras::GenICam
