// SPDX-License-Identifier: Apache-2.0
// When colours are fresh, stale, missing or moved up.
#include "chartdiscriminator.h"

#include "patchtrapezoids.h"
#include "testimages.h"

#include <gtest/gtest.h>

using ColorCalibration::ChartDiscriminator;
using ColorCalibration::TrapezoidPoints;
using Ostria::COstriaImage;

namespace {

constexpr int cell = 20;

TrapezoidPoints fullOutline()
{
    return {{0, 0}, {6 * cell, 0}, {0, 4 * cell}, {6 * cell, 4 * cell}};
}

/// 16 bits; patch i is a gray of 1000 * (i + 1) all over its cell.
COstriaImage staircase(int width = 6 * cell)
{
    return makeRgb16(width, 4 * cell, [](int x, int y) {
        const auto level = static_cast<std::uint16_t>(1000 * (y / cell * 6 + x / cell + 1));
        return Rgb16{level, level, level};
    });
}

int levelOf(const QColor& color)
{
    return qRound(color.redF() * 65536.0);
}

/// Half the cells are cut off: only the columns 0 to 2 lie in the image.
COstriaImage leftHalf()
{
    return makeRgb16(3 * cell, 4 * cell, [](int x, int y) {
        const auto level = static_cast<std::uint16_t>(1000 * (y / cell * 6 + x / cell + 1));
        return Rgb16{level, level, level};
    });
}

/// 8-bit gray whose channels are all the same level.
COstriaImage uniformGray8(std::uint8_t level)
{
    COstriaImage image(Ostria::PixelType::RGB8, 6 * cell, 4 * cell);
    std::fill_n(image.writableData(), image.size(), level);
    return image;
}

class ChartDiscriminatorTest : public testing::Test
{
protected:
    ChartDiscriminatorTest() { discriminator.setOutline(fullOutline()); }

    QVector<QColor> colors() const
    {
        QVector<QColor> out;
        discriminator.patchColors(out);
        return out;
    }

    ChartDiscriminator discriminator{70};
};

} // namespace

TEST(ChartDiscriminator, StandsAtTheDefaultOutlineWithoutColors)
{
    ChartDiscriminator discriminator(70);
    EXPECT_EQ(discriminator.outline(), TrapezoidPoints());
    QVector<QColor> colors{Qt::red};
    discriminator.patchColors(colors);
    EXPECT_EQ(colors, QVector<QColor>{Qt::red});
    EXPECT_EQ(discriminator.grayPeakValue(), 0);
    EXPECT_EQ(discriminator.grayHitRate(), 0.0);
}

TEST_F(ChartDiscriminatorTest, AppendsThePatchesOfItsOutline)
{
    QVector<TrapezoidPoints> patches{TrapezoidPoints()};
    discriminator.patchTrapezoids(patches);
    ASSERT_EQ(patches.size(), 25);
    EXPECT_EQ(patches.at(0), TrapezoidPoints());
    EXPECT_EQ(patches.mid(1), ColorCalibration::computePatchTrapezoids(fullOutline(), 70));
}

TEST_F(ChartDiscriminatorTest, FollowsANewOutlineAtTheNextRead)
{
    QVector<TrapezoidPoints> patches;
    discriminator.patchTrapezoids(patches);
    const TrapezoidPoints moved({10, 0}, {130, 0}, {10, 80}, {130, 80});
    discriminator.setOutline({{1, 1}, {2, 1}, {1, 2}, {2, 2}});
    discriminator.setOutline(moved);
    patches.clear();
    discriminator.patchTrapezoids(patches);
    EXPECT_EQ(patches, ColorCalibration::computePatchTrapezoids(moved, 70));
}

TEST_F(ChartDiscriminatorTest, MeasuresAllPatchesInChartOrder)
{
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    const QVector<QColor> measured = colors();
    ASSERT_EQ(measured.size(), 24);
    for (int i = 0; i < 24; ++i)
        EXPECT_NEAR(levelOf(measured.at(i)), 1000 * (i + 1), 1) << i;
}

TEST_F(ChartDiscriminatorTest, TakesTheDivisorFromTheImage)
{
    ASSERT_TRUE(discriminator.measureAllPatches(uniformGray8(128)));
    EXPECT_NEAR(colors().at(0).redF(), 0.5, 1e-5);
}

TEST_F(ChartDiscriminatorTest, WithholdsColorsOfAnOlderOutline)
{
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    discriminator.setOutline(fullOutline());
    QVector<QColor> out{Qt::blue};
    discriminator.patchColors(out);
    EXPECT_EQ(out, QVector<QColor>{Qt::blue});
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    discriminator.patchColors(out);
    EXPECT_EQ(out.size(), 24);
}

TEST_F(ChartDiscriminatorTest, WithholdsColorsAfterTheGrayPatchAlone)
{
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    QVector<QColor> out{Qt::blue};
    discriminator.patchColors(out);
    EXPECT_EQ(out, QVector<QColor>{Qt::blue});
}

