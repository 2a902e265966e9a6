// SPDX-License-Identifier: Apache-2.0
// A light image at another size.
#include "resample.h"

#include <algorithm>
#include <vector>

namespace Cameras::Emulation {
namespace {

/// What the source pixels from `first` on contribute to one target pixel, along one axis.
struct Span
{
    int first = 0;
    std::vector<float> shares;
};

std::vector<Span> spans(int source, int target)
{
    const double scale = static_cast<double>(source) / target;
    std::vector<Span> result(static_cast<std::size_t>(target));
    for (int i = 0; i < target; ++i) {
        const double begin = i * scale;
        const double end = std::min((i + 1) * scale, static_cast<double>(source));
        Span& span = result[static_cast<std::size_t>(i)];
        span.first = std::min(static_cast<int>(begin), source - 1);
        for (int j = span.first; j == span.first || j < end; ++j) {
            const double covered = std::min(end, j + 1.0) - std::max(begin, double(j));
            span.shares.push_back(static_cast<float>(std::max(covered, 0.0) / (end - begin)));
        }
    }
    return result;
}

} // namespace

LightImage resampled(const LightImage& source, int width, int height)
{
    const std::vector<Span> columns = spans(source.width, width);
    const std::vector<Span> rows = spans(source.height, height);
    LightImage target{width, height, {}};
    target.rgb.reserve(3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (const Span& row : rows)
        for (const Span& column : columns) {
            Light sum{};
            for (std::size_t j = 0; j < row.shares.size(); ++j)
                for (std::size_t i = 0; i < column.shares.size(); ++i) {
                    const float* light = source.at(column.first + static_cast<int>(i),
                                                   row.first + static_cast<int>(j));
                    for (std::size_t c = 0; c < 3; ++c)
                        sum[c] += row.shares[j] * column.shares[i] * light[c];
                }
            target.rgb.insert(target.rgb.end(), sum.begin(), sum.end());
        }
    return target;
}

} // namespace Cameras::Emulation
