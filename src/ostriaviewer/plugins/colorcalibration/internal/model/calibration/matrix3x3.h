// SPDX-License-Identifier: Apache-2.0
// The colour matrix that brings the coloured patches nearest to their targets.
#pragma once

#include "colorcalibrationstepv1.h"

namespace ColorCalibration {

/// Undoes the mixing of the channels in the camera, and leaves neutral colours neutral: each row of
/// the matrix sums to 1. Reentrant.
class Matrix3x3 : public ColorCalibrationStepV1
{
public:
    /// \param chart  lent, outlives the step
    explicit Matrix3x3(const ChartTargets& chart);
    ~Matrix3x3() override;

    /// Estimate, then Apply.
    void Calculate() override;

    /// Fits the matrix to the coloured patches of Input, see fitInLab. The neutral patches take no
    /// part. A degenerate Input gives the matrix that is nearest to the identity; nothing bounds
    /// the elements.
    void Estimate();

    /// Output is the matrix applied to each colour of Input, clamped to 0 to 255.
    void Apply();

    /// \param matrix  receives the matrix; the identity until the first Estimate
    void GetMatrix(ColorMatrix& matrix) const;

private:
    ColorMatrix m_matrix = dlib::identity_matrix<double, 3>();
};

} // namespace ColorCalibration
