// SPDX-License-Identifier: Apache-2.0
// The driver: order of the steps, unknown keys, what stands before and after a run.
#include "colorcalibrationv1.h"

#include "allocationcounter.h"
#include "bc6x2.h"
#include "matrix3x3.h"
#include "original.h"
#include "simulatedcamera.h"
#include "stepkey.h"
#include "testcolors.h"
#include "whitebalance.h"

#include <gmock/gmock.h>

#include <climits>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <type_traits>

namespace ColorCalibration {

namespace {

Color whiteBalanceOf(const CColorCalibration<24>& calibration)
{
    Color gains;
    calibration.GetWhiteBalance(gains(0), gains(1), gains(2));
    return gains;
}

ColorMatrix matrixOf(const CColorCalibration<24>& calibration)
{
    ColorMatrix matrix;
    calibration.GetColorMatrix(matrix);
    return matrix;
}

ColorAdjustment adjustmentOf(const CColorCalibration<24>& calibration)
{
    ColorAdjustment adjustment;
    calibration.GetColorAdjustment(adjustment);
    return adjustment;
}

// Everything that can be asked about the steps' colours.
void expectSameSteps(const ColorCalibrationV1& actual, const ColorCalibrationV1& expected)
{
    for (int step = 0; step < 5; ++step) {
        expectColors(actual.GetStepColors(step), expected.GetStepColors(step));
        for (int patch = 0; patch < PatchCount; ++patch) {
            EXPECT_EQ(actual.GetPatchDelta(step, patch, false, false),
                      expected.GetPatchDelta(step, patch, false, false));
        }
    }
    EXPECT_EQ(whiteBalanceOf(actual), whiteBalanceOf(expected));
    EXPECT_EQ(matrixOf(actual), matrixOf(expected));
    EXPECT_EQ(adjustmentOf(actual), adjustmentOf(expected));
}

void run(ColorCalibrationV1& calibration, unsigned seed)
{
    calibration.SetStepColors(StepKey::Original, simulatedResponse(seed));
    calibration.ExecuteAll();
}

constexpr int UnknownKeys[] = {-1, 5, 7, 9, INT_MIN, INT_MAX};

} // namespace

TEST(ColorCalibrationV1, IsUsedThroughItsInterface)
{
    static_assert(std::is_base_of_v<CColorCalibration<24>, ColorCalibrationV1>);
    static_assert(std::has_virtual_destructor_v<CColorCalibration<24>>);
    const std::unique_ptr<CColorCalibration<24>> calibration =
        std::make_unique<ColorCalibrationV1>();
    calibration->SetStepColors(0, simulatedResponse(1));
    EXPECT_GT(calibration->ExecuteAll(), 0.0);
}

TEST(ColorCalibrationV1, GammaIsKnownBeforeAnyRun)
{
    double gamma = 0.0;
    ColorCalibrationV1().GetGamma(gamma);
    EXPECT_EQ(gamma, 0.45);
}

TEST(ColorCalibrationV1, IsBlackAndNeutralBeforeAnyRun)
{
    const ColorCalibrationV1 calibration;
    for (int step = 0; step < 5; ++step) {
        expectColors(calibration.GetStepColors(step), allPatches(0, 0, 0));
    }
    EXPECT_EQ(whiteBalanceOf(calibration), makeColor(1, 1, 1));
    EXPECT_EQ(matrixOf(calibration), ColorMatrix(dlib::identity_matrix<double>(3)));
    EXPECT_EQ(dlib::sum(adjustmentOf(calibration)), 6.0);
}

TEST(ColorCalibrationV1, TargetColorsAreThoseOfTheChart)
{
    expectColors(ColorCalibrationV1().GetTargetColors(), targetColors());
}

// The targets' own gray patches are not quite neutral, and the white balance makes them so. Their
// channels over the largest one add up to: 19: 147.89/151.31, 150.94/151.31, 1; 20: 90.528/93.746,
// 93.179/93.746, 1; 21: 48.483/49.246, 48.92/49.246, 1.
TEST(ColorCalibrationV1, TargetsAsInputAreNotLeftAlone)
{
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, targetColors());
    EXPECT_NEAR(calibration.ExecuteAll(), 0.33, 0.005);
    const Color gains = whiteBalanceOf(calibration);
    const double red = 147.89 / 151.31 + 90.528 / 93.746 + 48.483 / 49.246;
    const double green = 150.94 / 151.31 + 93.179 / 93.746 + 48.92 / 49.246;
    EXPECT_NEAR(gains(0), 3.0 / red, 1e-15);
    EXPECT_NEAR(gains(1), 3.0 / green, 1e-15);
    EXPECT_EQ(gains(2), 1.0);
    EXPECT_NEAR(gains(0), 1.0247, 5e-5);
    EXPECT_NEAR(gains(1), 1.0051, 5e-5);
}

