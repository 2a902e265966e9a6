// SPDX-License-Identifier: Apache-2.0
// The chart finder's picture operations on numbers that can be worked out by hand.
#include "chartfinderalgorithm.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ColorCalibration;

namespace {

const ChartFinderAlgorithm algorithm;

QImage uniform(const QSize& size, const QColor& color,
               QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(size, format);
    image.fill(color);
    return image;
}

void fillRect(QImage& image, const QRect& rect, const QColor& color)
{
    const QRect inside = rect & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            image.setPixelColor(x, y, color);
}

/// A row of pixels of these greens on 0 to 255.
QImage greenRow(const std::vector<int>& greens)
{
    QImage image(int(greens.size()), 1, QImage::Format_ARGB32);
    for (int x = 0; x < image.width(); ++x)
        image.setPixelColor(x, 0, QColor(0, greens[std::size_t(x)], 0));
    return image;
}

} // namespace

TEST(BoxBlur, SpreadsAPixelOverElevenByEleven)
{
    QImage image = uniform(QSize(31, 29), Qt::black);
    image.setPixelColor(15, 14, QColor(255, 0, 255));
    const QImage blurred = algorithm.boxBlur(image, 5);
    // 255 / 11 is 23 after the first pass, 23 / 11 is 2 after the second.
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const bool inside = qAbs(x - 15) <= 5 && qAbs(y - 14) <= 5;
            ASSERT_EQ(blurred.pixelColor(x, y), inside ? QColor(2, 0, 2) : QColor(0, 0, 0))
                << x << ", " << y;
        }
}

TEST(BoxBlur, RepeatsTheEdgePixels)
{
    // 255 0 0 0 with two copies of the first on the left: means 255 * 3/5, 2/5, 1/5, 0.
    QImage image = uniform(QSize(4, 1), Qt::black);
    image.setPixelColor(0, 0, QColor(255, 255, 255));
    const QImage blurred = algorithm.boxBlur(image, 2);
    const int expected[] = {153, 102, 51, 0};
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(blurred.pixelColor(x, 0).green(), expected[x]) << x;
}

TEST(BoxBlur, LeavesAUniformImageAsItIs)
{
    for (int level = 0; level < 256; ++level) {
        const QColor color(level, 255 - level, level / 2);
        const QImage image = uniform(QSize(40, 30), color);
        ASSERT_EQ(algorithm.boxBlur(image, 5), image) << level;
    }
}

TEST(BoxBlur, MakesAnOpaqueImageAndIgnoresAlpha)
{
    const QImage image = uniform(QSize(20, 20), QColor(200, 100, 50, 10));
    const QImage blurred = algorithm.boxBlur(image, 5);
    EXPECT_EQ(blurred.format(), QImage::Format_ARGB32);
    EXPECT_EQ(blurred.pixelColor(7, 7), QColor(200, 100, 50, 255));
}

TEST(BoxBlur, TakesAnyRadius)
{
    QImage image = uniform(QSize(5, 4), QColor(10, 20, 30));
    image.setPixelColor(2, 2, QColor(250, 200, 100));
    EXPECT_EQ(algorithm.boxBlur(image, 0), image);
    EXPECT_EQ(algorithm.boxBlur(image, -7), image);
    const QImage widest = algorithm.boxBlur(image, std::numeric_limits<int>::max());
    EXPECT_EQ(widest, algorithm.boxBlur(image, 1000));
    // 1000 of the 2001 samples are the first one, as many the last.
    EXPECT_EQ(widest.pixelColor(2, 2), QColor(10, 20, 30));
}

TEST(BoxBlur, OfANullImageIsNull)
{
    EXPECT_TRUE(algorithm.boxBlur(QImage(), 5).isNull());
}

