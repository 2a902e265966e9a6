// SPDX-License-Identifier: Apache-2.0
// The colour matrix: identities, what it must never do, and degenerate input.
#include "matrix3x3.h"

#include "simulatedcamera.h"
#include "testcolors.h"

#include <cmath>

namespace ColorCalibration {

namespace {

struct LoadedMatrix
{
    explicit LoadedMatrix(const PatchColors& colors)
    {
        step.SetColors(colors);
        step.Calculate();
    }

    ColorMatrix matrix() const
    {
        ColorMatrix result;
        step.GetMatrix(result);
        return result;
    }

    Matrix3x3 step{TestChart};
};

void expectMatrix(const ColorMatrix& matrix, const ColorMatrix& expected, double tolerance)
{
    EXPECT_LE(dlib::max(dlib::abs(matrix - expected)), tolerance) << matrix;
}

ColorMatrix identityMatrix()
{
    return dlib::identity_matrix<double>(3);
}

// Rows sum to 1, as those of the fit do.
ColorMatrix crosstalk()
{
    ColorMatrix matrix;
    matrix = 0.7, 0.2, 0.1, //
        0.15, 0.6, 0.25,    //
        0.05, 0.3, 0.65;
    return matrix;
}

} // namespace

TEST(Matrix3x3, IsTheIdentityAtTheTargets)
{
    PatchColors colors = targetColors();
    setPatch(colors, 20, 1, 2, 3);
    const LoadedMatrix loaded(colors);
    expectMatrix(loaded.matrix(), identityMatrix(), 0.0);
    expectColors(loaded.step.Output, colors);
}

// Measured = crosstalk * target, so the matrix must be the inverse of the crosstalk. Its rows sum
// to 1 as well.
TEST(Matrix3x3, UndoesAMixingOfTheChannels)
{
    const LoadedMatrix loaded(targetColors() * dlib::trans(crosstalk()));
    expectMatrix(loaded.matrix(), dlib::inv(crosstalk()), 1e-12);
    expectMatrix(loaded.matrix() * crosstalk(), identityMatrix(), 1e-12);
    expectColors(loaded.step.Output, targetColors(), 1e-10);
}

TEST(Matrix3x3, RowsSumToOneSoThatGrayStaysGray)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        PatchColors colors = simulatedResponse(seed);
        setPatch(colors, 20, 123.4, 123.4, 123.4);
        setPatch(colors, 21, 255, 255, 255);
        setPatch(colors, 22, 0, 0, 0);
        const LoadedMatrix loaded(colors);
        const Color sums = dlib::trans(dlib::sum_cols(loaded.matrix()));
        EXPECT_LE(dlib::max(dlib::abs(sums - 1.0)), 1e-14) << seed;
        expectPatch(loaded.step.Output, 20, makeColor(123.4, 123.4, 123.4), 1e-11);
        expectPatch(loaded.step.Output, 21, makeColor(255, 255, 255), 1e-11);
        expectPatch(loaded.step.Output, 22, makeColor(0, 0, 0));
    }
}

TEST(Matrix3x3, NeutralPatchesDoNotMoveTheMatrix)
{
    const PatchColors colors = simulatedResponse(1);
    PatchColors changed = colors;
    for (int patch = 18; patch < PatchCount; ++patch) {
        setPatch(changed, patch, 200, 10 * (patch - 17), NaN);
    }
    const LoadedMatrix loaded(colors);
    const LoadedMatrix reloaded(changed);
    expectMatrix(reloaded.matrix(), loaded.matrix(), 0.0);
    expectPatch(reloaded.step.Output, 17, dlib::rowm(loaded.step.Output, 17));
    EXPECT_NE(reloaded.step.Output(18, 0), loaded.step.Output(18, 0));
}

TEST(Matrix3x3, EachColoredPatchMovesTheMatrix)
{
    const ColorMatrix before = LoadedMatrix(simulatedResponse(1)).matrix();
    for (int patch = 0; patch < 18; ++patch) {
        PatchColors changed = simulatedResponse(1);
        setPatch(changed, patch, 40, 80, 60);
        const ColorMatrix after = LoadedMatrix(changed).matrix();
        EXPECT_GT(dlib::max(dlib::abs(after - before)), 1e-4) << patch;
    }
}

