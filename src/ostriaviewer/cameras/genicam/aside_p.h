// SPDX-License-Identifier: Apache-2.0
// Work that nobody is to wait for.
#pragma once

#include <functional>
#include <thread>

namespace Cameras::GenICam {

/// Runs work on a thread of its own, such as giving up a camera that has gone, which waits seconds
/// for answers. What the work throws is lost. The end of the application object waits for it, that
/// of a program without one after main. Thread-safe.
void runAside(std::function<void()> work);

/// Waits aside for the end of a thread, such as one that ends what it belongs to itself.
/// Thread-safe.
void joinAside(std::thread thread);

} // namespace Cameras::GenICam
