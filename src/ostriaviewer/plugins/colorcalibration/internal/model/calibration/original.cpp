// SPDX-License-Identifier: Apache-2.0
// Passes the measured colours on.
#include "original.h"

namespace ColorCalibration {

Original::Original(const ChartTargets& chart, double gain)
    : ColorCalibrationStepV1(chart)
    , m_gain(gain)
{}

Original::~Original() = default;

void Original::Calculate()
{
    Output = Input * m_gain;
    clampOutput();
}

} // namespace ColorCalibration
