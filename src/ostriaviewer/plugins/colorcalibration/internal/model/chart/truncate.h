// SPDX-License-Identifier: Apache-2.0
// From floating point to integer coordinates.
#pragma once

#include <limits>

namespace ColorCalibration {

/// Towards zero. What an int cannot hold becomes the nearest int, NaN becomes 0.
inline int truncateToInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    if (value >= highest)
        return std::numeric_limits<int>::max();
    if (value <= lowest)
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}

} // namespace ColorCalibration