TEST(ColorCalibrationV1, WhiteBalanceStartsFromTheOriginalColors)
{
    WhiteBalance whiteBalance(TestChart);
    Matrix3x3 matrix(TestChart);
    Bc6x2 adjustment(TestChart);
    whiteBalance.SetColors(simulatedResponse(1));
    whiteBalance.Calculate();
    matrix.SetColors(whiteBalance.Output);
    matrix.Calculate();
    adjustment.SetColors(matrix.Output);
    adjustment.Calculate();

    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, simulatedResponse(1));
    EXPECT_EQ(calibration.ExecuteAll(), adjustment.MeanDelta(false, true));
    expectColors(calibration.GetStepColors(StepKey::Original), simulatedResponse(1));
    expectColors(calibration.GetStepColors(StepKey::WhiteBalance), whiteBalance.Output);
    expectColors(calibration.GetStepColors(StepKey::Matrix3x3), matrix.Output);
    expectColors(calibration.GetStepColors(StepKey::Bc6x2), adjustment.Output);
    for (const bool chromaOnly : {false, true}) {
        for (const bool useOutput : {false, true}) {
            EXPECT_EQ(calibration.GetMeanDelta(StepKey::Matrix3x3, chromaOnly, useOutput),
                      matrix.MeanDelta(chromaOnly, useOutput));
            EXPECT_EQ(calibration.GetPatchDelta(StepKey::Bc6x2, 7, chromaOnly, useOutput),
                      adjustment.Delta(7, chromaOnly, useOutput));
        }
    }
}

TEST(ColorCalibrationV1, DigitalGainStartsFromTheOriginalColorsToo)
{
    ColorCalibrationV1 calibration;
    PatchColors colors = simulatedResponse(1);
    setPatch(colors, 19, 75, 100, 50);
    setPatch(colors, 3, 10, 20, 30);
    calibration.SetStepColors(StepKey::Original, colors);
    calibration.ExecuteAll();
    expectPatch(calibration.GetStepColors(StepKey::DigitalGain), 19, makeColor(112.5, 150, 75));
    expectPatch(calibration.GetStepColors(StepKey::DigitalGain), 3, makeColor(15, 30, 45));
}

TEST(ColorCalibrationV1, StepByStepIsTheSameAsAllAtOnce)
{
    ColorCalibrationV1 atOnce;
    run(atOnce, 1);
    ColorCalibrationV1 byStep;
    byStep.SetStepColors(StepKey::Original, simulatedResponse(1));
    byStep.ExecuteStep(StepKey::Original, StepKey::Original);
    byStep.ExecuteStep(StepKey::DigitalGain, StepKey::Original);
    byStep.ExecuteStep(StepKey::WhiteBalance, StepKey::Original);
    byStep.ExecuteStep(StepKey::Matrix3x3, StepKey::WhiteBalance);
    const double mean = byStep.ExecuteStep(StepKey::Bc6x2, StepKey::Matrix3x3);
    expectSameSteps(byStep, atOnce);
    EXPECT_EQ(mean, atOnce.GetMeanDelta(StepKey::Bc6x2, false, true));
}

