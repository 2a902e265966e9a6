// SPDX-License-Identifier: Apache-2.0
// Image and canvas coordinates, and who is told of a change.
#include "pointtransformer.h"

#include <gtest/gtest.h>

#include <limits>

using ColorCalibration::PointTransformer;

namespace {

class PointTransformerTest : public testing::Test
{
protected:
    PointTransformerTest()
    {
        QObject::connect(&transformer, &PointTransformer::offsetChanged,
                         [this] { ++offsetChanges; });
        QObject::connect(&transformer, &PointTransformer::scaleChanged, [this] { ++scaleChanges; });
    }

    PointTransformer transformer;
    int offsetChanges = 0;
    int scaleChanges = 0;
};

} // namespace

TEST_F(PointTransformerTest, ChangesNothingAtFirst)
{
    EXPECT_EQ(transformer.toCanvas({7, -3}), QPoint(7, -3));
    EXPECT_EQ(transformer.toImage({7, -3}), QPoint(7, -3));
}

TEST_F(PointTransformerTest, ConvertsBetweenImageAndCanvas)
{
    transformer.setScale(2.0);
    transformer.setOffset({10, 0});
    EXPECT_EQ(transformer.toCanvas({100, 50}), QPoint(60, 25));
    EXPECT_EQ(transformer.toImage({60, 25}), QPoint(100, 50));
}

TEST_F(PointTransformerTest, LosesAtMostAPixelOnARoundTripThroughAnOddScale)
{
    transformer.setScale(1.7);
    transformer.setOffset({13, 5});
    for (int x = 0; x < 500; ++x) {
        const QPoint canvas(x + 13, 0);
        const QPoint back = transformer.toCanvas(transformer.toImage(canvas));
        EXPECT_LE(back.x(), canvas.x());
        EXPECT_GE(back.x(), canvas.x() - 1);
    }
    // 5 / 1.7 + 13 = 15.94, and (15 - 13) * 1.7 = 3.4
    EXPECT_EQ(transformer.toCanvas({5, 0}).x(), 15);
    EXPECT_EQ(transformer.toImage({15, 0}).x(), 3);
}

TEST_F(PointTransformerTest, TruncatesTowardsZero)
{
    transformer.setScale(2.0);
    EXPECT_EQ(transformer.toCanvas({-3, 3}), QPoint(-1, 1));
    transformer.setScale(0.5);
    EXPECT_EQ(transformer.toImage({-3, 3}), QPoint(-1, 1));
}

TEST_F(PointTransformerTest, AddsTheOffsetBeforeItTruncates)
{
    transformer.setScale(2.0);
    transformer.setOffset({-2, 0});
    // 1 / 2 - 2 = -1.5
    EXPECT_EQ(transformer.toCanvas({1, 0}).x(), -1);
}

TEST_F(PointTransformerTest, TellsOfAChangeOnce)
{
    transformer.setScale(2.0);
    transformer.setScale(2.0);
    EXPECT_EQ(scaleChanges, 1);
    transformer.setOffset({3, 4});
    transformer.setOffset({3, 4});
    EXPECT_EQ(offsetChanges, 1);
}

TEST_F(PointTransformerTest, SetsOneCoordinateTruncated)
{
    transformer.setX(12.9);
    transformer.setY(-7.9);
    EXPECT_EQ(transformer.offset(), QPoint(12, -7));
    EXPECT_EQ(offsetChanges, 2);
}

TEST_F(PointTransformerTest, KeepsSilentOnTheSameCoordinateButNotOnAFractionMore)
{
    transformer.setX(12.0);
    EXPECT_EQ(offsetChanges, 1);
    transformer.setX(12.0);
    EXPECT_EQ(offsetChanges, 1);
    transformer.setX(12.5);
    EXPECT_EQ(transformer.offset().x(), 12);
    EXPECT_EQ(offsetChanges, 2);
    transformer.setY(0.5);
    EXPECT_EQ(transformer.offset().y(), 0);
    EXPECT_EQ(offsetChanges, 3);
}

TEST_F(PointTransformerTest, HoldsWhatAnIntCannot)
{
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    transformer.setScale(1e300);
    EXPECT_EQ(transformer.toImage({1, -1}), QPoint(highest, lowest));
    transformer.setScale(0.0);
    EXPECT_EQ(transformer.toCanvas({1, 0}), QPoint(highest, 0)); // 1/0 and 0/0
    transformer.setScale(1.0);
    transformer.setOffset({lowest, highest});
    EXPECT_EQ(transformer.toImage({highest, lowest}), QPoint(highest, lowest));
}
