// SPDX-License-Identifier: Apache-2.0
// Makes the gray patches neutral by one factor a channel.
#pragma once

#include "colorcalibrationstepv1.h"

namespace ColorCalibration {

/// Removes the cast of the light from the colours. Reentrant.
class WhiteBalance : public ColorCalibrationStepV1
{
public:
    /// \param chart  lent, outlives the step
    explicit WhiteBalance(const ChartTargets& chart);
    ~WhiteBalance() override;

    /// Estimate, then Apply.
    void Calculate() override;

    /// Averages three gray patches, each relative to its largest channel, and takes the factors
    /// that bring the weaker channels up to the strongest one. No factor is below 1.
    ///
    /// A patch with a channel of 250 or more counts as saturated and is left out. All three left
    /// out, or one of them black: NaN. A channel that is 0 in all of them: infinite.
    void Estimate();

    /// Output is Input times the factors, clamped to 0 to 255; see applyFactors for what is not
    /// finite.
    void Apply();

    /// \param red, green, blue  receive the factors; 1.0 until the first Estimate
    void GetGains(double& red, double& green, double& blue) const;

private:
    double m_red = 1.0;
    double m_green = 1.0;
    double m_blue = 1.0;
};

} // namespace ColorCalibration
