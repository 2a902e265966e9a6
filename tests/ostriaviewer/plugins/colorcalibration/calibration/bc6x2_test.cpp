// SPDX-License-Identifier: Apache-2.0
// Hue and saturation of six colours: sectors, the correction of a colour, the fit.
#include "bc6x2.h"

#include "matrix3x3.h"
#include "referencecalibration.h"
#include "simulatedcamera.h"
#include "testcolors.h"

#include <gmock/gmock.h>

#include <cmath>
#include <stdexcept>

namespace ColorCalibration {

namespace {

ColorAdjustment neutral()
{
    ColorAdjustment parameters;
    parameters = 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1;
    return parameters;
}

// All twelve different, so that each one that is taken for another shows.
ColorAdjustment distinct()
{
    ColorAdjustment parameters;
    parameters = 0.11, -0.07, 0.05, 0.13, -0.03, 0.02, 1.2, 0.9, 1.1, 0.8, 1.05, 0.95;
    return parameters;
}

ColorAdjustment parametersOf(const Bc6x2& step)
{
    ColorAdjustment parameters;
    step.GetParameters(parameters);
    return parameters;
}

void expectParameters(const ColorAdjustment& actual, const ColorAdjustment& expected,
                      double tolerance)
{
    EXPECT_LE(dlib::max(dlib::abs(actual - expected)), tolerance) << dlib::trans(actual);
}

void expectColor(const Color& actual, const Color& expected, double tolerance = 1e-12)
{
    EXPECT_LE(dlib::max(dlib::abs(actual - expected)), tolerance) << actual << expected;
}

Color adjusted(double red, double green, double blue, const ColorAdjustment& parameters)
{
    return Bc6x2::AdjustColor(makeColor(red, green, blue), parameters);
}

} // namespace

TEST(Bc6x2, SectorsFollowTheHexagonOfHues)
{
    EXPECT_EQ(Bc6x2::HueSector(9, 5, 1), 0);
    EXPECT_EQ(Bc6x2::HueSector(5, 9, 1), 1);
    EXPECT_EQ(Bc6x2::HueSector(1, 9, 5), 2);
    EXPECT_EQ(Bc6x2::HueSector(1, 5, 9), 3);
    EXPECT_EQ(Bc6x2::HueSector(5, 1, 9), 4);
    EXPECT_EQ(Bc6x2::HueSector(9, 1, 5), 5);
}

TEST(Bc6x2, TiesBetweenTwoChannelsHaveASector)
{
    EXPECT_EQ(Bc6x2::HueSector(9, 1, 1), 0);
    EXPECT_EQ(Bc6x2::HueSector(9, 9, 1), 1);
    EXPECT_EQ(Bc6x2::HueSector(1, 9, 1), 2);
    EXPECT_EQ(Bc6x2::HueSector(1, 9, 9), 3);
    EXPECT_EQ(Bc6x2::HueSector(1, 1, 9), 4);
    EXPECT_EQ(Bc6x2::HueSector(9, 1, 9), 5);
}

TEST(Bc6x2, GrayAndNanHaveNoSector)
{
    EXPECT_EQ(Bc6x2::HueSector(0, 0, 0), -1);
    EXPECT_EQ(Bc6x2::HueSector(100, 100, 100), -1);
    EXPECT_EQ(Bc6x2::HueSector(-1e300, -1e300, -1e300), -1);
    EXPECT_EQ(Bc6x2::HueSector(Infinity, Infinity, Infinity), -1);
    EXPECT_EQ(Bc6x2::HueSector(NaN, 5, 1), -1);
    EXPECT_EQ(Bc6x2::HueSector(9, NaN, 1), -1);
    EXPECT_EQ(Bc6x2::HueSector(9, 5, NaN), -1);
    EXPECT_EQ(Bc6x2::HueSector(NaN, NaN, NaN), -1);
}

TEST(Bc6x2, SmallestDifferenceMakesASector)
{
    EXPECT_EQ(Bc6x2::HueSector(std::nextafter(100.0, 101.0), 100, 100), 0);
    EXPECT_EQ(Bc6x2::HueSector(100, 100, std::nextafter(100.0, 99.0)), 1);
}

TEST(Bc6x2, FitAndCorrectionPlaceEveryColorThatIsNotGrayInTheSameSector)
{
    for (int code = 0; code < 6 * 6 * 6; ++code) {
        const int red = code / 36;
        const int green = code / 6 % 6;
        const int blue = code % 6;
        const int sector = Bc6x2::HueSector(red, green, blue);
        const bool gray = red == green && green == blue;
        EXPECT_EQ(sector == -1, gray) << code;
        EXPECT_EQ(Bc6x2::AdjustmentSector(red, green, blue), gray ? 1 : sector) << code;
    }
    EXPECT_EQ(Bc6x2::AdjustmentSector(9, 9, 1), 1);
}

TEST(Bc6x2, SectorIsThatOfTheHueAngle)
{
    for (unsigned seed = 0; seed < 20; ++seed) {
        const PatchColors colors = simulatedResponse(seed);
        for (int i = 0; i < PatchCount; ++i) {
            EXPECT_EQ(Bc6x2::HueSector(colors(i, 0), colors(i, 1), colors(i, 2)),
                      Reference::sectorByHueAngle({colors(i, 0), colors(i, 1), colors(i, 2)}));
        }
    }
}

TEST(Bc6x2, NeutralParametersLeaveColorsAlone)
{
    for (unsigned seed = 0; seed < 10; ++seed) {
        const PatchColors colors = simulatedResponse(seed);
        for (int patch = 0; patch < PatchCount; ++patch) {
            const Color color = dlib::rowm(colors, patch);
            expectColor(Bc6x2::AdjustColor(color, neutral()), color);
        }
    }
}

// (100, 70, 20): red is largest, 30 down to green, 50 down to blue; between red and yellow.
TEST(Bc6x2, AdjustsBetweenRedAndYellowAsWorkedOutByHand)
{
    const Color out = adjusted(100, 70, 20, distinct());
    expectColor(out, makeColor(100 + -0.07 * 50, 100 - (1.2 + 0.11) * 30 - -0.07 * 50,
                               100 - (1.2 - 0.11) * 30 - 0.9 * 50));
}

// (70, 100, 20): green is largest, 30 down to red, 50 down to blue; between yellow and green, where
// hues turn the other way.
TEST(Bc6x2, AdjustsBetweenYellowAndGreenAsWorkedOutByHand)
{
    const Color out = adjusted(70, 100, 20, distinct());
    expectColor(out, makeColor(100 - (1.1 - 0.05) * 30 + -0.07 * 50, 100 - -0.07 * 50,
                               100 - (1.1 + 0.05) * 30 - 0.9 * 50));
}

TEST(Bc6x2, AdjustsEverySectorAsTheSecondImplementationDoes)
{
    std::array<Reference::Real, 12> parameters;
    for (int i = 0; i < 12; ++i) {
        parameters[i] = distinct()(i);
    }
    const double channels[6][3] = {{200, 90, 30}, {90, 200, 30}, {30, 200, 90},
                                   {30, 90, 200}, {90, 30, 200}, {200, 30, 90}};
    for (const auto& rgb : channels) {
        const Reference::Vector expected = Reference::adjust({rgb[0], rgb[1], rgb[2]}, parameters);
        expectColor(adjusted(rgb[0], rgb[1], rgb[2], distinct()),
                    makeColor(static_cast<double>(expected[0]), static_cast<double>(expected[1]),
                              static_cast<double>(expected[2])));
    }
}

// A pure primary or secondary colour obeys its own two parameters alone.
TEST(Bc6x2, CornersOfTheHexagonObeyTheirOwnParameters)
{
    const double corners[6][3] = {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 1, 1}, {0, 0, 1}, {1, 0, 1}};
    for (int corner = 0; corner < 6; ++corner) {
        const Color color =
            100.0 * makeColor(corners[corner][0], corners[corner][1], corners[corner][2]);
        for (int other = 0; other < 6; ++other) {
            ColorAdjustment parameters = neutral();
            parameters(other) = 0.1;
            parameters(6 + other) = 0.5;
            const double change = dlib::length(Bc6x2::AdjustColor(color, parameters) - color);
            if (other == corner) {
                EXPECT_GT(change, 10.0) << corner;
            } else {
                EXPECT_EQ(change, 0.0) << corner << ", " << other;
            }
        }
    }
}

