// SPDX-License-Identifier: Apache-2.0
// Runs the calibration steps one after the other.
#include "colorcalibrationv1impl.h"

#include "bc6x2.h"
#include "digitalgain.h"
#include "matrix3x3.h"
#include "original.h"
#include "stepkey.h"
#include "whitebalance.h"

namespace ColorCalibration {

namespace {

constexpr double UnknownStep = -1.0;

// A function of its own, so that leak checkers can tell this object from any other: it is never
// released.
DigitalGain* createDigitalGain(const ChartTargets& chart)
{
    return new DigitalGain(chart);
}

// Through a copy, because a step may be its own source.
void feed(ColorCalibrationStep<PatchCount>& step, const ColorCalibrationStep<PatchCount>& source)
{
    const PatchColors colors = source.Output;
    step.SetColors(colors);
}

} // namespace

ColorCalibrationV1Impl::ColorCalibrationV1Impl()
{
    m_chart = std::make_unique<ChartTargets>();
    m_originalStep = std::make_unique<Original>(*m_chart, 1.0);
    m_digitalGainStep = createDigitalGain(*m_chart);
    m_whiteBalanceStep = std::make_unique<WhiteBalance>(*m_chart);
    m_matrixStep = std::make_unique<Matrix3x3>(*m_chart);
    m_bc6x2Step = std::make_unique<Bc6x2>(*m_chart);
    m_steps = {{StepKey::Original, m_originalStep.get()},
               {StepKey::DigitalGain, m_digitalGainStep},
               {StepKey::WhiteBalance, m_whiteBalanceStep.get()},
               {StepKey::Matrix3x3, m_matrixStep.get()},
               {StepKey::Bc6x2, m_bc6x2Step.get()}};
}

ColorCalibrationV1Impl::~ColorCalibrationV1Impl()
{
    m_bc6x2Step.reset();
    m_matrixStep.reset();
    m_whiteBalanceStep.reset();
    m_originalStep.reset();
    m_chart.reset();
}

double ColorCalibrationV1Impl::ExecuteStep(int step, int source)
{
    Step* const target = findStep(step);
    const Step* const origin = findStep(source);
    if (!target || !origin) {
        return UnknownStep;
    }
    if (step != StepKey::Original) {
        feed(*target, *origin);
    }
    target->Calculate();
    return target->MeanDelta(false, true);
}

double ColorCalibrationV1Impl::ExecuteAll()
{
    m_originalStep->Calculate();
    feed(*m_digitalGainStep, *m_originalStep);
    m_digitalGainStep->Calculate();
    feed(*m_whiteBalanceStep, *m_originalStep);
    m_whiteBalanceStep->Calculate();
    feed(*m_matrixStep, *m_whiteBalanceStep);
    m_matrixStep->Calculate();
    feed(*m_bc6x2Step, *m_matrixStep);
    m_bc6x2Step->Calculate();
    return m_bc6x2Step->MeanDelta(false, true);
}

void ColorCalibrationV1Impl::GetWhiteBalance(double& red, double& green, double& blue) const
{
    m_whiteBalanceStep->GetGains(red, green, blue);
}

void ColorCalibrationV1Impl::GetColorMatrix(ColorMatrix& matrix) const
{
    m_matrixStep->GetMatrix(matrix);
}

void ColorCalibrationV1Impl::GetColorAdjustment(ColorAdjustment& adjustment) const
{
    m_bc6x2Step->GetParameters(adjustment);
}

void ColorCalibrationV1Impl::GetGamma(double& gamma) const
{
    gamma = 0.45;
}

PatchColors ColorCalibrationV1Impl::GetStepColors(int step) const
{
    const Step* const found = findStep(step);
    if (!found) {
        return dlib::zeros_matrix<double>(PatchCount, 3);
    }
    return found->Output;
}

void ColorCalibrationV1Impl::SetStepColors(int step, const PatchColors& colors)
{
    if (Step* const found = findStep(step)) {
        found->SetColors(colors);
    }
}

PatchColors ColorCalibrationV1Impl::GetTargetColors() const
{
    return m_chart->TargetColors();
}

double ColorCalibrationV1Impl::GetPatchDelta(int step, int patch, bool chromaOnly,
                                             bool useOutput) const
{
    const Step* const found = findStep(step);
    return found ? found->Delta(patch, chromaOnly, useOutput) : UnknownStep;
}

double ColorCalibrationV1Impl::GetMeanDelta(int step, bool chromaOnly, bool useOutput) const
{
    const Step* const found = findStep(step);
    return found ? found->MeanDelta(chromaOnly, useOutput) : UnknownStep;
}

ColorCalibrationV1Impl::Step* ColorCalibrationV1Impl::findStep(int key) const
{
    const auto found = m_steps.find(key);
    return found == m_steps.end() ? nullptr : found->second;
}

} // namespace ColorCalibration
