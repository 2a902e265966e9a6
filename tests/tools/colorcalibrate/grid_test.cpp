// SPDX-License-Identifier: Apache-2.0
// Which outlines are read and which are refused.
#include "grid.h"

#include "command.h"

#include <gtest/gtest.h>

using namespace ColorCalibrate;
using ColorCalibration::TrapezoidPoints;

namespace {

QString failureOf(const char* grid)
{
    try {
        parseGrid(QLatin1String(grid));
    } catch (const CommandError& error) {
        EXPECT_EQ(error.code(), WrongUsage) << grid;
        return QString::fromUtf8(error.what());
    }
    ADD_FAILURE() << "accepted: " << grid;
    return {};
}

void expectFailure(const char* grid, const char* word)
{
    const QString message = failureOf(grid);
    EXPECT_TRUE(message.contains(QLatin1String(word))) << message.toStdString();
    EXPECT_TRUE(message.contains(QLatin1String(grid))) << message.toStdString();
}

} // namespace

TEST(Grid, ReadsFourPoints)
{
    const TrapezoidPoints expected({10, 20}, {110, 25}, {-5, 90}, {120, 95});
    EXPECT_EQ(parseGrid(QStringLiteral("10,20 110,25 -5,90 120,95")), expected);
    EXPECT_EQ(parseGrid(QStringLiteral("  10,20\t110,+25\n-5,90  120,95 ")), expected);
}

TEST(Grid, TakesAChartThatIsTurned)
{
    EXPECT_NO_THROW(parseGrid(QStringLiteral("100,80 0,80 100,0 0,0"))); // upside down
    EXPECT_NO_THROW(parseGrid(QStringLiteral("80,0 80,100 0,0 0,100"))); // a quarter turn
}

TEST(Grid, WantsFourPointsOfWholePixels)
{
    expectFailure("", "has 0 points");
    expectFailure("1,2 3,4 5,6", "has 3 points");
    expectFailure("1,2 3,4 5,6 7,8 9,10", "has 5 points");
    expectFailure("1,2 3,4 5,6 7", "\"7\"");
    expectFailure("1,2 3,4 5,6 7,8,9", "\"7,8,9\"");
    expectFailure("1,2 3,4 5,6 a,b", "\"a,b\"");
    expectFailure("1.5,2 3,4 5,6 7,8", "\"1.5,2\"");
    expectFailure("1,2 3,4 5,6 99999999999,8", "\"99999999999,8\"");
}

TEST(Grid, RefusesOutlinesWithoutArea)
{
    expectFailure("0,0 0,0 0,0 0,0", "one line");
    expectFailure("5,5 5,5 10,10 20,10", "one line");
    expectFailure("0,0 10,0 20,0 30,0", "one line");
    expectFailure("0,0 100,0 0,80 50,40", "one line"); // lower right on the diagonal
}

TEST(Grid, RefusesOutlinesThatCross)
{
    expectFailure("0,0 100,0 100,80 0,80", "crosses itself"); // lower corners exchanged
    expectFailure("100,0 0,0 0,80 100,80", "crosses itself"); // upper corners exchanged
    expectFailure("0,0 100,0 0,80 20,20", "dented");
}

TEST(Grid, RefusesAMirroredChart)
{
    expectFailure("100,0 0,0 100,80 0,80", "mirrored");
}

TEST(Grid, StandsExtremePoints)
{
    EXPECT_NO_THROW(parseGrid(QStringLiteral("-2147483648,-2147483648 2147483647,-2147483648 "
                                             "-2147483648,2147483647 2147483647,2147483647")));
}

TEST(Grid, MayReachTheEdgeOfTheImageAndNoFurther)
{
    const TrapezoidPoints grid({0, 0}, {100, 0}, {0, 80}, {100, 80});
    EXPECT_NO_THROW(requireInside(grid, {100, 80}));
    try {
        requireInside(grid, {100, 79});
        FAIL() << "accepted";
    } catch (const CommandError& error) {
        EXPECT_EQ(error.code(), WorkFailed);
        EXPECT_STREQ(error.what(), "the grid's lower left corner (0, 80) lies outside the image of "
                                   "100 x 79 pixels");
    }
    EXPECT_THROW(requireInside(grid, {99, 80}), CommandError);
    EXPECT_THROW(requireInside({{-1, 0}, {9, 0}, {0, 9}, {9, 9}}, {100, 80}), CommandError);
    EXPECT_THROW(requireInside({{0, 0}, {9, -1}, {0, 9}, {9, 9}}, {100, 80}), CommandError);
}
