// SPDX-License-Identifier: Apache-2.0
// The order of the four corners.
#include "trapezoidpoints.h"

#include <gtest/gtest.h>

using ColorCalibration::TrapezoidPoints;

TEST(TrapezoidPoints, StandsAtTheDefaultOutlineAtFirst)
{
    const TrapezoidPoints points;
    EXPECT_EQ(points.upperLeft(), QPoint(0, 0));
    EXPECT_EQ(points.upperRight(), QPoint(2, 0));
    EXPECT_EQ(points.lowerLeft(), QPoint(0, 2));
    EXPECT_EQ(points.lowerRight(), QPoint(2, 2));
}

TEST(TrapezoidPoints, TakesCornersInItsOrder)
{
    const TrapezoidPoints points({1, 2}, {3, 4}, {5, 6}, {7, 8});
    EXPECT_EQ(points.upperLeft(), QPoint(1, 2));
    EXPECT_EQ(points.upperRight(), QPoint(3, 4));
    EXPECT_EQ(points.lowerLeft(), QPoint(5, 6));
    EXPECT_EQ(points.lowerRight(), QPoint(7, 8));
}

TEST(TrapezoidPoints, SetsEachCornerAlone)
{
    TrapezoidPoints points;
    points.setUpperLeft({9, 8});
    EXPECT_EQ(points, TrapezoidPoints({9, 8}, {2, 0}, {0, 2}, {2, 2}));
    points.setUpperRight({7, 6});
    EXPECT_EQ(points, TrapezoidPoints({9, 8}, {7, 6}, {0, 2}, {2, 2}));
    points.setLowerLeft({5, 4});
    EXPECT_EQ(points, TrapezoidPoints({9, 8}, {7, 6}, {5, 4}, {2, 2}));
    points.setLowerRight({3, 2});
    EXPECT_EQ(points, TrapezoidPoints({9, 8}, {7, 6}, {5, 4}, {3, 2}));
}

TEST(TrapezoidPoints, ComparesEveryCorner)
{
    const TrapezoidPoints points({1, 2}, {3, 4}, {5, 6}, {7, 8});
    EXPECT_NE(points, TrapezoidPoints({0, 2}, {3, 4}, {5, 6}, {7, 8}));
    EXPECT_NE(points, TrapezoidPoints({1, 2}, {0, 4}, {5, 6}, {7, 8}));
    EXPECT_NE(points, TrapezoidPoints({1, 2}, {3, 4}, {0, 6}, {7, 8}));
    EXPECT_NE(points, TrapezoidPoints({1, 2}, {3, 4}, {5, 6}, {0, 8}));
}

TEST(TrapezoidPoints, GoesRoundAsAClosedPolygon)
{
    const TrapezoidPoints points({1, 2}, {3, 4}, {5, 6}, {7, 8});
    EXPECT_EQ(points.toPolygon(), QPolygon({{1, 2}, {3, 4}, {7, 8}, {5, 6}, {1, 2}}));
}
