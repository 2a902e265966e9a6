// SPDX-License-Identifier: Apache-2.0
// From floating point to int without undefined behaviour.
#pragma once

#include <cmath>
#include <limits>

namespace ColorCalibration {

/// Truncates towards zero. What no int can hold becomes the nearest int, NaN becomes 0.
inline int saturatedInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

} // namespace ColorCalibration
