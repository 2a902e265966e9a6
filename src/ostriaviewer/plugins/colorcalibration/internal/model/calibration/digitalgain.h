// SPDX-License-Identifier: Apache-2.0
// Brings the gray patch to its target level by one factor for all channels.
#pragma once

#include "colorcalibrationstepv1.h"

namespace ColorCalibration {

/// A side branch of the chain: shows what the exposure alone leaves to be corrected. Reentrant.
class DigitalGain : public ColorCalibrationStepV1
{
public:
    /// \param chart  lent, outlives the step
    explicit DigitalGain(const ChartTargets& chart);
    ~DigitalGain() override;

    /// Estimate, then Apply.
    void Calculate() override;

    /// Gain = target level of the gray patch over its largest channel in Input; 1.0 if that is 0.
    void Estimate();

    /// Output is Input times the gain, clamped to 0 to 255; see applyFactors for what is not
    /// finite.
    void Apply();

    /// \param gain  receives the gain; 1.0 until the first Estimate
    void GetGain(double& gain) const;

private:
    double m_gain = 1.0;
};

} // namespace ColorCalibration
