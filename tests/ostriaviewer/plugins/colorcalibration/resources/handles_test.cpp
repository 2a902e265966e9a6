// SPDX-License-Identifier: Apache-2.0
// Small pictures that must sit exactly in or at what they belong to.
#include "opacity.h"
#include <QImage>
#include <QString>
#include <gtest/gtest.h>

namespace {

TEST(ImageSlider, StandsEvenlyBelowItsLine)
{
    expectEvenSides(QImage(QStringLiteral(":/ColCal/imageslider.png")));
    expectEvenSides(QImage(QStringLiteral(":/ColCal/imageslider@2x.png")));
}

TEST(ImageSlider, TouchesItsLineWithItsTip)
{
    const QImage image(QStringLiteral(":/ColCal/imageslider.png"));
    EXPECT_GT(qAlpha(image.pixel(7, 0)), 0);
    EXPECT_GT(qAlpha(image.pixel(8, 0)), 0);
    EXPECT_EQ(qAlpha(image.pixel(2, 0)), 0);
}

TEST(CheckMark, LeavesTheBorderOfItsBoxFree)
{
    const QImage image(QStringLiteral(":/ColCal/checked.png"));
    ASSERT_EQ(image.size(), QSize(13, 13));
    for (int i = 0; i < 13; ++i) {
        EXPECT_EQ(qAlpha(image.pixel(i, 0)), 0);
        EXPECT_EQ(qAlpha(image.pixel(i, 12)), 0);
        EXPECT_EQ(qAlpha(image.pixel(0, i)), 0);
        EXPECT_EQ(qAlpha(image.pixel(12, i)), 0);
    }
}

TEST(MenuIcon, HasSharpPatches)
{
    const QImage icon(QStringLiteral(":/ColCal/icons/cct_icon_22x22.png"));
    ASSERT_EQ(icon.size(), QSize(22, 22));
    // Patches of five pixels, one pixel apart, beside each other in the first row.
    for (int column = 0; column < 3; ++column) {
        const int left = 2 + 6 * column;
        EXPECT_EQ(icon.pixel(left, 3), icon.pixel(left + 4, 7)) << column;
        EXPECT_NE(icon.pixel(left + 4, 5), icon.pixel(left + 5, 5)) << column;
    }
    EXPECT_NE(icon.pixel(4, 5), icon.pixel(10, 5));
}

} // namespace
