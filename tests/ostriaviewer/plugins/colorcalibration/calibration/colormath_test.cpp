// SPDX-License-Identifier: Apache-2.0
// Colour space conversions and the sRGB curve against numbers that were computed by hand.
#include "colormath.h"

#include "charttargets.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace ColorCalibration {

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

Color color(double first, double second, double third)
{
    Color result;
    result = first, second, third;
    return result;
}

Color xyzOf(const Color& rgb)
{
    const ColorMath math;
    return math.LinearRgbToXyz(rgb, math.RgbToXyzMatrix());
}

Color labOf(const Color& rgb)
{
    const ColorMath math;
    return math.XyzToLab(xyzOf(rgb), math.WhitePoint());
}

void expectNear(const Color& actual, const Color& expected, double tolerance)
{
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual(i), expected(i), tolerance) << i;
    }
}

} // namespace

TEST(ColorMath, PrimariesHaveTheirXyzOnZeroToHundred)
{
    expectNear(xyzOf(color(255, 0, 0)), color(41.24564, 21.26729, 1.93339), 1e-12);
    expectNear(xyzOf(color(0, 255, 0)), color(35.75761, 71.51522, 11.9192), 1e-12);
    expectNear(xyzOf(color(0, 0, 255)), color(18.04375, 7.2175, 95.03041), 1e-12);
}

TEST(ColorMath, WhiteIsD65)
{
    const ColorMath math;
    expectNear(xyzOf(color(255, 255, 255)), color(95.047, 100.0, 108.883), 1e-4);
    expectNear(math.WhitePoint(), color(0.95047, 1.0, 1.08883), 0.0);
    expectNear(labOf(color(255, 255, 255)), color(100.0, 0.0, 0.0), 1e-4);
}

TEST(ColorMath, XyzIsNotClamped)
{
    expectNear(xyzOf(color(-255, 510, 0)),
               color(-41.24564 + 2 * 35.75761, -21.26729 + 2 * 71.51522, -1.93339 + 2 * 11.9192),
               1e-12);
}

TEST(ColorMath, AnyMatrixMayBeGiven)
{
    ColorMatrix matrix;
    matrix = 1, 2, 3, 4, 5, 6, 7, 8, 9;
    expectNear(ColorMath().LinearRgbToXyz(color(255, 0, 51), matrix), color(160, 520, 880), 1e-12);
}

// The cube roots are whole: 0.125 = 0.5^3, 0.216 = 0.6^3, 0.064 = 0.4^3.
TEST(ColorMath, LabOfCubesIsExact)
{
    const Color lab = ColorMath().XyzToLab(color(12.5, 21.6, 6.4), color(1.0, 1.0, 1.0));
    expectNear(lab, color(116 * 0.6 - 16, 500 * (0.5 - 0.6), 200 * (0.6 - 0.4)), 1e-12);
}

// 903.3 * 0.008855 = 7.9987215. The limit is 0.008856.
TEST(ColorMath, LabIsLinearUpToItsLimit)
{
    const ColorMath math;
    const Color white = color(1.0, 1.0, 1.0);
    EXPECT_NEAR(math.XyzToLab(color(0, 0, 0), white)(0), 0.0, 1e-13);
    EXPECT_NEAR(math.XyzToLab(color(0, 0.5, 0), white)(0), 903.3 * 0.005, 1e-12);
    EXPECT_NEAR(math.XyzToLab(color(0, 0.8855, 0), white)(0), 7.9987215, 1e-12);
    EXPECT_NEAR(math.XyzToLab(color(0, 0.88561, 0), white)(0),
                116 * std::exp(std::log(0.0088561) / 3) - 16, 1e-12);
}

TEST(ColorMath, LabOfAFullPrimaryIsThatOfThePublishedTables)
{
    // B. Lindbloom's calculator, sRGB red, green and blue for D65.
    expectNear(labOf(color(255, 0, 0)), color(53.2408, 80.0925, 67.2032), 5e-4);
    expectNear(labOf(color(0, 255, 0)), color(87.7347, -86.1827, 83.1793), 5e-4);
    expectNear(labOf(color(0, 0, 255)), color(32.2970, 79.1875, -107.8602), 5e-4);
}

