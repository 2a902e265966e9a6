// SPDX-License-Identifier: Apache-2.0
// The colour difference against published numbers and a second implementation.
#include "colormath.h"
#include "referencecolor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace ColorCalibration {

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

struct Pair
{
    double lab1[3];
    double lab2[3];
    double difference;
};

// G. Sharma, W. Wu, E. N. Dalal, "The CIEDE2000 color-difference formula: implementation notes,
// supplementary test data, and mathematical observations", Color Research and Application 30
// (2005), table 1.
constexpr Pair Published[] = {
    {{50.0000, 2.6772, -79.7751}, {50.0000, 0.0000, -82.7485}, 2.0425},
    {{50.0000, 3.1571, -77.2803}, {50.0000, 0.0000, -82.7485}, 2.8615},
    {{50.0000, 2.8361, -74.0200}, {50.0000, 0.0000, -82.7485}, 3.4412},
    {{50.0000, -1.3802, -84.2814}, {50.0000, 0.0000, -82.7485}, 1.0000},
    {{50.0000, -1.1848, -84.8006}, {50.0000, 0.0000, -82.7485}, 1.0000},
    {{50.0000, -0.9009, -85.5211}, {50.0000, 0.0000, -82.7485}, 1.0000},
    {{50.0000, 0.0000, 0.0000}, {50.0000, -1.0000, 2.0000}, 2.3669},
    {{50.0000, -1.0000, 2.0000}, {50.0000, 0.0000, 0.0000}, 2.3669},
    {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0009}, 7.1792},
    {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0010}, 7.1792},
    {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0011}, 7.2195},
    {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0012}, 7.2195},
    {{50.0000, -0.0010, 2.4900}, {50.0000, 0.0009, -2.4900}, 4.8045},
    {{50.0000, -0.0010, 2.4900}, {50.0000, 0.0010, -2.4900}, 4.8045},
    {{50.0000, -0.0010, 2.4900}, {50.0000, 0.0011, -2.4900}, 4.7461},
    {{50.0000, 2.5000, 0.0000}, {50.0000, 0.0000, -2.5000}, 4.3065},
    {{50.0000, 2.5000, 0.0000}, {73.0000, 25.0000, -18.0000}, 27.1492},
    {{50.0000, 2.5000, 0.0000}, {61.0000, -5.0000, 29.0000}, 22.8977},
    {{50.0000, 2.5000, 0.0000}, {56.0000, -27.0000, -3.0000}, 31.9030},
    {{50.0000, 2.5000, 0.0000}, {58.0000, 24.0000, 15.0000}, 19.4535},
    {{50.0000, 2.5000, 0.0000}, {50.0000, 3.1736, 0.5854}, 1.0000},
    {{50.0000, 2.5000, 0.0000}, {50.0000, 3.2972, 0.0000}, 1.0000},
    {{50.0000, 2.5000, 0.0000}, {50.0000, 1.8634, 0.5757}, 1.0000},
    {{50.0000, 2.5000, 0.0000}, {50.0000, 3.2592, 0.3350}, 1.0000},
    {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
    {{63.0109, -31.0961, -5.8663}, {62.8187, -29.7946, -4.0864}, 1.2630},
    {{61.2901, 3.7196, -5.3901}, {61.4292, 2.2480, -4.9620}, 1.8731},
    {{35.0831, -44.1164, 3.7933}, {35.0232, -40.0716, 1.5901}, 1.8645},
    {{22.7233, 20.0904, -46.6940}, {23.0331, 14.9730, -42.5619}, 2.0373},
    {{36.4612, 47.8580, 18.3852}, {36.2715, 50.5065, 21.2231}, 1.4146},
    {{90.8027, -2.0831, 1.4410}, {91.1528, -1.6435, 0.0447}, 1.4441},
    {{90.9257, -0.5406, -0.9208}, {88.6381, -0.8985, -0.7239}, 1.5381},
    {{6.7747, -0.2908, -2.4247}, {5.8714, -0.0985, -2.2286}, 0.6377},
    {{2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082},
};

Color lab(double l, double a, double b)
{
    Color result;
    result = l, a, b;
    return result;
}

Color lab(const double (&values)[3])
{
    return lab(values[0], values[1], values[2]);
}

double deltaE(const Color& lab1, const Color& lab2)
{
    return ColorMath().DeltaE(lab1, lab2, false);
}

Reference::Vector vector(const Color& color)
{
    return {color(0), color(1), color(2)};
}

} // namespace

TEST(DeltaE, AgreesWithThePublishedPairsInAllFourDigits)
{
    for (const Pair& pair : Published) {
        const Color lab1 = lab(pair.lab1);
        const Color lab2 = lab(pair.lab2);
        EXPECT_NEAR(deltaE(lab1, lab2), pair.difference, 0.5001e-4) << lab1 << lab2;
    }
}

// The published numbers check the second implementation too, so that it may check the first.
TEST(DeltaE, SecondImplementationAgreesWithThePublishedPairs)
{
    for (const Pair& pair : Published) {
        const auto difference = static_cast<double>(
            Reference::ciede2000(vector(lab(pair.lab1)), vector(lab(pair.lab2))));
        EXPECT_NEAR(difference, pair.difference, 0.5001e-4) << lab(pair.lab1) << lab(pair.lab2);
    }
}