TEST(ColorCalibrationV1, WhiteBalanceAloneNeedsNoRunOfTheOriginalStep)
{
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, simulatedResponse(1));
    const double mean = calibration.ExecuteStep(2, 0);
    EXPECT_EQ(mean, calibration.GetMeanDelta(2, false, true));
    ColorCalibrationV1 complete;
    run(complete, 1);
    EXPECT_EQ(whiteBalanceOf(calibration), whiteBalanceOf(complete));
    expectColors(calibration.GetStepColors(3), allPatches(0, 0, 0));
}

TEST(ColorCalibrationV1, OriginalIsNeverFedFromAnotherStep)
{
    ColorCalibrationV1 calibration;
    run(calibration, 1);
    calibration.ExecuteStep(StepKey::Original, StepKey::Bc6x2);
    expectColors(calibration.GetStepColors(StepKey::Original), simulatedResponse(1));
}

TEST(ColorCalibrationV1, StepMayBeItsOwnSource)
{
    ColorCalibrationV1 calibration;
    run(calibration, 1);
    ColorCalibrationV1 expected;
    expected.SetStepColors(StepKey::Original, calibration.GetStepColors(StepKey::WhiteBalance));
    expected.ExecuteStep(StepKey::WhiteBalance, StepKey::Original);
    calibration.ExecuteStep(StepKey::WhiteBalance, StepKey::WhiteBalance);
    EXPECT_EQ(whiteBalanceOf(calibration), whiteBalanceOf(expected));
    expectColors(calibration.GetStepColors(StepKey::WhiteBalance),
                 expected.GetStepColors(StepKey::WhiteBalance));
}

TEST(ColorCalibrationV1, UnknownKeysChangeNothing)
{
    ColorCalibrationV1 calibration;
    ColorCalibrationV1 untouched;
    run(calibration, 1);
    run(untouched, 1);
    // Not yet calculated, so that a calculation would show.
    calibration.SetStepColors(StepKey::WhiteBalance, simulatedResponse(3));
    untouched.SetStepColors(StepKey::WhiteBalance, simulatedResponse(3));
    for (const int unknown : UnknownKeys) {
        EXPECT_EQ(calibration.ExecuteStep(unknown, 0), -1.0);
        EXPECT_EQ(calibration.ExecuteStep(2, unknown), -1.0);
        EXPECT_EQ(calibration.ExecuteStep(0, unknown), -1.0);
        EXPECT_EQ(calibration.GetMeanDelta(unknown, false, true), -1.0);
        EXPECT_EQ(calibration.GetPatchDelta(unknown, 3, false, true), -1.0);
        calibration.SetStepColors(unknown, simulatedResponse(2));
        expectColors(calibration.GetStepColors(unknown), allPatches(0, 0, 0));
    }
    expectSameSteps(calibration, untouched);
}

TEST(ColorCalibrationV1, SetStepColorsLoadsAnyStep)
{
    ColorCalibrationV1 calibration;
    for (int step = 0; step < 5; ++step) {
        calibration.SetStepColors(step, simulatedResponse(step));
        expectColors(calibration.GetStepColors(step), simulatedResponse(step));
        EXPECT_EQ(calibration.GetMeanDelta(step, false, false),
                  calibration.GetMeanDelta(step, false, true));
    }
}

TEST(ColorCalibrationV1, NothingCarriesOverFromOneRunToTheNext)
{
    ColorCalibrationV1 reused;
    run(reused, 1);
    run(reused, 2);
    ColorCalibrationV1 fresh;
    run(fresh, 2);
    expectSameSteps(reused, fresh);
}