TEST(Bc6x2, NoSaturationMakesAColorGrayAtItsLargestChannel)
{
    const ColorAdjustment none = dlib::zeros_matrix<double>(12, 1);
    expectColor(adjusted(10, 250, 30, none), makeColor(250, 250, 250), 0.0);
    expectColor(adjusted(77, 30, 20, none), makeColor(77, 77, 77), 0.0);
    expectColor(adjusted(0, 0, 1, none), makeColor(1, 1, 1), 0.0);
}

TEST(Bc6x2, SingleColorIsNotClamped)
{
    const Color out = adjusted(250, 100, 0, ColorAdjustment(neutral() * 3.0));
    expectColor(out, makeColor(250, 250 - 3 * 150, 250 - 3 * 150 - 3 * 100));
}

TEST(Bc6x2, ApplyLeavesGrayAlone)
{
    Bc6x2 step(TestChart);
    step.SetColors(simulatedResponse(1));
    step.Calculate();
    PatchColors grays = allPatches(0, 0, 0);
    for (int patch = 0; patch < PatchCount; ++patch) {
        setPatch(grays, patch, 11.0 * patch, 11.0 * patch, 11.0 * patch);
    }
    step.SetColors(grays);
    step.Apply();
    expectColors(step.Output, grays);
    expectColor(adjusted(77, 77, 77, distinct()), makeColor(77, 77, 77), 0.0);
}

TEST(Bc6x2, ParametersAreNeutralBeforeTheFirstEstimate)
{
    expectParameters(parametersOf(Bc6x2(TestChart)), neutral(), 0.0);
}