TEST(DeltaE, AgreesWithTheSecondImplementationAnywhere)
{
    std::mt19937 generator(7);
    const auto uniform = [&generator](double from, double to) {
        return from + (to - from) * static_cast<double>(generator()) / 4294967296.0;
    };
    for (int i = 0; i < 5000; ++i) {
        const Color lab1 = lab(uniform(0, 100), uniform(-120, 120), uniform(-120, 120));
        const double reach = i % 2 == 0 ? 120.0 : 3.0;
        const Color lab2 =
            lab1 + lab(uniform(-reach, reach) / 3, uniform(-reach, reach), uniform(-reach, reach));
        const auto expected = static_cast<double>(Reference::ciede2000(vector(lab1), vector(lab2)));
        ASSERT_NEAR(deltaE(lab1, lab2), expected, 1e-11 * (1.0 + expected)) << lab1 << lab2;
        ASSERT_NEAR(deltaE(lab2, lab1), deltaE(lab1, lab2), 1e-11 * (1.0 + expected));
        // With equal lightness only chroma and hue are left.
        const auto colorful = static_cast<double>(
            Reference::ciede2000({50, lab1(1), lab1(2)}, {50, lab2(1), lab2(2)}));
        ASSERT_NEAR(ColorMath().DeltaC(lab1, lab2), colorful, 1e-11 * (1.0 + colorful));
    }
}

TEST(DeltaE, IdenticalColorsDoNotDiffer)
{
    for (const Color& color : {lab(50, 20, -30), lab(0, 0, 0), lab(100, 1e-7, -1e-7)}) {
        EXPECT_EQ(deltaE(color, color), 0.0);
        EXPECT_EQ(ColorMath().DeltaC(color, color), 0.0);
    }
}

TEST(DeltaE, ColorsThatDifferInLightnessAloneHaveNoDeltaC)
{
    const Color dark = lab(40, 20, -30);
    const Color light = lab(60, 20, -30);
    EXPECT_NEAR(ColorMath().DeltaC(dark, light), 0.0, 1e-300);
    // At a mean lightness of 50 the weight of the difference is 1.
    EXPECT_NEAR(deltaE(dark, light), 20.0, 1e-13);
}

TEST(DeltaE, IgnoringTheLightnessIsDeltaC)
{
    const Color lab1 = lab(40, 20, -30);
    const Color lab2 = lab(60, 25, 10);
    EXPECT_EQ(ColorMath().DeltaE(lab1, lab2, true), ColorMath().DeltaC(lab1, lab2));
    EXPECT_LT(ColorMath().DeltaC(lab1, lab2), deltaE(lab1, lab2));
}

TEST(DeltaE, GraysDifferByLightnessAlone)
{
    EXPECT_NEAR(deltaE(lab(45, 0, 0), lab(55, 0, 0)), 10.0, 1e-13);
    EXPECT_EQ(ColorMath().DeltaC(lab(10, 0, 0), lab(90, 0, 0)), 0.0);
}

// Against gray there is no hue difference: the chroma alone counts. With a* = 0 nothing is
// stretched, so a chroma of 10 gives 10 / (1 + 0.045 * 5).
TEST(DeltaE, AgainstGrayTheChromaAloneCounts)
{
    EXPECT_NEAR(deltaE(lab(50, 0, 0), lab(50, 0, 10)), 10.0 / 1.225, 1e-13);
    EXPECT_NEAR(deltaE(lab(50, 0, 10), lab(50, 0, 0)), 10.0 / 1.225, 1e-13);
}

// With a* stretched by 1.5 the chromas are 1.5e-7 and 1.5e-6, their product is below 1e-12: the
// hues, though opposite, do not count.
TEST(DeltaE, ColorsNextToGrayDifferByChromaAlone)
{
    EXPECT_NEAR(deltaE(lab(50, 1e-7, 0), lab(50, -1e-6, 0)), 1.35e-6, 1e-11);
    // A thousand times as far from gray they do.
    EXPECT_NEAR(deltaE(lab(50, 1e-4, 0), lab(50, -1e-3, 0)), 1.65e-3, 1e-6);
}

// A hue below 1e-12 is taken for 0, that of pure red: not for the blue that the noise points to,
// which would come out at 5e-7 less.
TEST(DeltaE, NoiseAroundGrayHasNoHueOfItsOwn)
{
    const auto fromRed = static_cast<double>(Reference::ciede2000({50, 5e-13, 0}, {50, 0, -80}));
    const auto fromBlue = static_cast<double>(Reference::ciede2000({50, 0, -5e-13}, {50, 0, -80}));
    ASSERT_GT(fromRed - fromBlue, 1e-7);
    EXPECT_NEAR(deltaE(lab(50, 0, -5e-13), lab(50, 0, -80)), fromRed, 1e-8);
}

TEST(DeltaE, NanInEitherColorPassesIntoTheResult)
{
    for (int i = 0; i < 3; ++i) {
        Color spoiled = lab(50, 10, 20);
        spoiled(i) = NaN;
        EXPECT_TRUE(std::isnan(deltaE(spoiled, lab(50, 0, 0)))) << i;
        EXPECT_TRUE(std::isnan(deltaE(lab(50, 30, 0), spoiled))) << i;
        EXPECT_TRUE(std::isnan(ColorMath().DeltaC(spoiled, lab(50, 30, 0)))) << i;
    }
}

TEST(DeltaE, ColorsFarOutsideOfTheRealOnesStayFinite)
{
    EXPECT_TRUE(std::isfinite(deltaE(lab(1e6, -1e6, 1e6), lab(-1e6, 1e6, 1e6))));
    EXPECT_TRUE(std::isfinite(deltaE(lab(0, 1e30, 0), lab(0, 0, -1e30))));
}

} // namespace ColorCalibration
