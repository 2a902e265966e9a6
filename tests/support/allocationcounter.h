// SPDX-License-Identifier: Apache-2.0
// Counts what this test program takes from and gives back to the heap.
#pragma once

/// Calls of operator new so far, in the whole program.
long allocations();

/// Blocks taken and not given back.
long liveBlocks();
