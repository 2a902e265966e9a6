// SPDX-License-Identifier: Apache-2.0
// A linear fit over the matrices whose rows sum to 1.
#include "matrix3x3.h"

#include "labfit.h"

namespace ColorCalibration {

namespace {

// Matrices are stacked row by row into nine elements.
using StackedMatrix = dlib::matrix<double, 9, 1>;

StackedMatrix identity()
{
    StackedMatrix elements;
    elements = 1, 0, 0, 0, 1, 0, 0, 0, 1;
    return elements;
}

// Its columns span the matrices with zero row sums. The six unknowns are the elements off the
// diagonal.
dlib::matrix<double, 9, 6> neutralBasis()
{
    dlib::matrix<double, 9, 6> basis;
    basis = -1, -1, 0, 0, 0, 0, //
        1, 0, 0, 0, 0, 0,       //
        0, 1, 0, 0, 0, 0,       //
        0, 0, 1, 0, 0, 0,       //
        0, 0, -1, -1, 0, 0,     //
        0, 0, 0, 1, 0, 0,       //
        0, 0, 0, 0, 1, 0,       //
        0, 0, 0, 0, 0, 1,       //
        0, 0, 0, 0, -1, -1;
    return basis;
}

// Times a stacked matrix, it gives that matrix applied to the coloured patches.
dlib::matrix<double, FitRows, 9> applicationMatrix(const PatchColors& colors)
{
    dlib::matrix<double, FitRows, 9> application = dlib::zeros_matrix<double>(FitRows, 9);
    for (int patch = 0; patch < ColoredPatchCount; ++patch) {
        for (int output = 0; output < 3; ++output) {
            for (int input = 0; input < 3; ++input) {
                application(3 * patch + output, 3 * output + input) = colors(patch, input);
            }
        }
    }
    return application;
}

} // namespace

Matrix3x3::Matrix3x3(const ChartTargets& chart)
    : ColorCalibrationStepV1(chart)
{}

Matrix3x3::~Matrix3x3() = default;

void Matrix3x3::Calculate()
{
    Estimate();
    Apply();
}

void Matrix3x3::Estimate()
{
    const dlib::matrix<double, FitRows, 9> application = applicationMatrix(Input);
    const dlib::matrix<double, 9, 6> basis = neutralBasis();
    const dlib::matrix<double, FitRows, 6> design = application * basis;
    const StackedColors residual = stackedTargets(chart()) - application * identity();
    const StackedMatrix elements = identity() + basis * fitInLab(chart(), design, residual);
    m_matrix = dlib::reshape(elements, 3, 3);
}

void Matrix3x3::Apply()
{
    Output = Input * dlib::trans(m_matrix);
    clampOutput();
}

void Matrix3x3::GetMatrix(ColorMatrix& matrix) const
{
    matrix = m_matrix;
}

} // namespace ColorCalibration
