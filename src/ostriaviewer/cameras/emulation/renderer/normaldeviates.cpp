// SPDX-License-Identifier: Apache-2.0
// Noise that is the same each time it is asked for.
#include "normaldeviates.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Cameras::Emulation {
namespace {

constexpr int runLength = 32;
constexpr std::size_t tableSize = 65536;

/// The finalizer of SplitMix64 (Steele, Lea, Flood, "Fast splittable pseudorandom number
/// generators", OOPSLA 2014).
std::uint64_t mixed(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15U;
    value = (value ^ value >> 30U) * 0xBF58476D1CE4E5B9U;
    value = (value ^ value >> 27U) * 0x94D049BB133111EBU;
    return value ^ value >> 31U;
}

/// On (0, 1].
double uniform(std::uint64_t number)
{
    return static_cast<double>((mixed(number) >> 11U) + 1) / 9007199254740992.0;
}

void standardize(std::vector<double>& values)
{
    double sum = 0.0;
    double squares = 0.0;
    for (const double value : values) {
        sum += value;
        squares += value * value;
    }
    const double mean = sum / tableSize;
    const double deviation = std::sqrt(squares / tableSize - mean * mean);
    for (double& value : values)
        value = (value - mean) / deviation;
}

std::vector<float> makeTable()
{
    std::vector<double> values;
    values.reserve(tableSize);
    for (std::uint64_t pair = 0; values.size() < tableSize; ++pair) {
        const double radius = std::sqrt(-2.0 * std::log(uniform(2 * pair)));
        const double angle = 6.283185307179586 * uniform(2 * pair + 1);
        values.push_back(radius * std::cos(angle));
        values.push_back(radius * std::sin(angle));
    }
    standardize(values);
    // A run may begin at any position, so the beginning follows once more after the end.
    values.insert(values.end(), values.begin(), values.begin() + runLength);
    std::vector<float> table(values.size());
    std::transform(values.begin(), values.end(), table.begin(),
                   [](double value) { return static_cast<float>(value); });
    return table;
}

} // namespace

void normalDeviates(std::uint64_t seed, std::uint64_t frame, int x, int y, int count, float* out)
{
    static const std::vector<float> table = makeTable();
    const std::uint64_t row = mixed(mixed(mixed(seed) ^ frame) ^ static_cast<std::uint64_t>(y));
    const int end = x + count;
    while (x < end) {
        const int run = x / runLength;
        const int inRun = x % runLength;
        const int length = std::min(runLength - inRun, end - x);
        const std::uint64_t hash = mixed(row ^ static_cast<std::uint64_t>(run));
        const float sign = (hash >> 32U & 1U) != 0 ? -1.0F : 1.0F;
        const float* source = table.data() + hash % tableSize + inRun;
        for (int i = 0; i < length; ++i)
            out[i] = sign * source[i];
        out += length;
        x += length;
    }
}

} // namespace Cameras::Emulation
