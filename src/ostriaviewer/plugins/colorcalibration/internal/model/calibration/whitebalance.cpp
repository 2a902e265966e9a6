// SPDX-License-Identifier: Apache-2.0
// Factors per channel from the gray patches.
#include "whitebalance.h"

#include <algorithm>

namespace ColorCalibration {

WhiteBalance::WhiteBalance(const ChartTargets& chart)
    : ColorCalibrationStepV1(chart)
{}

WhiteBalance::~WhiteBalance() = default;

void WhiteBalance::Calculate()
{
    Estimate();
    Apply();
}

void WhiteBalance::Estimate()
{
    constexpr int GrayPatches = 3;
    constexpr double SaturationLevel = 250.0;
    double sumRed = 0.0;
    double sumGreen = 0.0;
    double sumBlue = 0.0;
    const int first = chart().GrayPatchIndex();
    for (int patch = first; patch < first + GrayPatches; ++patch) {
        const double red = Input(patch, 0);
        const double green = Input(patch, 1);
        const double blue = Input(patch, 2);
        const double largest = std::max({red, green, blue});
        if (largest < SaturationLevel) {
            sumRed += red / largest;
            sumGreen += green / largest;
            sumBlue += blue / largest;
        }
    }
    const double top = std::max({sumGreen, sumBlue, sumRed});
    m_red = top / sumRed;
    m_green = top / sumGreen;
    m_blue = top / sumBlue;
}

void WhiteBalance::Apply()
{
    applyFactors(m_red, m_green, m_blue);
}

void WhiteBalance::GetGains(double& red, double& green, double& blue) const
{
    red = m_red;
    green = m_green;
    blue = m_blue;
}

} // namespace ColorCalibration