TEST(Matrix3x3, AppliesItsRowsToTheChannels)
{
    LoadedMatrix loaded(targetColors() * dlib::trans(crosstalk()));
    const ColorMatrix matrix = loaded.matrix();
    loaded.step.SetColors(allPatches(100, 110, 120));
    loaded.step.Apply();
    const double red = matrix(0, 0) * 100 + matrix(0, 1) * 110 + matrix(0, 2) * 120;
    const double green = matrix(1, 0) * 100 + matrix(1, 1) * 110 + matrix(1, 2) * 120;
    const double blue = matrix(2, 0) * 100 + matrix(2, 1) * 110 + matrix(2, 2) * 120;
    expectColors(loaded.step.Output, allPatches(red, green, blue), 1e-12);
}

// Red times an inverse of a mixing is more than red, and less than no green.
TEST(Matrix3x3, OutputStaysOnTheScaleAndDeltaSeesItThere)
{
    LoadedMatrix loaded(targetColors() * dlib::trans(crosstalk()));
    loaded.step.SetColors(allPatches(255, 0, 0));
    loaded.step.Apply();
    ASSERT_GT(loaded.matrix()(0, 0), 1.0);
    ASSERT_LT(loaded.matrix()(1, 0), 0.0);
    expectColors(loaded.step.Output, allPatches(255, 0, 255 * loaded.matrix()(2, 0)), 1e-12);
    const double clampedDelta = loaded.step.Delta(8, false, true);
    loaded.step.SetColors(loaded.step.Output);
    EXPECT_EQ(loaded.step.Delta(8, false, false), clampedDelta);
}

TEST(Matrix3x3, GrayOnAllColoredPatchesGivesTheIdentity)
{
    for (const double level : {0.0, 1e-300, 100.0, 255.0}) {
        const LoadedMatrix loaded(allPatches(level, level, level));
        expectMatrix(loaded.matrix(), identityMatrix(), 0.0);
    }
}

// The fit decides only where the one colour goes. Of all the matrices that take it there, the one
// with the smallest correction changes a row's elements in proportion to the channel differences.
TEST(Matrix3x3, OneColorOnAllPatchesGivesTheSmallestCorrection)
{
    const LoadedMatrix loaded(allPatches(60, 100, 90));
    const ColorMatrix correction = loaded.matrix() - identityMatrix();
    EXPECT_NEAR(correction(0, 1) / correction(0, 2), 40.0 / 30.0, 1e-10);
    EXPECT_NEAR(correction(1, 0) / correction(1, 2), -40.0 / -10.0, 1e-10);
    EXPECT_NEAR(correction(2, 0) / correction(2, 1), -30.0 / 10.0, 1e-10);

    // At the best place the weighted errors of all patches balance.
    const LabSensitivityMatrix sensitivity = TestChart.LabSensitivity();
    const dlib::matrix<double, 3, 1> place = loaded.matrix() * dlib::trans(makeColor(60, 100, 90));
    dlib::matrix<double, 3, 1> balance = dlib::zeros_matrix<double>(3, 1);
    double size = 0.0;
    for (int patch = 0; patch < 18; ++patch) {
        const ColorMatrix weight = dlib::subm(sensitivity, 3 * patch, 3 * patch, 3, 3);
        const dlib::matrix<double, 3, 1> error =
            dlib::trans(dlib::rowm(targetColors(), patch)) - place;
        const dlib::matrix<double, 3, 1> pull = dlib::trans(weight) * weight * error;
        balance += pull;
        size += dlib::length(pull);
    }
    EXPECT_LT(dlib::length(balance), 1e-12 * size);
}

TEST(Matrix3x3, TinyAndHugeColorsAreFitted)
{
    for (const double scale : {1e-100, 1e100}) {
        const ColorMatrix matrix = LoadedMatrix(simulatedResponse(1) * scale).matrix();
        const Color sums = dlib::trans(dlib::sum_cols(matrix));
        EXPECT_TRUE(std::isfinite(dlib::sum(matrix))) << scale;
        if (scale > 1) {
            EXPECT_LE(dlib::max(dlib::abs(sums - 1.0)), 1e-12);
        }
    }
}

TEST(Matrix3x3, InputThatIsNotFiniteEndsInAnOutputOnTheScale)
{
    for (const double spoiled : {NaN, Infinity, -Infinity}) {
        PatchColors colors = simulatedResponse(1);
        colors(4, 1) = spoiled;
        const LoadedMatrix loaded(colors);
        EXPECT_FALSE(std::isfinite(dlib::sum(loaded.matrix())));
        for (const double value : loaded.step.Output) {
            EXPECT_GE(value, 0.0);
            EXPECT_LE(value, 255.0);
        }
    }
}

} // namespace ColorCalibration
