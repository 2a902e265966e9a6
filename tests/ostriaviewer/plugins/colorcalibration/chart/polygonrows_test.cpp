// SPDX-License-Identifier: Apache-2.0
// The pixels inside a quadrilateral, against asking each of them.
#include "polygonrows.h"

#include "obviousmeasurement.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using ColorCalibration::PixelRun;
using ColorCalibration::pixelRunsInside;
using ColorCalibration::TrapezoidPoints;

namespace {

std::vector<QPoint> pixelsOf(const std::vector<PixelRun>& runs)
{
    std::vector<QPoint> pixels;
    for (const PixelRun& run : runs)
        for (int i = 0; i < run.count; ++i)
            pixels.emplace_back(run.x + i, run.y);
    return pixels;
}

TrapezoidPoints randomQuadrilateral(std::mt19937& generator, int lowest, int highest)
{
    std::uniform_int_distribution<int> coordinate(lowest, highest);
    const auto point = [&] {
        return QPoint(coordinate(generator), coordinate(generator));
    };
    const QPoint a = point();
    const QPoint b = point();
    const QPoint c = point();
    const QPoint d = point();
    return {a, b, c, d};
}

void expectSameAsAskingEveryPixel(const TrapezoidPoints& points, const QSize& size)
{
    EXPECT_EQ(pixelsOf(pixelRunsInside(points, size)),
              obviousPixelsInside(points, size.width(), size.height()));
}

} // namespace

TEST(PolygonRows, LeaveOutTheLastRowAndColumnOfTheBoundingRectangle)
{
    // boundingRect() is 2..6 by 3..8; the walk stops before 6 and before 8.
    const TrapezoidPoints points({2, 3}, {6, 3}, {2, 8}, {6, 8});
    const auto runs = pixelRunsInside(points, {100, 100});
    ASSERT_EQ(runs.size(), 5u);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(runs[static_cast<std::size_t>(i)].y, 3 + i);
        EXPECT_EQ(runs[static_cast<std::size_t>(i)].x, 2);
        EXPECT_EQ(runs[static_cast<std::size_t>(i)].count, 4);
    }
}

TEST(PolygonRows, AreEmptyForPointsAndLines)
{
    EXPECT_TRUE(pixelRunsInside({{5, 5}, {5, 5}, {5, 5}, {5, 5}}, {10, 10}).empty());
    EXPECT_TRUE(pixelRunsInside({{0, 5}, {9, 5}, {0, 5}, {9, 5}}, {10, 10}).empty());
    EXPECT_TRUE(pixelRunsInside({{0, 0}, {9, 9}, {0, 0}, {9, 9}}, {10, 10}).empty());
}

TEST(PolygonRows, LeaveOutWhatTheImageDoesNotHave)
{
    const TrapezoidPoints points({-5, -5}, {20, -5}, {-5, 20}, {20, 20});
    EXPECT_EQ(pixelsOf(pixelRunsInside(points, {3, 2})),
              (std::vector<QPoint>{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}, {2, 1}}));
    EXPECT_TRUE(pixelRunsInside(points, {0, 0}).empty());
    EXPECT_TRUE(pixelRunsInside({{50, 50}, {60, 50}, {50, 60}, {60, 60}}, {40, 40}).empty());
}

TEST(PolygonRows, EqualAskingEveryPixelOnRandomQuadrilaterals)
{
    std::mt19937 generator(1);
    for (int i = 0; i < 3000; ++i) {
        SCOPED_TRACE(i);
        expectSameAsAskingEveryPixel(randomQuadrilateral(generator, 0, 60), {61, 61});
    }
}

TEST(PolygonRows, EqualAskingEveryPixelOnQuadrilateralsThatLeaveTheImage)
{
    std::mt19937 generator(2);
    for (int i = 0; i < 2000; ++i) {
        SCOPED_TRACE(i);
        expectSameAsAskingEveryPixel(randomQuadrilateral(generator, -60, 90), {31, 29});
    }
}

TEST(PolygonRows, EqualAskingEveryPixelOnTinyAndDegenerateQuadrilaterals)
{
    std::mt19937 generator(3);
    for (int i = 0; i < 5000; ++i) {
        SCOPED_TRACE(i);
        expectSameAsAskingEveryPixel(randomQuadrilateral(generator, -2, 3), {4, 4});
    }
}

TEST(PolygonRows, StandExtremeCorners)
{
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    const TrapezoidPoints points({lowest, lowest}, {highest, lowest}, {lowest, highest},
                                 {highest, highest});
    EXPECT_EQ(pixelsOf(pixelRunsInside(points, {4, 3})).size(), 12u);
}
