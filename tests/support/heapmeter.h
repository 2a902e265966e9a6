// SPDX-License-Identifier: Apache-2.0
// Counts the heap of the whole program. To be linked into a program of its own: it replaces the C
// library's malloc, which sanitizers replace as well.
#pragma once

#include <cstddef>

namespace HeapMeter {

/// False where the C library offers no way to count; then the others answer 0.
bool isAvailable();

/// Starts a new peak at what is allocated now.
void restart();

/// The most bytes that were allocated at once since restart, beyond those allocated at restart.
std::size_t peakBytes();

} // namespace HeapMeter
