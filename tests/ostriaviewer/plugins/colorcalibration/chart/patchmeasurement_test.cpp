// SPDX-License-Identifier: Apache-2.0
// The median pixel of a patch, against the obvious way to find it.
#include "patchmeasurement.h"

#include "obviousmeasurement.h"
#include "rounds.h"
#include "testimages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using ColorCalibration::measurePatch;
using ColorCalibration::TrapezoidPoints;
using Ostria::COstriaImage;
using Ostria::PixelType;

namespace {

/// Covers exactly width x height pixels from (x, y).
TrapezoidPoints block(int x, int y, int width, int height)
{
    return {{x, y}, {x + width, y}, {x, y + height}, {x + width, y + height}};
}

/// A channel that QColor was given as a ratio comes back on its grid of 1/65535.
double throughQColor(double ratio)
{
    return std::round(ratio * 65535.0) / 65535.0;
}

} // namespace

TEST(PatchMeasurement, WantsTwentyFourPixels)
{
    const COstriaImage image = makeUniformRgb16(30, 30, {1000, 2000, 3000});
    QColor color;
    EXPECT_TRUE(measurePatch(block(1, 1, 6, 4), image, 65536, color));
    EXPECT_DOUBLE_EQ(color.greenF(), throughQColor(2000.0 / 65536.0));

    const QColor untouched(1, 2, 3);
    color = untouched;
    EXPECT_FALSE(measurePatch(block(1, 1, 23, 1), image, 65536, color));
    EXPECT_EQ(color, untouched);
}

TEST(PatchMeasurement, CountsOnlyPixelsInsideTheImage)
{
    const COstriaImage image = makeUniformRgb16(30, 30, {1000, 2000, 3000});
    QColor color;
    EXPECT_TRUE(measurePatch(block(26, 24, 50, 50), image, 65536, color));  // 4 x 6
    EXPECT_FALSE(measurePatch(block(27, 23, 50, 50), image, 65536, color)); // 3 x 7
}

TEST(PatchMeasurement, TakesTheUpperOfTheTwoMiddlePixels)
{
    // 24 pixels of levels 100 to 2400 in a shuffled order: element 12 of 0 to 23 is 1300.
    const COstriaImage image = makeRgb16(6, 4, [](int x, int y) {
        const auto level = static_cast<std::uint16_t>(100 * ((x + 6 * y) * 7 % 24 + 1));
        return Rgb16{level, 0, 0};
    });
    QColor color;
    ASSERT_TRUE(measurePatch(block(0, 0, 6, 4), image, 65536, color));
    EXPECT_DOUBLE_EQ(color.redF(), throughQColor(1300.0 / 65536.0));
}

TEST(PatchMeasurement, TakesTheMiddleOneOfAnOddNumber)
{
    const COstriaImage image = makeRgb16(5, 5, [](int x, int y) {
        const auto level = static_cast<std::uint16_t>(100 * ((x + 5 * y) * 7 % 25 + 1));
        return Rgb16{0, 0, level};
    });
    QColor color;
    ASSERT_TRUE(measurePatch(block(0, 0, 5, 5), image, 65536, color));
    EXPECT_DOUBLE_EQ(color.blueF(), throughQColor(1300.0 / 65536.0));
}

TEST(PatchMeasurement, KeepsItsMedianUnderABrightSpeck)
{
    const auto background = [](int x, int y) {
        const auto level = static_cast<std::uint16_t>(5000 + 10 * ((x * 31 + y * 17) % 21));
        return Rgb16{level, static_cast<std::uint16_t>(level / 2), 77};
    };
    const COstriaImage image = makeRgb16(40, 40, [&](int x, int y) {
        return x < 6 && y < 6 ? Rgb16{65535, 65535, 65535} : background(x, y);
    });
    QColor color;
    ASSERT_TRUE(measurePatch(block(0, 0, 40, 40), image, 65536, color));
    // A pixel of the background, taken whole, near the middle of its 5000 to 5200.
    EXPECT_NEAR(color.redF() * 65536.0, 5100.0, 20.0);
    EXPECT_NEAR(color.greenF(), color.redF() / 2.0, 1.0 / 65535.0);
    EXPECT_NEAR(color.blueF() * 65536.0, 77.0, 1.0);
}

