// SPDX-License-Identifier: Apache-2.0
// Distances from the targets, and the ways in which every step produces its output.
#include "colorcalibrationstepv1.h"

namespace ColorCalibration {

ColorCalibrationStepV1::ColorCalibrationStepV1(const ChartTargets& chart)
    : m_chart(&chart)
    , m_colorMath(std::make_unique<ColorMath>())
{}

ColorCalibrationStepV1::~ColorCalibrationStepV1() = default;

double ColorCalibrationStepV1::Delta(int patch, bool chromaOnly, bool useOutput) const
{
    const Color color = dlib::rowm(useOutput ? Output : Input, patch);
    const Color target = dlib::rowm(m_chart->TargetColors(), patch);
    const ColorMatrix rgbToXyz = m_colorMath->RgbToXyzMatrix();
    const Color white = m_colorMath->WhitePoint();
    const Color lab = m_colorMath->XyzToLab(m_colorMath->LinearRgbToXyz(color, rgbToXyz), white);
    const Color targetLab =
        m_colorMath->XyzToLab(m_colorMath->LinearRgbToXyz(target, rgbToXyz), white);
    return chromaOnly ? m_colorMath->DeltaC(lab, targetLab)
                      : m_colorMath->DeltaE(lab, targetLab, false);
}

void ColorCalibrationStepV1::applyFactors(double red, double green, double blue)
{
    ColorMatrix factors;
    factors = red, 0.0, 0.0, //
        0.0, green, 0.0,     //
        0.0, 0.0, blue;
    Output = Input * factors;
    clampOutput();
}

void ColorCalibrationStepV1::clampOutput()
{
    for (double& value : Output) {
        // The order of the comparisons decides what becomes of a NaN, so no std::clamp.
        value = value < 255.0 ? value : 255.0;
        value = value > 0.0 ? value : 0.0;
    }
}

} // namespace ColorCalibration
