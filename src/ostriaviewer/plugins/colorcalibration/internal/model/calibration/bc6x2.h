// SPDX-License-Identifier: Apache-2.0
// Hue and saturation for six colours, as the camera's colour adjustment stage applies them.
#pragma once

#include "colorcalibrationstepv1.h"

namespace ColorCalibration {

/// The last correction of the chain. The hexagon of hues is cut into six sectors, each between a
/// primary (red, green, blue) and a secondary colour (yellow, cyan, magenta). Within a sector a
/// colour is its largest channel and the two differences down to the others, and the hue and
/// saturation of the two colours at the sector's ends change these. Reentrant.
class Bc6x2 : public ColorCalibrationStepV1
{
public:
    /// \param chart  lent, outlives the step
    explicit Bc6x2(const ChartTargets& chart);
    ~Bc6x2() override;

    /// Estimate, then Apply.
    /// \throws std::runtime_error  as Estimate; Output and the parameters stay as they were
    void Calculate() override;

    /// Fits the twelve parameters to the coloured patches of Input, see fitInLab, each patch in the
    /// sector in which it comes in. Nothing bounds the parameters; one that no patch depends on
    /// becomes 0.
    /// \throws std::runtime_error  a coloured patch is exactly gray or holds a NaN, so that it has
    ///                             no sector; the parameters stay as they were
    void Estimate();

    /// Output is AdjustColor of each colour of Input, clamped to 0 to 255.
    void Apply();

    /// \param parameters  receives the parameters; neutral until the first Estimate
    void GetParameters(ColorAdjustment& parameters) const;

    /// \return  0 red to yellow, 1 yellow to green, 2 green to cyan, 3 cyan to blue, 4 blue to
    ///          magenta, 5 magenta to red; -1 if the three are equal or one of them is a NaN
    static int HueSector(double red, double green, double blue);

    /// Where AdjustColor places a colour. It never fails.
    /// \return  HueSector where that is not -1; 1 for gray
    static int AdjustmentSector(double red, double green, double blue);

    /// The correction of a single colour, on any scale; a gray one stays as it is.
    /// \param parameters  finite; in the order of ColorAdjustment
    /// \return  R, G, B, not clamped
    static Color AdjustColor(const Color& color, const ColorAdjustment& parameters);

private:
    ColorAdjustment m_parameters;
};

} // namespace ColorCalibration
