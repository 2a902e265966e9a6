// SPDX-License-Identifier: Apache-2.0
// The calibration engine as its users see it: measured colours in, camera settings out.
#pragma once

#include "patchcolors.h"

namespace ColorCalibration {

/// Computes the camera's colour settings from the colours of a chart: white balance, colour matrix,
/// hue and saturation of six colours, gamma.
///
/// Colours are on 0 to 255 in linear light, in chart order; black level and gamma are off in the
/// images they come from. Begin with SetStepColors(StepKey::Original, measured), then ExecuteAll or
/// ExecuteStep; the getters answer for the last run, and before the first run with neutral values.
/// Nothing carries over from one run to the next. Steps are named by StepKey; any other key is no
/// error. Reentrant: one thread at a time may use an instance.
template <int PatchTotal>
class CColorCalibration
{
public:
    using Colors = dlib::matrix<double, PatchTotal, 3>;

    CColorCalibration() = default;
    CColorCalibration(const CColorCalibration&) = delete;
    CColorCalibration& operator=(const CColorCalibration&) = delete;
    virtual ~CColorCalibration() = default;

    /// Feeds a step with the output of another and runs it. Original keeps what it was given.
    /// \return  mean CIEDE2000 of the step's output to the targets; -1.0 if a key is unknown, and
    ///          nothing has changed then
    /// \throws std::runtime_error  as ExecuteAll, by the step Bc6x2
    virtual double ExecuteStep(int step, int source) = 0;

    /// Runs the whole chain on the colours of the step Original.
    /// \return  mean CIEDE2000 of the last step's output to the targets
    /// \throws std::runtime_error  "Cannot determine hue sector on gray image": a coloured patch is
    ///                             exactly gray after the matrix, as clipped ones are; the results
    ///                             of the steps before stand
    virtual double ExecuteAll() = 0;

    /// Factors per channel, the smallest of them 1. NaN if all gray patches are saturated or one of
    /// those that count is black; infinite for a channel that is 0 in all of them.
    virtual void GetWhiteBalance(double& red, double& green, double& blue) const = 0;

    /// Each row of the matrix sums to 1.
    virtual void GetColorMatrix(ColorMatrix& matrix) const = 0;

    /// Not limited to what a camera accepts.
    virtual void GetColorAdjustment(ColorAdjustment& adjustment) const = 0;

    /// The exponent of the camera's output curve; a constant.
    virtual void GetGamma(double& gamma) const = 0;

    /// \return  what the step makes of its input; zeros if the key is unknown
    virtual Colors GetStepColors(int step) const = 0;

    /// Loads the step's input and output; does nothing if the key is unknown.
    virtual void SetStepColors(int step, const Colors& colors) = 0;

    /// \return  the colours that the patches should have
    virtual Colors GetTargetColors() const = 0;

    /// \param patch       0 to PatchTotal - 1, not checked
    /// \param chromaOnly  leaves out the difference in lightness
    /// \param useOutput   asks for the corrected colour instead of the one that came in
    /// \return  CIEDE2000 of the patch to its target; -1.0 if the key is unknown
    virtual double GetPatchDelta(int step, int patch, bool chromaOnly, bool useOutput) const = 0;

    /// \return  the mean of GetPatchDelta over the chart; -1.0 if the key is unknown
    virtual double GetMeanDelta(int step, bool chromaOnly, bool useOutput) const = 0;
};

} // namespace ColorCalibration
