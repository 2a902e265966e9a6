// SPDX-License-Identifier: Apache-2.0
// Forwards to the implementation.
#include "colorcalibrationv1.h"

#include "colorcalibrationv1impl.h"

namespace ColorCalibration {

ColorCalibrationV1::ColorCalibrationV1()
    : m_impl(std::make_unique<ColorCalibrationV1Impl>())
{}

ColorCalibrationV1::~ColorCalibrationV1() = default;

double ColorCalibrationV1::ExecuteStep(int step, int source)
{
    return m_impl->ExecuteStep(step, source);
}

double ColorCalibrationV1::ExecuteAll()
{
    return m_impl->ExecuteAll();
}

void ColorCalibrationV1::GetWhiteBalance(double& red, double& green, double& blue) const
{
    m_impl->GetWhiteBalance(red, green, blue);
}

void ColorCalibrationV1::GetColorMatrix(ColorMatrix& matrix) const
{
    m_impl->GetColorMatrix(matrix);
}

void ColorCalibrationV1::GetColorAdjustment(ColorAdjustment& adjustment) const
{
    m_impl->GetColorAdjustment(adjustment);
}

void ColorCalibrationV1::GetGamma(double& gamma) const
{
    m_impl->GetGamma(gamma);
}

PatchColors ColorCalibrationV1::GetStepColors(int step) const
{
    return m_impl->GetStepColors(step);
}

void ColorCalibrationV1::SetStepColors(int step, const PatchColors& colors)
{
    m_impl->SetStepColors(step, colors);
}

PatchColors ColorCalibrationV1::GetTargetColors() const
{
    return m_impl->GetTargetColors();
}

double ColorCalibrationV1::GetPatchDelta(int step, int patch, bool chromaOnly, bool useOutput) const
{
    return m_impl->GetPatchDelta(step, patch, chromaOnly, useOutput);
}

double ColorCalibrationV1::GetMeanDelta(int step, bool chromaOnly, bool useOutput) const
{
    return m_impl->GetMeanDelta(step, chromaOnly, useOutput);
}

} // namespace ColorCalibration
