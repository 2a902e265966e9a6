// SPDX-License-Identifier: Apache-2.0
// A random but plausible camera in front of the chart.
#include "simulatedcamera.h"

#include "charttargets.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

class Random
{
public:
    explicit Random(unsigned seed)
        : m_generator(seed)
    {}

    // The standard distributions differ between libraries.
    double uniform(double from, double to)
    {
        return from + (to - from) * static_cast<double>(m_generator()) / 4294967296.0;
    }

    double nearlyGaussian(double deviation)
    {
        double sum = 0.0;
        for (int i = 0; i < 12; ++i) {
            sum += uniform(-0.5, 0.5);
        }
        return deviation * sum;
    }

private:
    std::mt19937 m_generator;
};

} // namespace

ColorCalibration::PatchColors simulatedResponse(unsigned seed)
{
    Random random(seed);
    double crosstalk[3][3];
    double factor[3];
    double exponent[3];
    const double exposure = random.uniform(0.96, 1.02);
    const int strongest = static_cast<int>(random.uniform(0.0, 3.0));
    for (int r = 0; r < 3; ++r) {
        const double first = random.uniform(0.03, 0.2);
        const double second = random.uniform(0.03, 0.2);
        crosstalk[r][r] = 1.0 - first - second;
        crosstalk[r][(r + 1) % 3] = first;
        crosstalk[r][(r + 2) % 3] = second;
        factor[r] = exposure * (r == strongest ? 1.0 : random.uniform(0.5, 1.0));
        exponent[r] = random.uniform(0.985, 1.015);
    }

    const ColorCalibration::PatchColors targets = ColorCalibration::ChartTargets().TargetColors();
    ColorCalibration::PatchColors response;
    for (int patch = 0; patch < ColorCalibration::PatchCount; ++patch) {
        for (int r = 0; r < 3; ++r) {
            double light = 0.0;
            for (int c = 0; c < 3; ++c) {
                light += crosstalk[r][c] * targets(patch, c);
            }
            const double bent = 255.0 * std::pow(factor[r] * light / 255.0, exponent[r]);
            response(patch, r) = std::clamp(bent + random.nearlyGaussian(0.2), 0.0, 255.0);
        }
    }
    return response;
}
