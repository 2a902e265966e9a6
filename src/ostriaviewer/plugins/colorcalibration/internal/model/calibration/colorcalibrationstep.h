// SPDX-License-Identifier: Apache-2.0
// One correction in the chain of the calibration, seen from outside.
#pragma once

#include "dlibmatrix.h"

namespace ColorCalibration {

/// Base of all calibration steps: a step takes the colours that reach it, derives the parameters of
/// its correction and offers the corrected colours to the next step. Reentrant.
template <int PatchTotal>
class ColorCalibrationStep
{
public:
    using Colors = dlib::matrix<double, PatchTotal, 3>;

    ColorCalibrationStep() = default;
    ColorCalibrationStep(const ColorCalibrationStep&) = delete;
    ColorCalibrationStep& operator=(const ColorCalibrationStep&) = delete;
    virtual ~ColorCalibrationStep() = default;

    /// How far a patch lies from its target.
    /// \param patch       0 to PatchTotal - 1, not checked
    /// \param chromaOnly  leaves out the difference in lightness
    /// \param useOutput   asks for the corrected colour instead of the one that came in
    /// \return  CIEDE2000, not negative; NaN if the colour holds a NaN
    virtual double Delta(int patch, bool chromaOnly, bool useOutput) const = 0;

    /// Derives the parameters from Input and produces Output.
    virtual void Calculate() = 0;

    /// Loads both Input and Output, so that a step may feed others before it was calculated.
    void SetColors(const Colors& colors)
    {
        Input = colors;
        Output = colors;
    }

    /// \return  the mean of Delta over all patches
    double MeanDelta(bool chromaOnly, bool useOutput) const
    {
        double sum = 0.0;
        for (int patch = 0; patch < PatchTotal; ++patch) {
            sum += Delta(patch, chromaOnly, useOutput);
        }
        return sum / static_cast<double>(PatchTotal);
    }

    /// The colours that the step corrects, 0 to 255 in linear light; zeros at first.
    Colors Input = dlib::zeros_matrix<double>(PatchTotal, 3);

    /// The corrected colours, 0 to 255 after Calculate; zeros at first.
    Colors Output = dlib::zeros_matrix<double>(PatchTotal, 3);
};

} // namespace ColorCalibration