TEST(ColorMath, GrayTargetIsALightGrayWithAHintOfGreenBlue)
{
    const Color lab = labOf(dlib::rowm(ChartTargets().TargetColors(), 19));
    EXPECT_NEAR(lab(0), 81.26, 0.01);
    EXPECT_LT(lab(1), 0.0);
    EXPECT_GT(lab(1), -1.0);
    EXPECT_LT(lab(2), 0.0);
    EXPECT_GT(lab(2), -1.0);
}

TEST(ColorMath, NanInAColorPassesIntoLab)
{
    const Color lab = labOf(color(NaN, 10, 10));
    for (const double value : lab) {
        EXPECT_TRUE(std::isnan(value));
    }
}

// IEC 61966-2-1: code 10 is 10/255/12.92, code 128 is ((128/255 + 0.055)/1.055)^2.4, worked out
// with a calculator of 50 digits.
TEST(ColorMath, SrgbCurveHasTheValuesOfTheStandard)
{
    const ColorMath math;
    EXPECT_EQ(math.SrgbToLinear(0.0), 0.0);
    EXPECT_NEAR(math.SrgbToLinear(10.0), 0.77399380804953566, 1e-14);
    EXPECT_NEAR(math.SrgbToLinear(128.0), 55.0444275290442867, 1e-12);
    EXPECT_NEAR(math.SrgbToLinear(255.0), 255.0, 1e-12);
    EXPECT_EQ(math.LinearToSrgb(0.0), 0.0);
    EXPECT_NEAR(math.LinearToSrgb(0.51), 6.5892, 1e-13);
    EXPECT_NEAR(math.LinearToSrgb(55.0444275290442867), 128.0, 1e-12);
    EXPECT_NEAR(math.LinearToSrgb(51.0), 123.554947142835271, 1e-12);
    EXPECT_NEAR(math.LinearToSrgb(255.0), 255.0, 1e-12);
}

TEST(ColorMath, SrgbCurveAndItsInverseCancel)
{
    const ColorMath math;
    for (int code = 0; code <= 255; ++code) {
        EXPECT_NEAR(math.LinearToSrgb(math.SrgbToLinear(code)), code, 1e-12);
    }
}

// The standard's two branches miss each other by 3e-8 of the scale. Both directions change at the
// same colour, 0.04045 encoded.
TEST(ColorMath, SrgbCurveChangesItsBranchAtTheSameColorInBothDirections)
{
    const ColorMath math;
    const double encoded = 0.04045 * 255.0;
    const double linear = 0.04045 / 12.92 * 255.0;
    EXPECT_NEAR(math.LinearToSrgb(linear - 1e-9), encoded, 2e-8);
    EXPECT_NEAR(math.SrgbToLinear(encoded - 1e-8), linear, 2e-9);
    EXPECT_NEAR(math.LinearToSrgb(linear + 1e-9) - encoded, -7.5e-6, 1e-7);
    EXPECT_NEAR(math.SrgbToLinear(encoded + 1e-8) - linear, 5.98e-7, 1e-8);
}

TEST(ColorMath, SrgbCurveClampsToTheScale)
{
    const ColorMath math;
    for (const double below : {-1e-300, -0.5, -300.0, -1e308, -Infinity}) {
        EXPECT_EQ(math.LinearToSrgb(below), 0.0) << below;
        EXPECT_EQ(math.SrgbToLinear(below), 0.0) << below;
    }
    for (const double above : {255.5, 300.0, 1e308, Infinity}) {
        EXPECT_EQ(math.LinearToSrgb(above), 255.0) << above;
        EXPECT_EQ(math.SrgbToLinear(above), 255.0) << above;
    }
}

TEST(ColorMath, SrgbCurveLetsANanThrough)
{
    EXPECT_TRUE(std::isnan(ColorMath().LinearToSrgb(NaN)));
    EXPECT_TRUE(std::isnan(ColorMath().SrgbToLinear(NaN)));
}

TEST(ColorMath, SrgbCurveOfAColorIsThatOfItsChannels)
{
    const ColorMath math;
    const Color rgb = color(3.0, 100.0, 300.0);
    expectNear(math.LinearToSrgb(rgb),
               color(math.LinearToSrgb(3.0), math.LinearToSrgb(100.0), 255.0), 0.0);
    expectNear(math.SrgbToLinear(rgb),
               color(math.SrgbToLinear(3.0), math.SrgbToLinear(100.0), 255.0), 0.0);
}

} // namespace ColorCalibration