TEST(PatchMeasurement, LeavesOutTheLastRowOfTheBoundingRectangle)
{
    // The polygon's last row, y = 10, is bright and must not count.
    const COstriaImage image = makeRgb16(20, 20, [](int, int y) {
        return y == 10 ? Rgb16{60000, 60000, 60000} : Rgb16{10, 10, 10};
    });
    QColor color;
    ASSERT_TRUE(measurePatch({{0, 8}, {19, 8}, {0, 10}, {19, 10}}, image, 65536, color));
    EXPECT_DOUBLE_EQ(color.redF(), throughQColor(10.0 / 65536.0));
}

TEST(PatchMeasurement, MeasuresASaturatedEightBitPatchAt255Over256)
{
    COstriaImage image(PixelType::RGB8, 10, 10);
    std::fill_n(image.writableData(), image.size(), std::uint8_t{255});
    QColor color;
    ASSERT_TRUE(measurePatch(block(0, 0, 9, 9), image, 256, color));
    EXPECT_DOUBLE_EQ(color.redF(), throughQColor(255.0 / 256.0));
    EXPECT_LT(color.redF(), 1.0);
}

TEST(PatchMeasurement, DividesATwelveBitImageBy4096)
{
    COstriaImage image(PixelType::Mono12, 10, 10);
    std::uint8_t* bytes = image.writableData();
    for (std::size_t i = 0; i < image.size(); i += 2) {
        bytes[i] = 0xE8; // 1000
        bytes[i + 1] = 0x03;
    }
    QColor color;
    ASSERT_TRUE(measurePatch(block(0, 0, 9, 9), image, 4096, color));
    EXPECT_DOUBLE_EQ(color.redF(), throughQColor(1000.0 / 4096.0));
    EXPECT_DOUBLE_EQ(color.blueF(), throughQColor(1000.0 / 4096.0));
}

TEST(PatchMeasurement, FailsOnAnImageWithoutPixels)
{
    QColor color;
    EXPECT_FALSE(measurePatch(block(0, 0, 50, 50), COstriaImage(), 256, color));
}

TEST(PatchMeasurement, EqualsTheObviousOneOnRandomQuadrilaterals)
{
    std::mt19937 generator(4);
    std::uniform_int_distribution<int> coordinate(-20, 119);
    const COstriaImage wide = makeNoiseRgb16(100, 90, 5, 0, 65535);
    const COstriaImage tied = makeNoiseRgb16(100, 90, 6, 300, 303);
    int measured = 0;
    for (int i = 0; i < roundsOf(2000); ++i) {
        SCOPED_TRACE(i);
        const auto point = [&] {
            return QPoint(coordinate(generator), coordinate(generator));
        };
        const QPoint a = point();
        const QPoint b = point();
        const QPoint c = point();
        const TrapezoidPoints patch(a, b, c, point());
        for (const COstriaImage& image : {wide, tied}) {
            QColor fast;
            QColor obvious;
            ASSERT_EQ(measurePatch(patch, image, 65536, fast),
                      obviousMeasurePatch(patch, image, 65536, obvious));
            ASSERT_EQ(fast, obvious);
        }
        measured += obviousPixelsInside(patch, 100, 90).size() >= 24 ? 1 : 0;
    }
    EXPECT_GT(measured, roundsOf(1000));
}

TEST(PatchMeasurement, EqualsTheObviousOneOnEveryBitDepth)
{
    const TrapezoidPoints patch({3, 2}, {55, 9}, {7, 50}, {60, 41});
    std::mt19937 generator(7);
    for (const PixelType type : {PixelType::Mono8, PixelType::Mono16, PixelType::RGB8,
                                 PixelType::BayerRG12, PixelType::BGRa8, PixelType::YUV422_8}) {
        SCOPED_TRACE(Ostria::pixelTypeName(type));
        COstriaImage image(type, 64, 64);
        std::generate_n(image.writableData(), image.size(),
                        [&] { return static_cast<std::uint8_t>(generator() & 0x0F); });
        const int divisor = 1 << image.readPixel(0, 0).bitDepth;
        QColor fast;
        QColor obvious;
        ASSERT_TRUE(measurePatch(patch, image, divisor, fast));
        ASSERT_TRUE(obviousMeasurePatch(patch, image, divisor, obvious));
        EXPECT_EQ(fast, obvious);
    }
}
