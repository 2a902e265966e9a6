// SPDX-License-Identifier: Apache-2.0
// Where the patches lie in straight, tapered, crossed and flat outlines.
#include "patchtrapezoids.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using ColorCalibration::computePatchTrapezoids;
using ColorCalibration::TrapezoidPoints;

namespace {

constexpr int percent = 70;

TrapezoidPoints rectangle(int x, int y, int width, int height)
{
    return {{x, y}, {x + width, y}, {x, y + height}, {x + width, y + height}};
}

} // namespace

TEST(PatchTrapezoids, AreTheMiddleOfTheirCells)
{
    // Cells of 100 x 100 with a margin of 15 on each side.
    const auto patches = computePatchTrapezoids(rectangle(0, 0, 600, 400), percent);
    ASSERT_EQ(patches.size(), 24);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 6; ++column)
            EXPECT_EQ(patches.at(row * 6 + column),
                      rectangle(column * 100 + 15, row * 100 + 15, 70, 70))
                << "row " << row << ", column " << column;
}

TEST(PatchTrapezoids, CoverTheWholeCellAtHundredPercent)
{
    const auto patches = computePatchTrapezoids(rectangle(10, 20, 60, 40), 100);
    EXPECT_EQ(patches.at(0), rectangle(10, 20, 10, 10));
    EXPECT_EQ(patches.at(23), rectangle(60, 50, 10, 10));
}

TEST(PatchTrapezoids, ShrinkToThePointInTheMiddleAtZeroPercent)
{
    const auto patches = computePatchTrapezoids(rectangle(0, 0, 600, 400), 0);
    EXPECT_EQ(patches.at(7), rectangle(150, 150, 0, 0));
}

TEST(PatchTrapezoids, FollowAnOutlineThatTapers)
{
    // The edges left and right lean inwards by 60 on 400; rows stay horizontal.
    const TrapezoidPoints outline({0, 0}, {600, 0}, {60, 400}, {540, 400});
    const auto patches = computePatchTrapezoids(outline, percent);
    // Left line of column 0 from (0.025 * 600, 0) to (60 + 0.025 * 480, 400), at y = 15 and 85:
    // x = 15 + 57 * y / 400 = 17.1 and 27.1.
    EXPECT_EQ(patches.at(0).upperLeft(), QPoint(17, 15));
    EXPECT_EQ(patches.at(0).lowerLeft(), QPoint(27, 85));
    // Mirrored in the last column.
    EXPECT_EQ(patches.at(5).upperRight(), QPoint(583, 15));
    EXPECT_EQ(patches.at(5).lowerRight(), QPoint(573, 85));
}

TEST(PatchTrapezoids, RoundHalvesUp)
{
    // Half of cells 10 high: corners at 2.5 and 7.5 in the first row, exact in binary.
    const auto patches = computePatchTrapezoids(rectangle(0, 0, 64, 40), 50);
    EXPECT_EQ(patches.at(0).upperLeft().y(), 3);
    EXPECT_EQ(patches.at(0).lowerLeft().y(), 8);
    const auto negative = computePatchTrapezoids(rectangle(0, -40, 64, 40), 50);
    EXPECT_EQ(negative.at(18).upperLeft().y(), -7); // -7.5
    EXPECT_EQ(negative.at(18).lowerLeft().y(), -2); // -2.5
}

TEST(PatchTrapezoids, CrossWithoutErrorWhenTheOutlineDoes)
{
    const TrapezoidPoints outline({600, 0}, {0, 0}, {0, 400}, {600, 400});
    const auto patches = computePatchTrapezoids(outline, percent);
    ASSERT_EQ(patches.size(), 24);
    // The verticals cross at half height: above it the chart is mirrored, below it is not.
    EXPECT_GT(patches.at(0).upperLeft().x(), patches.at(0).upperRight().x());
    EXPECT_LT(patches.at(18).upperLeft().x(), patches.at(18).upperRight().x());
}

TEST(PatchTrapezoids, StayAtTheOriginWhereLinesDoNotMeet)
{
    // All four corners on one line: every two lines are parallel.
    const TrapezoidPoints flat({0, 50}, {600, 50}, {100, 50}, {500, 50});
    for (const TrapezoidPoints& patch : computePatchTrapezoids(flat, percent))
        EXPECT_EQ(patch, rectangle(0, 0, 0, 0));
}

TEST(PatchTrapezoids, HaveAnAnswerForTheDefaultOutlineAndForExtremes)
{
    // The default outline is 2 x 2 pixels: the last patch spans 2 - 0.95/3 to 2 - 0.05 in x.
    EXPECT_EQ(computePatchTrapezoids(TrapezoidPoints(), percent).at(23).lowerRight(), QPoint(2, 2));
    EXPECT_EQ(computePatchTrapezoids(TrapezoidPoints(), percent).at(0).upperLeft(), QPoint(0, 0));
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    const TrapezoidPoints huge({lowest, lowest}, {highest, lowest}, {lowest, highest},
                               {highest, highest});
    const auto patches = computePatchTrapezoids(huge, percent);
    // A cell is 2^32 / 6 wide, its margin 0.15 of that: -2^31 + 2^32 / 40.
    EXPECT_NEAR(patches.at(0).upperLeft().x(), -std::pow(2.0, 31) + std::pow(2.0, 32) / 40.0, 1.0);
    // Edges that cross within one pixel of height: corners far outside are held at the limits.
    const TrapezoidPoints nearlyParallel({lowest, 0}, {highest, 1}, {lowest, 1}, {highest, 0});
    for (const TrapezoidPoints& patch : computePatchTrapezoids(nearlyParallel, percent)) {
        EXPECT_GE(patch.upperLeft().y(), 0);
        EXPECT_LE(patch.upperLeft().y(), 1);
    }
}
