// SPDX-License-Identifier: Apache-2.0
// The first step of the chain: the measured colours as they are.
#pragma once

#include "colorcalibrationstepv1.h"

namespace ColorCalibration {

/// Gives the chain a first member, and answers how far measured colours lie from the targets.
/// Reentrant.
class Original : public ColorCalibrationStepV1
{
public:
    /// \param chart  lent, outlives the step
    /// \param gain   factor for all channels; 1.0 leaves the colours alone
    Original(const ChartTargets& chart, double gain);
    ~Original() override;

    /// Output is Input times the gain, clamped to 0 to 255.
    void Calculate() override;

private:
    double m_gain;
};

} // namespace ColorCalibration
