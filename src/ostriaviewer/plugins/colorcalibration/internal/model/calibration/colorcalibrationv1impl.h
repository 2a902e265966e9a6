// SPDX-License-Identifier: Apache-2.0
// The chain of calibration steps and the order in which it runs.
#pragma once

#include "ccolorcalibration.h"
#include "charttargets.h"
#include "colorcalibrationstep.h"

#include <map>
#include <memory>

namespace ColorCalibration {

class Bc6x2;
class DigitalGain;
class Matrix3x3;
class Original;
class WhiteBalance;

/// Owns the steps and passes colours from one to the next. See CColorCalibration for the contract.
class ColorCalibrationV1Impl : public CColorCalibration<PatchCount>
{
public:
    ColorCalibrationV1Impl();

    /// Releases all but the step DigitalGain, which is left to the process.
    ~ColorCalibrationV1Impl() override;

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
    using Step = ColorCalibrationStep<PatchCount>;

    /// \return  null if the key is unknown
    Step* findStep(int key) const;

    std::unique_ptr<ChartTargets> m_chart;
    std::map<int, Step*> m_steps;
    std::unique_ptr<Original> m_originalStep;
    DigitalGain* m_digitalGainStep = nullptr;
    std::unique_ptr<WhiteBalance> m_whiteBalanceStep;
    std::unique_ptr<Matrix3x3> m_matrixStep;
    std::unique_ptr<Bc6x2> m_bc6x2Step;
};

} // namespace ColorCalibration
