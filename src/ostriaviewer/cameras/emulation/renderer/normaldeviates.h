// SPDX-License-Identifier: Apache-2.0
// Noise that is the same each time it is asked for.
#pragma once

#include <cstdint>

namespace Cameras::Emulation {

/// Standard normal deviates (mean 0, variance 1) for a run of one row's pixels. A deviate belongs
/// to its seed, frame and position; how the run was cut does not matter.
///
/// Box and Muller, "A note on the generation of random normal deviates", Ann. Math. Stat. 29
/// (1958), fill a table of 65536 deviates once; runs of 32 pixels take theirs from a position in
/// the table, and with a sign, that a hash of seed, frame, row and run chooses.
/// \param x    of the first pixel, not negative
/// \param out  room for count values
void normalDeviates(std::uint64_t seed, std::uint64_t frame, int x, int y, int count, float* out);

} // namespace Cameras::Emulation
