// SPDX-License-Identifier: Apache-2.0
// The noise against the moments of the normal distribution.
#include "normaldeviates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <vector>

namespace Cameras::Emulation {
namespace {

constexpr int width = 1000;
constexpr int height = 1000;
constexpr double sampleCount = double(width) * height;

std::vector<float> frame(std::uint64_t seed, std::uint64_t number)
{
    std::vector<float> values(static_cast<std::size_t>(sampleCount));
    for (int y = 0; y < height; ++y)
        normalDeviates(seed, number, 0, y, width, values.data() + y * width);
    return values;
}

double moment(const std::vector<float>& values, int order)
{
    double sum = 0.0;
    for (const float value : values)
        sum += std::pow(value, order);
    return sum / sampleCount;
}

double correlation(const std::vector<float>& a, const std::vector<float>& b, std::size_t lag)
{
    return std::inner_product(a.begin() + static_cast<std::ptrdiff_t>(lag), a.end(), b.begin(),
                              0.0) /
           sampleCount;
}

// Standard errors for a million normal deviates: 0.001 for the mean, 0.0014 for the variance,
// 0.0039 for the third and 0.0098 for the fourth moment. As the samples come from a table of 65536,
// each is about 15 times what it draws, so bounds are four errors of a sample of 65536.
TEST(NormalDeviates, HaveTheMomentsOfTheNormalDistribution)
{
    const std::vector<float> values = frame(1, 0);
    EXPECT_NEAR(moment(values, 1), 0.0, 0.004);
    EXPECT_NEAR(moment(values, 2), 1.0, 0.006);
    EXPECT_NEAR(moment(values, 3), 0.0, 0.06);
    EXPECT_NEAR(moment(values, 4), 3.0, 0.15);
}

TEST(NormalDeviates, AreSymmetricAndReachThreeDeviations)
{
    const std::vector<float> values = frame(1, 0);
    int above = 0;
    int below = 0;
    for (const float value : values) {
        above += value > 3.0F ? 1 : 0;
        below += value < -3.0F ? 1 : 0;
    }
    // 0.135 percent lie beyond three deviations on each side.
    EXPECT_NEAR(above, 1350, 250);
    EXPECT_NEAR(below, 1350, 250);
}

// Five standard errors of a correlation of a million pairs.
TEST(NormalDeviates, AreIndependentOfTheirNeighbors)
{
    const std::vector<float> values = frame(1, 0);
    for (const std::size_t lag : {1U, 2U, 31U, 32U, 33U, 64U, 1000U, 1001U, 32000U})
        EXPECT_NEAR(correlation(values, values, lag), 0.0, 0.005) << "lag " << lag;
}

TEST(NormalDeviates, AreIndependentBetweenFramesAndSeeds)
{
    const std::vector<float> values = frame(1, 0);
    EXPECT_NEAR(correlation(values, frame(1, 1), 0), 0.0, 0.005);
    EXPECT_NEAR(correlation(values, frame(2, 0), 0), 0.0, 0.005);
    EXPECT_NEAR(correlation(values, frame(0, 1), 0), 0.0, 0.005);
}

TEST(NormalDeviates, BelongToTheirPosition)
{
    std::vector<float> row(200);
    normalDeviates(5, 6, 0, 7, 200, row.data());
    for (const int x : {0, 1, 31, 32, 33, 100, 199}) {
        float single = 0.0F;
        normalDeviates(5, 6, x, 7, 1, &single);
        EXPECT_EQ(single, row[static_cast<std::size_t>(x)]);
    }
    std::vector<float> part(150);
    normalDeviates(5, 6, 43, 7, 150, part.data());
    EXPECT_TRUE(std::equal(part.begin(), part.end(), row.begin() + 43));
}

} // namespace
} // namespace Cameras::Emulation
