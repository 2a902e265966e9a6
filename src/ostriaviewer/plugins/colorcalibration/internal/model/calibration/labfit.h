// SPDX-License-Identifier: Apache-2.0
// The least squares fit of the coloured patches to their targets, as the eye sees the error.
#pragma once

#include "charttargets.h"

namespace ColorCalibration {

/// Patches 0 to 17 are coloured and take part in the fits; the last row of the chart is neutral.
inline constexpr int ColoredPatchCount = 18;
inline constexpr int FitRows = 3 * ColoredPatchCount;

/// The coloured patches one after the other: row 3i + k is channel k of patch i.
using StackedColors = dlib::matrix<double, FitRows, 1>;

/// \return  the targets of the coloured patches
inline StackedColors stackedTargets(const ChartTargets& chart)
{
    return dlib::reshape(dlib::rowm(chart.TargetColors(), dlib::range(0, ColoredPatchCount - 1)),
                         FitRows, 1);
}

/// The parameters p that minimise the length of J (residual - design p), J being the Lab
/// sensitivity of the coloured patches: a distance in Lab that is still linear in p.
///
/// A design without full rank gives the shortest of the best p: a parameter that nothing depends on
/// comes out as 0. What is not finite in the input makes p not finite; the call returns all the
/// same. Reentrant.
/// \param design    column j: how parameter j changes the stacked colours
/// \param residual  what the change has to make up for
template <long Parameters>
dlib::matrix<double, Parameters, 1>
fitInLab(const ChartTargets& chart, const dlib::matrix<double, FitRows, Parameters>& design,
         const StackedColors& residual)
{
    const LabSensitivityMatrix sensitivity = chart.LabSensitivity();
    const dlib::matrix<double, FitRows, FitRows> weight =
        dlib::subm(sensitivity, 0, 0, FitRows, FitRows);
    const dlib::matrix<double, FitRows, Parameters> weightedDesign = weight * design;
    const StackedColors weightedResidual = weight * residual;
    return dlib::pinv(weightedDesign) * weightedResidual;
}

} // namespace ColorCalibration
