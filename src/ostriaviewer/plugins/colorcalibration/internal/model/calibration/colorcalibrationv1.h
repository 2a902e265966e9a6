// SPDX-License-Identifier: Apache-2.0
// The handle by which the calibration engine is held.
#pragma once

#include "ccolorcalibration.h"

#include <memory>

namespace ColorCalibration {

class ColorCalibrationV1Impl;

/// Forwards everything to an implementation of its own, so that its users need not see the steps.
/// See CColorCalibration for the contract.
class ColorCalibrationV1 : public CColorCalibration<PatchCount>
{
public:
    ColorCalibrationV1();
    ~ColorCalibrationV1() override;

    double ExecuteStep(int step, int source) override;
    double ExecuteAll() override;
    void GetWhiteBalance(double& red, double& green, double& blue) const override;
    void GetColorMatrix(ColorMatrix& matrix) const override;
    void GetColorAdjustment(ColorAdjustment& adjustment) const override;
    void GetGamma(double& gamma) const override;
    PatchColors GetStepColors(int step) const override;
    void SetStepColors(int step, const PatchColors& colors) override;
    PatchColors GetTargetColors() const override;
    double GetPatchDelta(int step, int patch, bool chromaOnly, bool useOutput) const override;
    double GetMeanDelta(int step, bool chromaOnly, bool useOutput) const override;

private:
    std::unique_ptr<ColorCalibrationV1Impl> m_impl;
};

} // namespace ColorCalibration
