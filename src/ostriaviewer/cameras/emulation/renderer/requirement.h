// SPDX-License-Identifier: Apache-2.0
// Refusal of values that are out of their range.
#pragma once

#include <stdexcept>
#include <string>

namespace Cameras::Emulation {

/// \throws std::invalid_argument  value is not from lowest to highest; a NaN never is
inline void requireRange(const char* name, double value, double lowest, double highest)
{
    if (value >= lowest && value <= highest)
        return;
    throw std::invalid_argument(std::string(name) + " is " + std::to_string(value) +
                                ", allowed is " + std::to_string(lowest) + " to " +
                                std::to_string(highest) + ".");
}

} // namespace Cameras::Emulation