TEST_F(ChartDiscriminatorTest, MovesColorsUpWhereAPatchFails)
{
    // Columns 0 to 2 of each row can be measured: 12 colours.
    ASSERT_TRUE(discriminator.measureAllPatches(leftHalf()));
    const QVector<QColor> measured = colors();
    ASSERT_EQ(measured.size(), 12);
    EXPECT_NEAR(levelOf(measured.at(2)), 3000, 1);
    EXPECT_NEAR(levelOf(measured.at(3)), 7000, 1);
}

TEST_F(ChartDiscriminatorTest, MeasuresNoGrayPatchAgainInAShortList)
{
    ASSERT_TRUE(discriminator.measureAllPatches(leftHalf()));
    EXPECT_TRUE(discriminator.measureGrayPatch(staircase()));
    EXPECT_EQ(discriminator.grayPeakValue(), 0);
    EXPECT_EQ(discriminator.grayHitRate(), 0.0);
}

TEST_F(ChartDiscriminatorTest, CountsNoColorsAsSuccessWhileTheLastOnesWereFresh)
{
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    const COstriaImage speck = makeUniformRgb16(1, 1, {1, 1, 1});
    EXPECT_TRUE(discriminator.measureAllPatches(speck));
    EXPECT_TRUE(colors().isEmpty());
    EXPECT_TRUE(discriminator.measureAllPatches(speck));
}

TEST_F(ChartDiscriminatorTest, FailsWithoutColorsWhereNoneWereFresh)
{
    const COstriaImage speck = makeUniformRgb16(1, 1, {1, 1, 1});
    EXPECT_FALSE(discriminator.measureAllPatches(speck));
    EXPECT_FALSE(discriminator.measureGrayPatch(speck));
    EXPECT_EQ(discriminator.grayPeakValue(), 0);
}

TEST_F(ChartDiscriminatorTest, FailsOnAnImageWithoutPixels)
{
    EXPECT_FALSE(discriminator.measureAllPatches(COstriaImage()));
    EXPECT_FALSE(discriminator.measureGrayPatch(COstriaImage()));
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    EXPECT_FALSE(discriminator.measureGrayPatch(COstriaImage()));
}

TEST_F(ChartDiscriminatorTest, MeasuresAllPatchesBeforeTheFirstGrayPatch)
{
    // Patch 19 of the staircase: 20000 / 65536 of 255 is 77.82.
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    EXPECT_EQ(discriminator.grayPeakValue(), 77);
    EXPECT_DOUBLE_EQ(discriminator.grayHitRate(), 77.0 * 100.0 / 150.0);
}

TEST_F(ChartDiscriminatorTest, ReadsTheGrayPatchOfEachNewImage)
{
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    // 151 / 256 * 255 = 150.41: the goal.
    ASSERT_TRUE(discriminator.measureGrayPatch(uniformGray8(151)));
    EXPECT_EQ(discriminator.grayPeakValue(), 150);
    EXPECT_DOUBLE_EQ(discriminator.grayHitRate(), 100.0);
    // 255 / 256 * 255 = 254.004: not limited to 100 percent.
    ASSERT_TRUE(discriminator.measureGrayPatch(uniformGray8(255)));
    EXPECT_EQ(discriminator.grayPeakValue(), 254);
    EXPECT_DOUBLE_EQ(discriminator.grayHitRate(), 254.0 * 100.0 / 150.0);
}

TEST_F(ChartDiscriminatorTest, LosesItsGrayReadingWhenThePatchFails)
{
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    const COstriaImage speck = makeUniformRgb16(1, 1, {1, 1, 1});
    EXPECT_FALSE(discriminator.measureGrayPatch(speck));
    EXPECT_EQ(discriminator.grayPeakValue(), 0);
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    EXPECT_EQ(discriminator.grayPeakValue(), 77);
}

TEST_F(ChartDiscriminatorTest, ReadsTheLargestChannelOfTheGrayPatch)
{
    const COstriaImage image = makeUniformRgb16(6 * cell, 4 * cell, {100, 32768, 200});
    ASSERT_TRUE(discriminator.measureGrayPatch(image));
    EXPECT_EQ(discriminator.grayPeakValue(), 127); // 0.5 * 255 = 127.5
}

TEST_F(ChartDiscriminatorTest, KeepsItsGrayReadingWhenTheOutlineChanges)
{
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    discriminator.setOutline(fullOutline());
    EXPECT_EQ(discriminator.grayPeakValue(), 77);
}

TEST_F(ChartDiscriminatorTest, BuildsThePatchesOfANewOutlineOnDemandAlone)
{
    ASSERT_TRUE(discriminator.measureAllPatches(staircase()));
    // Shrunk into the upper left cell, all patches would measure 1000.
    discriminator.setOutline({{0, 0}, {cell, 0}, {0, cell}, {cell, cell}});
    ASSERT_TRUE(discriminator.measureGrayPatch(staircase()));
    EXPECT_EQ(discriminator.grayPeakValue(), 77);
}
