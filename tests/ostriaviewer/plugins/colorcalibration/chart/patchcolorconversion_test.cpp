// SPDX-License-Identifier: Apache-2.0
// Colour lists become matrices and come back.
#include "patchcolorconversion.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ColorCalibration;

namespace {

constexpr double qColorStep = 255.0 / 65535.0;

} // namespace

TEST(PatchColorConversion, BringsChannelsToTheEnginesScale)
{
    QVector<QColor> list(24, QColor::fromRgbF(0.25, 0.5, 1.0));
    const PatchColors matrix = toPatchColors(list, false);
    EXPECT_NEAR(matrix(23, 0), 63.75, qColorStep);
    EXPECT_NEAR(matrix(23, 1), 127.5, qColorStep);
    EXPECT_DOUBLE_EQ(matrix(23, 2), 255.0);
}

TEST(PatchColorConversion, LeavesMissingRowsAtZeroAndIgnoresSurplus)
{
    const PatchColors few = toPatchColors(QVector<QColor>(3, Qt::white), true);
    EXPECT_DOUBLE_EQ(few(2, 1), 255.0);
    for (int i = 3; i < 24; ++i)
        for (int channel = 0; channel < 3; ++channel)
            EXPECT_EQ(few(i, channel), 0.0);
    QVector<QColor> many(24, Qt::black);
    many.append(Qt::white);
    EXPECT_EQ(dlib::sum(toPatchColors(many, false)), 0.0);
}

TEST(PatchColorConversion, TakesOffTheDisplayCurve)
{
    const PatchColors matrix = toPatchColors({QColor::fromRgbF(0.5, 0.02, 1.0)}, true);
    // IEC 61966-2-1: ((0.5 + 0.055) / 1.055)^2.4 and 0.02 / 12.92.
    EXPECT_NEAR(matrix(0, 0), 255.0 * std::pow(0.555 / 1.055, 2.4), 0.01);
    EXPECT_NEAR(matrix(0, 1), 255.0 * 0.02 / 12.92, 0.001);
    EXPECT_DOUBLE_EQ(matrix(0, 2), 255.0);
}

TEST(PatchColorConversion, PutsOnTheDisplayCurve)
{
    PatchColors matrix;
    matrix = 0.0;
    matrix(5, 0) = 0.2140411 * 255.0; // sRGB 0.5
    matrix(5, 2) = 255.0;
    const QVector<QColor> list = toQColors(matrix, true);
    ASSERT_EQ(list.size(), 24);
    EXPECT_NEAR(list.at(5).redF(), 0.5, 1e-5);
    EXPECT_EQ(list.at(5).greenF(), 0.0);
    EXPECT_EQ(list.at(5).blueF(), 1.0);
    EXPECT_EQ(list.at(5).alphaF(), 1.0);
    EXPECT_EQ(list.at(4), QColor(Qt::black));
}

TEST(PatchColorConversion, ComesBackFromARoundTrip)
{
    PatchColors matrix;
    for (int i = 0; i < 24; ++i)
        for (int channel = 0; channel < 3; ++channel)
            matrix(i, channel) = 255.0 * (i * 3 + channel) / 71.0;
    EXPECT_LT(dlib::max(dlib::abs(toPatchColors(toQColors(matrix, false), false) - matrix)),
              qColorStep);
    EXPECT_LT(dlib::max(dlib::abs(toPatchColors(toQColors(matrix, true), true) - matrix)), 0.01);
}
