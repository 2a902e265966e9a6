// SPDX-License-Identifier: Apache-2.0
// The numbers that the search for the anchor block works with.
#include "anchorsearch.h"

#include "obviouschartfinder.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace ColorCalibration;

namespace {

void expectNear(const AnchorRatios& ratios, const AnchorRatios& expected)
{
    for (std::size_t i = 0; i < ratios.size(); ++i)
        EXPECT_NEAR(ratios[i], expected[i], 0.000051F) << i;
}

} // namespace

TEST(ByteRatio, IsTheRoundedQuotientAndOneWithoutADenominator)
{
    EXPECT_EQ(byteRatio(51, 102), 0.5F);
    EXPECT_EQ(byteRatio(0, 7), 0.0F);
    EXPECT_EQ(byteRatio(255, 1), 255.0F);
    EXPECT_FLOAT_EQ(byteRatio(1, 3), 1.0F / 3.0F);
    EXPECT_EQ(byteRatio(200, 0), 1.0F);
    EXPECT_EQ(byteRatio(0, 0), 1.0F);
}

TEST(ByteRatio, HasTheBitsOfTheObviousRatioForEveryPairOfBytes)
{
    // Red and blue run over x, green over y.
    QImage image(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            image.setPixel(x, y, qRgb(x, y, x));
    const QImage green = Obvious::keepChannel(QColor(0, 1, 0, 255), image);
    for (const QColor& mask : {QColor(1, 0, 0, 255), QColor(0, 0, 1, 255)}) {
        const dlib::matrix<float> ratios =
            Obvious::channelRatio(Obvious::keepChannel(mask, image), green);
        for (int y = 0; y < 256; ++y)
            for (int x = 0; x < 256; ++x) {
                const float ratio = byteRatio(uchar(x), uchar(y));
                ASSERT_EQ(std::memcmp(&ratio, &ratios(x, y), sizeof ratio), 0) << x << " / " << y;
            }
    }
}

TEST(TemplateRatios, AreThoseOfPatches1To3And7To9And13To15)
{
    expectNear(templateRatios(0, 1),
               {1.9422F, 0.5295F, 0.6823F, 0.5483F, 6.7306F, 2.6250F, 0.1867F, 15.0349F, 1.5110F});
    expectNear(templateRatios(2, 1),
               {0.7463F, 1.6926F, 0.3484F, 3.8331F, 1.4215F, 3.3800F, 0.2290F, 1.3480F, 0.0121F});
}

TEST(ScanPitches, FallByAQuarterEachFromTheLargestThatFits)
{
    EXPECT_EQ(scanPitches(640, 480), (std::vector<int>{107, 80, 60, 45, 34, 25}));
    // A quarter of the height; and an eighth of the largest pitch where that is above 20.
    EXPECT_EQ(scanPitches(640, 320), (std::vector<int>{80, 60, 45, 34, 25}));
    EXPECT_EQ(scanPitches(1920, 1920), (std::vector<int>{320, 240, 180, 135, 101, 76, 57, 43}));
}

TEST(ScanPitches, AreNoneWhereTheLargestIsNotAbove20)
{
    EXPECT_TRUE(scanPitches(120, 480).empty());
    EXPECT_TRUE(scanPitches(640, 80).empty());
    EXPECT_TRUE(scanPitches(0, 0).empty());
    EXPECT_EQ(scanPitches(121, 480), (std::vector<int>{20}));
    EXPECT_EQ(scanPitches(640, 81), (std::vector<int>{20}));
}