TEST(KeepChannel, KeepsTheValuesOfOneChannelAndClearsTheOthers)
{
    QImage image(256, 1, QImage::Format_RGB32);
    for (int v = 0; v < 256; ++v)
        image.setPixelColor(v, 0, QColor(v, 255 - v, v / 2));
    const QImage red = algorithm.keepChannel(QColor(1, 0, 0, 255), image);
    const QImage green = algorithm.keepChannel(QColor(0, 1, 0, 255), image);
    const QImage blue = algorithm.keepChannel(QColor(0, 0, 1, 255), image);
    for (int v = 0; v < 256; ++v) {
        ASSERT_EQ(red.pixelColor(v, 0), QColor(v, 0, 0));
        ASSERT_EQ(green.pixelColor(v, 0), QColor(0, 255 - v, 0));
        ASSERT_EQ(blue.pixelColor(v, 0), QColor(0, 0, v / 2));
    }
}

TEST(KeepChannel, KeepsColorOfAGrayscaleImage)
{
    const QImage gray = uniform(QSize(3, 3), QColor(90, 90, 90), QImage::Format_Grayscale8);
    EXPECT_EQ(algorithm.keepChannel(QColor(0, 1, 0), gray).pixelColor(1, 1), QColor(0, 90, 0));
}

TEST(KeepChannel, OfANullImageIsNull)
{
    EXPECT_TRUE(algorithm.keepChannel(QColor(1, 0, 0), QImage()).isNull());
}

TEST(ChannelRatio, DividesTheSumsPixelByPixelWithOneRowPerColumnOfTheImage)
{
    QImage numerator = uniform(QSize(3, 2), QColor(100, 0, 0));
    QImage denominator = uniform(QSize(3, 2), QColor(0, 200, 0));
    numerator.setPixelColor(2, 1, QColor(51, 102, 153));
    denominator.setPixelColor(2, 1, QColor(1, 2, 30));
    const dlib::matrix<float> ratios = algorithm.channelRatio(numerator, denominator);
    ASSERT_EQ(ratios.nr(), 3);
    ASSERT_EQ(ratios.nc(), 2);
    EXPECT_FLOAT_EQ(ratios(0, 0), 0.5F);
    EXPECT_FLOAT_EQ(ratios(2, 0), 0.5F);
    EXPECT_FLOAT_EQ(ratios(2, 1), 306.0F / 33.0F);
}

TEST(ChannelRatio, IsOneForBothMapsWhereGreenIsZero)
{
    const QImage image = uniform(QSize(2, 2), QColor(200, 0, 3));
    const QImage red = algorithm.keepChannel(QColor(1, 0, 0, 255), image);
    const QImage green = algorithm.keepChannel(QColor(0, 1, 0, 255), image);
    const QImage blue = algorithm.keepChannel(QColor(0, 0, 1, 255), image);
    EXPECT_EQ(algorithm.channelRatio(red, green)(1, 1), 1.0F);
    EXPECT_EQ(algorithm.channelRatio(blue, green)(1, 1), 1.0F);
}

TEST(ChannelRatio, OfImagesThatDifferIsASingleZero)
{
    const QImage image = uniform(QSize(4, 3), Qt::white);
    for (const QImage& other : {uniform(QSize(5, 3), Qt::white), uniform(QSize(4, 4), Qt::white),
                                uniform(QSize(4, 3), Qt::white, QImage::Format_RGB32), QImage()}) {
        const dlib::matrix<float> ratios = algorithm.channelRatio(image, other);
        ASSERT_EQ(ratios.nr(), 1);
        ASSERT_EQ(ratios.nc(), 1);
        EXPECT_EQ(ratios(0, 0), 0.0F);
    }
}

TEST(ChannelRatio, OfNullImagesIsEmpty)
{
    EXPECT_EQ(algorithm.channelRatio(QImage(), QImage()).size(), 0);
}

TEST(WeightedRaySum, WeighsFromLengthDownToOne)
{
    const QImage image = greenRow({255, 51, 0, 102});
    // 1 * 4 + 0.2 * 3 + 0 * 2 + 0.4 * 1
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(0, 0), 0, 1, 4), 5.0F);
    // 0.4 * 2 + 0 * 1
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(3, 0), 0, -1, 2), 0.8F);
    // 1 * 3 + 0 * 2 with a step of two, then beyond the end
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(0, 0), 0, 2, 3), 3.0F);
}