// The matrix keeps gray as it is, so a coloured patch that is gray after the white balance reaches
// the last step as gray.
TEST(ColorCalibrationV1, GrayColoredPatchEndsTheRunWithTheEarlierResultsInPlace)
{
    ColorCalibrationV1 calibration;
    run(calibration, 1);
    const ColorAdjustment before = adjustmentOf(calibration);
    PatchColors colors = targetColors();
    for (int patch = 19; patch <= 21; ++patch) {
        setPatch(colors, patch, 100, 100, 100);
    }
    setPatch(colors, 4, 0, 0, 0);
    calibration.SetStepColors(StepKey::Original, colors);
    EXPECT_THAT(
        [&]() { calibration.ExecuteAll(); },
        testing::ThrowsMessage<std::runtime_error>("Cannot determine hue sector on gray image"));
    EXPECT_EQ(whiteBalanceOf(calibration), makeColor(1, 1, 1));
    EXPECT_EQ(adjustmentOf(calibration), before);
    expectPatch(calibration.GetStepColors(StepKey::Matrix3x3), 4, makeColor(0, 0, 0));
}

TEST(ColorCalibrationV1, SaturatedGrayPatchesGiveNanAndThenGray)
{
    PatchColors colors = simulatedResponse(1);
    for (int patch = 19; patch <= 21; ++patch) {
        setPatch(colors, patch, 255, 251, 250);
    }
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, colors);
    EXPECT_THROW(calibration.ExecuteAll(), std::runtime_error);
    for (const double gain : whiteBalanceOf(calibration)) {
        EXPECT_TRUE(std::isnan(gain));
    }
    expectColors(calibration.GetStepColors(StepKey::WhiteBalance), allPatches(255, 255, 255));
    EXPECT_EQ(matrixOf(calibration), ColorMatrix(dlib::identity_matrix<double>(3)));
}

TEST(ColorCalibrationV1, WhiteBalanceAloneOfSaturatedGrayPatchesDoesNotThrow)
{
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, allPatches(255, 255, 255));
    EXPECT_TRUE(std::isfinite(calibration.ExecuteStep(2, 0)));
    EXPECT_TRUE(std::isnan(whiteBalanceOf(calibration)(1)));
}

TEST(ColorCalibrationV1, InputThatIsNotFiniteIsTakenForWhiteOrBlack)
{
    PatchColors spoiled = simulatedResponse(1);
    setPatch(spoiled, 5, NaN, -Infinity, Infinity);
    PatchColors clean = simulatedResponse(1);
    setPatch(clean, 5, 255, 0, 255);
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, spoiled);
    ColorCalibrationV1 expected;
    expected.SetStepColors(StepKey::Original, clean);
    EXPECT_EQ(calibration.ExecuteAll(), expected.ExecuteAll());
    EXPECT_EQ(adjustmentOf(calibration), adjustmentOf(expected));
}

TEST(ColorCalibrationV1, BlackInputThrowsInsteadOfAnswering)
{
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(StepKey::Original, allPatches(0, 0, 0));
    EXPECT_THROW(calibration.ExecuteAll(), std::runtime_error);
}

// dlib keeps matrices of more than 256 bytes on the heap: some of the fits' and each copy of the 24
// targets. What must not happen is a block for each of the thousands of values.
TEST(ColorCalibrationV1, RunTakesFewBlocksAndGivesThemBack)
{
    ColorCalibrationV1 calibration;
    run(calibration, 1);
    const long taken = allocations();
    const long live = liveBlocks();
    calibration.ExecuteAll();
    EXPECT_LT(allocations() - taken, 100);
    EXPECT_EQ(liveBlocks(), live);
}

// The step DigitalGain, its colour formulas and its two sets of colours stay behind, see the
// destructor.
TEST(ColorCalibrationV1, GivesBackAllButTheDigitalGainStep)
{
    const long before = liveBlocks();
    {
        ColorCalibrationV1 calibration;
        run(calibration, 1);
        EXPECT_GT(liveBlocks() - before, 10);
    }
    EXPECT_EQ(liveBlocks() - before, 4);
}

} // namespace ColorCalibration
