// SPDX-License-Identifier: Apache-2.0
// Tests of the pictures that the live image shows.
#include "livepictures.h"

#include <gtest/gtest.h>

using ColorCalibration::cameraPicture;
using ColorCalibration::failurePicture;
using ColorCalibration::indicatorAngle;
using ColorCalibration::overduePicture;

namespace {

constexpr QRgb red = 0xffff0000;
constexpr QRgb blue = 0xff0000ff;
constexpr QRgb white = 0xffffffff;
constexpr QRgb gray = 0xff808080;

QImage filled(const QSize& size, QRgb color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// Upper half red, lower half blue.
QImage halves(const QSize& size)
{
    QImage image = filled(size, red);
    for (int y = size.height() / 2; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, blue);
    return image;
}

TEST(CameraPicture, StretchesWithoutRegardToTheAspectRatio)
{
    const QImage picture = cameraPicture(halves(QSize(40, 4)), QSize(6, 20));
    ASSERT_EQ(picture.size(), QSize(6, 20));
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(picture.pixel(x, y), y < 10 ? red : blue) << x << ' ' << y;
}

TEST(CameraPicture, MixesNoNeighbors)
{
    const QImage picture = cameraPicture(halves(QSize(4, 4)), QSize(5, 7));
    for (int y = 0; y < 7; ++y)
        EXPECT_TRUE(picture.pixel(2, y) == red || picture.pixel(2, y) == blue) << y;
}

TEST(CameraPicture, IsOpaqueArgbWithoutPaddingWhateverTheImageIs)
{
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGB888,
          QImage::Format_Grayscale8, QImage::Format_ARGB32_Premultiplied}) {
        const QImage picture =
            cameraPicture(filled(QSize(9, 9), gray).convertToFormat(format), QSize(7, 5));
        EXPECT_EQ(picture.format(), QImage::Format_ARGB32);
        EXPECT_EQ(picture.bytesPerLine(), 7 * 4);
        EXPECT_EQ(picture.pixel(3, 2), gray) << format;
    }
}

TEST(FailurePicture, HasTheLogoInTheMiddleOfWhite)
{
    const QImage picture = failurePicture(filled(QSize(4, 2), blue), QSize(20, 10));
    ASSERT_EQ(picture.size(), QSize(20, 10));
    ASSERT_EQ(picture.format(), QImage::Format_ARGB32);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x) {
            const bool inLogo = x >= 8 && x < 12 && y >= 4 && y < 6;
            EXPECT_EQ(picture.pixel(x, y), inLogo ? blue : white) << x << ' ' << y;
        }
}

TEST(FailurePicture, ShowsTheMiddleOfALogoThatIsLarger)
{
    QImage logo = filled(QSize(30, 30), blue);
    logo.setPixel(15, 15, red);
    const QImage picture = failurePicture(logo, QSize(4, 4));
    EXPECT_EQ(picture.pixel(2, 2), red);
    EXPECT_EQ(picture.pixel(0, 0), blue);
}

TEST(FailurePicture, IsWhiteWithoutALogo)
{
    const QImage picture = failurePicture(QImage(), QSize(4, 4));
    EXPECT_EQ(picture.pixel(2, 2), white);
}

TEST(IndicatorAngle, TurnsOnceInOneAndAHalfSeconds)
{
    EXPECT_EQ(indicatorAngle(0), 0);
    EXPECT_EQ(indicatorAngle(1), 0); // 0.24
    EXPECT_EQ(indicatorAngle(375), 90);
    EXPECT_EQ(indicatorAngle(1001), 240); // 240.24
    EXPECT_EQ(indicatorAngle(1499), 359); // 359.76
    EXPECT_EQ(indicatorAngle(1500), 0);
    EXPECT_EQ(indicatorAngle(2250), 180);
    EXPECT_EQ(indicatorAngle(3600LL * 1000 * 24 * 365), 0);
}

TEST(OverduePicture, HasTheIndicatorInTheMiddleOfTheLowerHalf)
{
    // 30 x 30 pixels of it, about (100, 75).
    const QImage before = filled(QSize(200, 100), gray);
    const QImage picture = overduePicture(before, filled(QSize(100, 100), red), 0);
    ASSERT_EQ(picture.size(), before.size());
    EXPECT_EQ(picture.pixel(100, 75), red);
    for (const QPoint& inside : {QPoint(87, 62), QPoint(112, 62), QPoint(87, 87), QPoint(112, 87)})
        EXPECT_EQ(picture.pixel(inside), red) << inside.x() << ' ' << inside.y();
    for (const QPoint& outside :
         {QPoint(83, 75), QPoint(117, 75), QPoint(100, 58), QPoint(100, 92)})
        EXPECT_EQ(picture.pixel(outside), gray) << outside.x() << ' ' << outside.y();
    EXPECT_EQ(before.pixel(100, 75), gray);
}

TEST(OverduePicture, TurnsTheIndicatorClockwise)
{
    const QImage before = filled(QSize(200, 100), gray);
    const QImage indicator = halves(QSize(100, 100));
    const QImage upright = overduePicture(before, indicator, 0);
    EXPECT_EQ(upright.pixel(100, 67), red);
    EXPECT_EQ(upright.pixel(100, 83), blue);
    const QImage quarter = overduePicture(before, indicator, 90);
    EXPECT_EQ(quarter.pixel(108, 75), red);
    EXPECT_EQ(quarter.pixel(92, 75), blue);
    const QImage half = overduePicture(before, indicator, 180);
    EXPECT_EQ(half.pixel(100, 83), red);
    EXPECT_EQ(half.pixel(100, 67), blue);
}

} // namespace