TEST(Bc6x2, IsNeutralAtTheTargets)
{
    Bc6x2 step(TestChart);
    step.SetColors(targetColors());
    step.Calculate();
    expectParameters(parametersOf(step), neutral(), 1e-12);
    expectColors(step.Output, targetColors(), 1e-10);
}

TEST(Bc6x2, IsNeutralWhereTheMatrixHasRemovedTheWholeError)
{
    ColorMatrix crosstalk;
    crosstalk = 0.7, 0.2, 0.1, 0.15, 0.6, 0.25, 0.05, 0.3, 0.65;
    Matrix3x3 matrixStep(TestChart);
    matrixStep.SetColors(targetColors() * dlib::trans(crosstalk));
    matrixStep.Calculate();
    Bc6x2 step(TestChart);
    step.SetColors(matrixStep.Output);
    step.Calculate();
    expectParameters(parametersOf(step), neutral(), 1e-10);
}

TEST(Bc6x2, NeutralPatchesDoNotMoveTheParameters)
{
    Bc6x2 step(TestChart);
    step.SetColors(simulatedResponse(1));
    step.Calculate();
    const ColorAdjustment before = parametersOf(step);
    for (int patch = 18; patch < PatchCount; ++patch) {
        setPatch(step.Input, patch, 10, 200, NaN);
    }
    step.Calculate();
    expectParameters(parametersOf(step), before, 0.0);
}

TEST(Bc6x2, OutputIsTheAdjustedInputOnTheScale)
{
    Bc6x2 step(TestChart);
    step.SetColors(simulatedResponse(1));
    step.Calculate();
    const ColorAdjustment parameters = parametersOf(step);
    PatchColors colors = simulatedResponse(2);
    setPatch(colors, 3, 255, 100, 0);
    setPatch(colors, 4, 0, 255, 0);
    step.SetColors(colors);
    step.Apply();
    for (int patch = 0; patch < PatchCount; ++patch) {
        const Color expected = Bc6x2::AdjustColor(dlib::rowm(colors, patch), parameters);
        expectPatch(step.Output, patch, dlib::clamp(expected, 0.0, 255.0));
    }
}

TEST(Bc6x2, GrayOnAColoredPatchIsRefusedAndNothingChanges)
{
    Bc6x2 step(TestChart);
    step.SetColors(simulatedResponse(1));
    step.Calculate();
    const ColorAdjustment parameters = parametersOf(step);
    const PatchColors output = step.Output;
    for (const double level : {0.0, 100.0, 255.0}) {
        for (const int patch : {0, 4, 17}) {
            step.Input = simulatedResponse(2);
            setPatch(step.Input, patch, level, level, level);
            EXPECT_THAT([&]() { step.Calculate(); },
                        testing::ThrowsMessage<std::runtime_error>(
                            "Cannot determine hue sector on gray image"));
            expectParameters(parametersOf(step), parameters, 0.0);
            expectColors(step.Output, output);
        }
    }
}

TEST(Bc6x2, GrayOnANeutralPatchIsFine)
{
    Bc6x2 step(TestChart);
    PatchColors colors = simulatedResponse(1);
    setPatch(colors, 20, 100, 100, 100);
    step.SetColors(colors);
    EXPECT_NO_THROW(step.Calculate());
    expectPatch(step.Output, 20, makeColor(100, 100, 100));
}

TEST(Bc6x2, NanOnAColoredPatchIsRefused)
{
    Bc6x2 step(TestChart);
    step.SetColors(simulatedResponse(1));
    step.Input(7, 2) = NaN;
    EXPECT_THROW(step.Estimate(), std::runtime_error);
}

// All patches between red and yellow: nothing tells about the other colours.
TEST(Bc6x2, ParameterThatNoPatchDependsOnBecomesZero)
{
    Bc6x2 step(TestChart);
    PatchColors colors = simulatedResponse(1);
    for (int patch = 0; patch < 18; ++patch) {
        setPatch(colors, patch, 200, 100 + 5 * patch, 10 + patch * patch % 40);
    }
    step.SetColors(colors);
    step.Calculate();
    const ColorAdjustment parameters = parametersOf(step);
    for (const int unreached : {2, 3, 4, 5, 8, 9, 10, 11}) {
        EXPECT_NEAR(parameters(unreached), 0.0, 1e-12) << unreached;
    }
    for (const int reached : {0, 1, 6, 7}) {
        EXPECT_GT(std::abs(parameters(reached)), 1e-3) << reached;
    }
}

TEST(Bc6x2, InfiniteInputEndsOnTheScale)
{
    Bc6x2 step(TestChart);
    step.SetColors(simulatedResponse(1));
    step.Input(7, 2) = Infinity;
    step.Calculate();
    EXPECT_FALSE(std::isfinite(dlib::sum(parametersOf(step))));
    for (const double value : step.Output) {
        EXPECT_GE(value, 0.0);
        EXPECT_LE(value, 255.0);
    }
}

} // namespace ColorCalibration