TEST(WeightedRaySum, CountsPixelsOutsideAsZero)
{
    const QImage image = greenRow({255, 51, 0, 102});
    // two outside, then 1 * 4 + 0.2 * 3 + 0.4 * 1
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(-2, 0), 0, 1, 6), 5.0F);
    EXPECT_EQ(algorithm.weightedRaySum(image, QPoint(0, 1), 0, 1, 4), 0.0F);
    EXPECT_EQ(algorithm.weightedRaySum(image, QPoint(4, 0), 1, 1, 9), 0.0F);
    EXPECT_EQ(algorithm.weightedRaySum(QImage(), QPoint(0, 0), 1, 1, 9), 0.0F);
}

TEST(WeightedRaySum, TakesTheLongestRaysAndTheFarthestStarts)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const QImage image = greenRow({255, 255});
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(0, 0), 0, 1, most), 2.0F * float(most));
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(1, 0), least, least, most), float(most));
    EXPECT_EQ(algorithm.weightedRaySum(image, QPoint(least, 0), 0, most, 2), 0.0F);
    EXPECT_EQ(algorithm.weightedRaySum(image, QPoint(most, most), -1, -1, 1000), 0.0F);
    EXPECT_EQ(algorithm.weightedRaySum(image, QPoint(0, 0), 0, 1, least), 0.0F);
    // Without a step the same pixel is taken again and again: 3 + 2 + 1.
    EXPECT_FLOAT_EQ(algorithm.weightedRaySum(image, QPoint(0, 0), 0, 0, 3), 6.0F);
    // At most from 32767 down to 1, which is 32767 * 32768 / 2 but for the rounding of the sum.
    const float resting = algorithm.weightedRaySum(image, QPoint(0, 0), 0, 0, 32767);
    EXPECT_NEAR(resting, 536854528.0F, 1e5F);
    EXPECT_EQ(algorithm.weightedRaySum(image, QPoint(0, 0), 0, 0, most), resting);
}

TEST(SeekPatchCenter, ClimbsToTheMiddleOfABrightPatch)
{
    QImage image = uniform(QSize(60, 60), Qt::black);
    fillRect(image, QRect(20, 24, 21, 21), QColor(0, 180, 0));
    for (const QPoint& start : {QPoint(24, 30), QPoint(36, 40), QPoint(30, 34), QPoint(25, 40)})
        EXPECT_EQ(algorithm.seekPatchCenter(image, start, 15.0, 1, 1), QPoint(30, 34))
            << start.x() << ", " << start.y();
}

TEST(SeekPatchCenter, MovesAtMostAPixelPerAxisAndRayLength)
{
    QImage image = uniform(QSize(60, 60), Qt::black);
    fillRect(image, QRect(20, 20, 21, 21), QColor(0, 180, 0));
    // Lengths 2 and 3 reach over the left and upper edges, length 2.4 rounds to 2.
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(20, 20), 3.0, 1, 1), QPoint(22, 22));
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(20, 20), 2.4, 1, 1), QPoint(21, 21));
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(20, 20), 2.5, 1, 1), QPoint(22, 22));
}

TEST(SeekPatchCenter, WithSignMinusOneMovesAwayFromGreen)
{
    QImage image = uniform(QSize(60, 60), Qt::black);
    fillRect(image, QRect(20, 20, 21, 21), QColor(0, 180, 0));
    // Once left of the patch it sees no green above or below.
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(20, 20), 2.0, -1, 1), QPoint(19, 20));
}

TEST(SeekPatchCenter, StaysWhereTheFirstRayIsLongerThanTheRadius)
{
    QImage image = uniform(QSize(60, 60), Qt::black);
    fillRect(image, QRect(20, 20, 21, 21), QColor(0, 180, 0));
    const QPoint start(21, 39);
    EXPECT_EQ(algorithm.seekPatchCenter(image, start, 4.0, 1, 4), start);
    EXPECT_EQ(algorithm.seekPatchCenter(image, start, 0.0, 1, 1), start);
    EXPECT_EQ(algorithm.seekPatchCenter(image, start, -3.0, 1, 1), start);
    EXPECT_EQ(algorithm.seekPatchCenter(image, start, 9.0, 1, std::numeric_limits<int>::max()),
              start);
}

