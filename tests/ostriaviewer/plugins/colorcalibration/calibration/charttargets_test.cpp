// SPDX-License-Identifier: Apache-2.0
// The chart's tables: transcription and physics.
#include "charttargets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace ColorCalibration {

namespace {

constexpr int PatchOffTheRule = 17;

using Block = dlib::matrix<double, 3, 3>;

Block block(int patch)
{
    return dlib::subm(ChartTargets().LabSensitivity(), 3 * patch, 3 * patch, 3, 3);
}

// The derivative of Lab by linear RGB on 0 to 255. sRGB primaries adapted to D50 by the Bradford
// method, and the white point D50, after B. Lindbloom's published tables; the derivative of the
// cube root is not divided by the white point.
Block labDerivative(const Color& rgb)
{
    constexpr double Xyz[3][3] = {{0.4360747, 0.3850649, 0.1430804},
                                  {0.2225045, 0.7168786, 0.0606169},
                                  {0.0139322, 0.0971045, 0.7141733}};
    constexpr double White[3] = {0.96422, 1.0, 0.82521};
    Block slopes;
    for (int row = 0; row < 3; ++row) {
        double relative = 0.0;
        for (int channel = 0; channel < 3; ++channel) {
            relative += Xyz[row][channel] * rgb(channel) / 255.0 / White[row];
        }
        const double slope = 1.0 / (3.0 * std::cbrt(relative * relative));
        for (int channel = 0; channel < 3; ++channel) {
            slopes(row, channel) = slope * Xyz[row][channel] / 255.0;
        }
    }
    Block derivative;
    for (int channel = 0; channel < 3; ++channel) {
        derivative(0, channel) = 116.0 * slopes(1, channel);
        derivative(1, channel) = 500.0 * (slopes(0, channel) - slopes(1, channel));
        derivative(2, channel) = 200.0 * (slopes(1, channel) - slopes(2, channel));
    }
    return derivative;
}

// The three rows of a block without the mixing of Lab: the directions of Y, X and Z.
Block unmixed(const Block& block)
{
    Block result;
    for (int channel = 0; channel < 3; ++channel) {
        const double y = block(0, channel) / 116.0;
        result(0, channel) = block(1, channel) / 500.0 + y;
        result(1, channel) = y;
        result(2, channel) = y - block(2, channel) / 200.0;
    }
    return result;
}

} // namespace

TEST(ChartTargets, TargetColorsAddUpToTheSumsOfThePrintedTable)
{
    const PatchColors targets = ChartTargets().TargetColors();
    constexpr double Sums[3] = {2042.5409, 1585.3743, 1417.6540};
    // Each row times its number, counted from 1: finds rows that changed places.
    constexpr double NumberedSums[3] = {26417.3112, 21315.5009, 19052.8651};
    for (int channel = 0; channel < 3; ++channel) {
        double sum = 0.0;
        double numberedSum = 0.0;
        for (int patch = 0; patch < PatchCount; ++patch) {
            sum += targets(patch, channel);
            numberedSum += (patch + 1) * targets(patch, channel);
        }
        EXPECT_NEAR(sum, Sums[channel], 1e-9);
        EXPECT_NEAR(numberedSum, NumberedSums[channel], 1e-9);
    }
}

TEST(ChartTargets, NeutralPatchesAreNearlyNeutralAndFallFromWhiteToBlack)
{
    const PatchColors targets = ChartTargets().TargetColors();
    for (int patch = 18; patch < PatchCount; ++patch) {
        const auto [low, high] =
            std::minmax({targets(patch, 0), targets(patch, 1), targets(patch, 2)});
        EXPECT_LT(high / low, 1.09) << patch;
        EXPECT_GT(high / low, 1.01) << patch;
        if (patch > 18) {
            EXPECT_LT(targets(patch, 1), 0.7 * targets(patch - 1, 1)) << patch;
        }
    }
}

TEST(ChartTargets, GrayPatchBroughtToItsLevelLiesJustBelowItsTarget)
{
    EXPECT_EQ(ChartTargets().GrayPatchIndex(), 19);
    EXPECT_EQ(ChartTargets().GrayPatchTargetLevel(false), 150.0);
    EXPECT_EQ(ChartTargets().GrayPatchTargetLevel(true), 200.0);
    EXPECT_EQ(dlib::max(dlib::rowm(ChartTargets().TargetColors(), 19)), 151.31);
}

TEST(ChartTargets, LabSensitivityAddsUpToTheSumsOfThePrintedTable)
{
    constexpr double Sums[9] = {2.715940, 8.75027,  0.7401844, 10.08117, -18.48011,
                                3.956921, 4.340644, 12.70098,  -16.27274};
    constexpr double NumberedSums[9] = {35.813383, 115.38455, 9.7603406, 136.37265, -240.64945,
                                        53.305526, 57.416510, 168.73031, -205.38042};
    for (int element = 0; element < 9; ++element) {
        double sum = 0.0;
        double numberedSum = 0.0;
        for (int patch = 0; patch < PatchCount; ++patch) {
            const double value = block(patch)(element / 3, element % 3);
            sum += value;
            numberedSum += (patch + 1) * value;
        }
        EXPECT_NEAR(sum, Sums[element], 1e-11) << element;
        EXPECT_NEAR(numberedSum, NumberedSums[element], 1e-11) << element;
    }
}

TEST(ChartTargets, LabSensitivityIsZeroOutsideOfItsBlocks)
{
    const LabSensitivityMatrix sensitivity = ChartTargets().LabSensitivity();
    for (int row = 0; row < 3 * PatchCount; ++row) {
        for (int column = 0; column < 3 * PatchCount; ++column) {
            EXPECT_EQ(sensitivity(row, column) != 0.0, row / 3 == column / 3)
                << row << ", " << column;
        }
    }
}

// The matrices in print for sRGB at D50 differ from each other in their fourth digit, by up to
// 5e-4 of an element. In the a* row two of them are subtracted, which doubles that.
TEST(ChartTargets, LabSensitivityIsTheDerivativeAtTheTargetsForD50)
{
    const PatchColors targets = ChartTargets().TargetColors();
    for (int patch = 0; patch < PatchCount; ++patch) {
        const Block expected = labDerivative(dlib::rowm(targets, patch));
        const Block actual = block(patch);
        double largestError = 0.0;
        for (int i = 0; i < 9; ++i) {
            largestError =
                std::max(largestError, std::abs(actual(i / 3, i % 3) / expected(i / 3, i % 3) - 1));
        }
        if (patch == PatchOffTheRule) {
            EXPECT_GT(largestError, 0.1);
        } else {
            EXPECT_LT(largestError, 1.2e-3) << patch;
        }
    }
}

// Whatever the colour, the primaries have the same shares in X, Y and Z. Numbers of five digits
// give a share of X or Y to 5e-5, and to 2e-4 of Z, which b* holds as a small difference.
TEST(ChartTargets, LabSensitivityGivesThePrimariesTheSameSharesAtAllPatches)
{
    constexpr double Tolerance[3] = {5e-5, 5e-5, 2e-4};
    const Block first = unmixed(block(0));
    for (int patch = 1; patch < PatchCount; ++patch) {
        const Block other = unmixed(block(patch));
        for (int row = 0; row < 3; ++row) {
            for (int channel = 0; channel < 3; ++channel) {
                EXPECT_NEAR(other(row, channel) / dlib::sum(dlib::rowm(other, row)),
                            first(row, channel) / dlib::sum(dlib::rowm(first, row)), Tolerance[row])
                    << patch << ", " << row << ", " << channel;
            }
        }
    }
}

} // namespace ColorCalibration
