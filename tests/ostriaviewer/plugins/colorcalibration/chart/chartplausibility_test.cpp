// SPDX-License-Identifier: Apache-2.0
// Each rule by which four corners are refused, one at a time.
#include "chartplausibility.h"

#include <gtest/gtest.h>

using namespace ColorCalibration;

namespace {

const QSize imageSize(640, 480);

ColorCorrectionAutoChartFinderResult plausible()
{
    return {QPoint(100, 90), QPoint(500, 80), QPoint(95, 400), QPoint(510, 410), false};
}

template <typename Change>
bool isPlausibleWith(Change change)
{
    ColorCorrectionAutoChartFinderResult corners = plausible();
    change(corners);
    return isPlausibleChart(corners, imageSize);
}

using Result = ColorCorrectionAutoChartFinderResult;

} // namespace

TEST(IsPlausibleChart, AcceptsAnUprightQuadrilateral)
{
    EXPECT_TRUE(isPlausibleChart(plausible(), imageSize));
}

TEST(IsPlausibleChart, AcceptsCornersOnTheBordersOfTheImage)
{
    EXPECT_TRUE(isPlausibleChart({{0, 0}, {640, 0}, {0, 480}, {640, 480}, false}, imageSize));
}

TEST(IsPlausibleChart, RefusesAnyCornerBeyondTheFarBorders)
{
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperRight.setX(641); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerRight.setX(641); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerRight.setY(481); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerLeft.setY(481); }));
    const QSize small(99, 85);
    EXPECT_FALSE(isPlausibleChart({{100, 0}, {101, 0}, {0, 50}, {50, 50}, false}, small));
    EXPECT_FALSE(isPlausibleChart({{0, 86}, {50, 0}, {0, 87}, {50, 50}, false}, small));
    EXPECT_FALSE(isPlausibleChart({{0, 0}, {50, 86}, {0, 50}, {50, 87}, false}, small));
    EXPECT_FALSE(isPlausibleChart({{0, 0}, {50, 0}, {100, 50}, {101, 50}, false}, small));
}

TEST(IsPlausibleChart, RefusesNegativeCoordinates)
{
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperLeft.setX(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperLeft.setY(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperRight.setX(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperRight.setY(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerRight.setX(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerRight.setY(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerLeft.setX(-1); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerLeft.setY(-1); }));
}

TEST(IsLowerLeftWithin, RefusesTheUpperBorderButNothingAboveIt)
{
    EXPECT_FALSE(isLowerLeftWithin(QPoint(5, 0), imageSize));
    EXPECT_TRUE(isLowerLeftWithin(QPoint(5, -1), imageSize));
    EXPECT_TRUE(isLowerLeftWithin(QPoint(5, 1), imageSize));
}

TEST(IsLowerLeftWithin, IncludesTheOtherBorders)
{
    EXPECT_TRUE(isLowerLeftWithin(QPoint(0, 480), imageSize));
    EXPECT_TRUE(isLowerLeftWithin(QPoint(640, 480), imageSize));
    EXPECT_FALSE(isLowerLeftWithin(QPoint(-1, 480), imageSize));
    EXPECT_FALSE(isLowerLeftWithin(QPoint(641, 480), imageSize));
    EXPECT_FALSE(isLowerLeftWithin(QPoint(0, 481), imageSize));
}

TEST(IsPlausibleChart, RefusesCornersInAnotherOrder)
{
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperLeft.setX(r.upperRight.x()); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperLeft.setY(r.lowerLeft.y()); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.upperRight.setY(r.lowerRight.y()); }));
    EXPECT_FALSE(isPlausibleWith([](Result& r) { r.lowerLeft.setX(r.lowerRight.x()); }));
}

TEST(IsPlausibleChart, RefusesCornersThatCoincide)
{
    EXPECT_FALSE(isPlausibleChart({}, imageSize));
    EXPECT_FALSE(isPlausibleChart({}, QSize(0, 0)));
}