TEST(SeekPatchCenter, StaysOnAUniformImageFarFromItsBorders)
{
    const QImage image = uniform(QSize(60, 60), QColor(0, 77, 0));
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(30, 25), 15.0, 1, 1), QPoint(30, 25));
}

TEST(SeekPatchCenter, MovesTheOldPointsRowOnlyAfterItsColumn)
{
    // Up from (1, 1) and (0, 1) differ: only the point with its new x sees the green above.
    QImage image = uniform(QSize(3, 3), Qt::black);
    image.setPixelColor(0, 1, QColor(0, 255, 0));
    image.setPixelColor(0, 0, QColor(0, 255, 0));
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(1, 1), 2.0, 1, 1), QPoint(0, 0));
}

TEST(SeekPatchCenter, EndsForEveryRadiusAndStart)
{
    const QImage image = uniform(QSize(20, 20), QColor(0, 100, 0));
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(3, 4), std::nan(""), 1, 1), QPoint(3, 4));
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(3, 4), -infinity, 1, 1), QPoint(3, 4));
    EXPECT_EQ(algorithm.seekPatchCenter(image, QPoint(3, 4), infinity, 1, 1),
              algorithm.seekPatchCenter(image, QPoint(3, 4), 32767.0, 1, 1));
    const QPoint farthest(std::numeric_limits<int>::max(), std::numeric_limits<int>::min());
    EXPECT_EQ(algorithm.seekPatchCenter(image, farthest, 1000.0, 1, -5), farthest);
    EXPECT_EQ(algorithm.seekPatchCenter(QImage(), QPoint(3, 4), 50.0, 1, 1), QPoint(3, 4));
}

TEST(OuterCorners, LieHalfAPitchBeyondTheCornerPatches)
{
    QVector<QPoint> centers;
    for (int patch = 0; patch < 24; ++patch)
        centers.append(QPoint(100 + 50 * (patch % 6), 80 + 40 * (patch / 6)));
    EXPECT_EQ(algorithm.outerCorners(centers),
              (QVector<QPoint>{{75, 60}, {375, 60}, {75, 220}, {375, 220}}));
}

TEST(OuterCorners, TruncateTowardsZeroAndMeasureEachCornerByItself)
{
    QVector<QPoint> centers(24, QPoint(0, 0));
    centers[0] = {3, 2};
    centers[1] = {10, 0}; // 3 - 3.5 is -0.5, which becomes 0
    centers[6] = {0, 9};  // 2 - 3.5 is -1.5, which becomes -1
    centers[5] = {200, 10};
    centers[4] = {149, 0}; // 200 + 25.5
    centers[11] = {0, 21}; // 10 - 5.5
    centers[18] = {7, 90};
    centers[19] = {2, 0};  // the difference counts without its sign: 7 - 2.5
    centers[12] = {0, 61}; // 90 + 14.5
    centers[23] = {220, 95};
    centers[22] = {180, 0};
    centers[17] = {0, 65};
    EXPECT_EQ(algorithm.outerCorners(centers),
              (QVector<QPoint>{{0, -1}, {225, 4}, {4, 104}, {240, 110}}));
}

TEST(OuterCorners, NeedAllCenters)
{
    EXPECT_TRUE(algorithm.outerCorners({}).isEmpty());
    EXPECT_TRUE(algorithm.outerCorners(QVector<QPoint>(23)).isEmpty());
    EXPECT_TRUE(algorithm.outerCorners(QVector<QPoint>(25)).isEmpty());
}

TEST(OuterCorners, HoldOutTheFarthestCenters)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    QVector<QPoint> centers(24, QPoint(most, most));
    centers[0] = centers[18] = QPoint(least, least);
    const QVector<QPoint> corners = algorithm.outerCorners(centers);
    ASSERT_EQ(corners.size(), 4);
    EXPECT_EQ(corners[0], QPoint(least, least));
    EXPECT_EQ(corners[3], QPoint(most, most));
}
