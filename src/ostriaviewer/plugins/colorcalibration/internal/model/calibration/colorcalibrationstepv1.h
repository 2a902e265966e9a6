// SPDX-License-Identifier: Apache-2.0
// What all calibration steps share: the chart they measure against and how they measure.
#pragma once

#include "charttargets.h"
#include "colorcalibrationstep.h"
#include "colormath.h"

#include <memory>

namespace ColorCalibration {

/// Base of the concrete steps. Reentrant.
class ColorCalibrationStepV1 : public ColorCalibrationStep<PatchCount>
{
public:
    /// \param chart  lent, outlives the step
    explicit ColorCalibrationStepV1(const ChartTargets& chart);
    ~ColorCalibrationStepV1() override;

    /// CIEDE2000 between the patch and its target, both by way of D65 XYZ and Lab.
    double Delta(int patch, bool chromaOnly, bool useOutput) const override;

protected:
    const ChartTargets& chart() const { return *m_chart; }

    /// Output is Input times the diagonal matrix of the factors, clamped. A true matrix product: a
    /// channel that is not finite spoils all three channels of its patch, and a factor that is not
    /// finite spoils its channel even where that is 0.
    void applyFactors(double red, double green, double blue);

    /// Brings each value of Output into 0 to 255. A NaN becomes 255.
    void clampOutput();

private:
    const ChartTargets* m_chart;
    std::unique_ptr<ColorMath> m_colorMath;
};

} // namespace ColorCalibration
