// SPDX-License-Identifier: Apache-2.0
// One factor from the gray patch.
#include "digitalgain.h"

#include <algorithm>

namespace ColorCalibration {

DigitalGain::DigitalGain(const ChartTargets& chart)
    : ColorCalibrationStepV1(chart)
{}

DigitalGain::~DigitalGain() = default;

void DigitalGain::Calculate()
{
    Estimate();
    Apply();
}

void DigitalGain::Estimate()
{
    const int gray = chart().GrayPatchIndex();
    const double largest = std::max({Input(gray, 0), Input(gray, 1), Input(gray, 2)});
    m_gain = largest == 0.0 ? 1.0 : chart().GrayPatchTargetLevel(false) / largest;
}

void DigitalGain::Apply()
{
    applyFactors(m_gain, m_gain, m_gain);
}

void DigitalGain::GetGain(double& gain) const
{
    gain = m_gain;
}

} // namespace ColorCalibration
