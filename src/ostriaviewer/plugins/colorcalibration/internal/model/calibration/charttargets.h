// SPDX-License-Identifier: Apache-2.0
// What the 24 patches of the chart should look like.
#pragma once

#include "patchcolors.h"

namespace ColorCalibration {

/// One block of 3 by 3 a patch on the diagonal, zero elsewhere.
using LabSensitivityMatrix = dlib::matrix<double, 3L * PatchCount, 3L * PatchCount>;

/// The chart's fixed data. Stateless and reentrant; no operation throws.
class ChartTargets
{
public:
    /// \return  the colours that the patches should have: linear light, 0 to 255. The six neutral
    ///          patches are those of a real chart, so they are not exactly neutral.
    PatchColors TargetColors() const;

    /// \return  the patch that serves as the gray reference for brightness and white balance
    int GrayPatchIndex() const;

    /// \param high  asks for the level of a brighter exposure
    /// \return  the level of the gray patch's largest channel, linear light on 0 to 255
    double GrayPatchTargetLevel(bool high) const;

    /// How much a small change of a patch's linear colour matters to the eye, to first order at its
    /// target colour. Used as the weight of the least squares fits.
    ///
    /// Block p stands in rows and columns 3p to 3p + 2: rows L*, a*, b*, columns R, G, B on 0 to
    /// 255. It is the derivative of CIE Lab for sRGB primaries adapted to D50, with the derivative
    /// of the cube root taken at X/Xn, Y/Yn, Z/Zn without a further division by the white point.
    /// It is therefore not the derivative of the D65 conversion in ColorMath. Patch 17 departs from
    /// the rule; its numbers are kept so that results stay comparable.
    /// \return  72 x 72, about 41 KB by value
    LabSensitivityMatrix LabSensitivity() const;
};

} // namespace ColorCalibration
