// SPDX-License-Identifier: Apache-2.0
// Which position the chart finder's scan keeps, and how it walks from there over the chart.
#include "anchorsearch.h"
#include "chartfinderalgorithm.h"

#include "chartscene.h"
#include "charttargets.h"
#include "pixelrows.h"

#include <QPolygonF>
#include <QTransform>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ColorCalibration;

namespace {

const ChartFinderAlgorithm algorithm;

QImage uniform(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// A patch of the chart as the table says it, in linear light.
QColor patchColor(int patch)
{
    const PatchColors targets = ChartTargets().TargetColors();
    return {qRound(targets(patch, 0)), qRound(targets(patch, 1)), qRound(targets(patch, 2))};
}

/// Nine squares that touch each other, in the colours of the anchor block; the one in the middle
/// can be spoiled.
void drawBlock(QImage& image, const QPoint& center, int pitch, const QColor& spoiled = QColor())
{
    for (int i = 0; i < 9; ++i) {
        const QColor color =
            i == 4 && spoiled.isValid() ? spoiled : patchColor(i / 3 * 6 + i % 3 + 1);
        const QPoint middle = center + QPoint(i % 3 - 1, i / 3 - 1) * pitch;
        for (int y = -pitch / 2; y <= pitch / 2; ++y)
            for (int x = -pitch / 2; x <= pitch / 2; ++x)
                image.setPixelColor(middle + QPoint(x, y), color);
    }
}

QVector<QPoint> blockAt(const QPoint& center, int pitch)
{
    QVector<QPoint> points;
    for (int i = 0; i < 9; ++i)
        points.append(center + QPoint(i % 3 - 1, i / 3 - 1) * pitch);
    return points;
}

/// A chart seen straight on, 60 pixels from patch to patch, its first centre at (130, 110).
ChartScene::Scene straightScene()
{
    ChartScene::Scene scene;
    scene.size = QSize(640, 480);
    scene.corners = {QPointF(100, 80), QPointF(460, 80), QPointF(100, 320), QPointF(460, 320)};
    return scene;
}

QPoint straightCenter(int patch)
{
    return {130 + patch % 6 * 60, 110 + patch / 6 * 60};
}

double distance(const QPoint& a, const QPoint& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

float scoreOf(const QImage& image, const QVector<QPoint>& block)
{
    const QPoint& middle = block[4];
    return AnchorScore().at(toRgbBytes(image), middle.x(), middle.y(), block[5].x() - middle.x());
}

} // namespace

TEST(FindAnchorBlock, FindsTheBlockAmongNothingElse)
{
    QImage image = uniform(QSize(640, 480), QColor(90, 90, 90));
    drawBlock(image, QPoint(330, 250), 60);
    const QVector<QPoint> block = algorithm.findAnchorBlock(image);
    ASSERT_EQ(block.size(), 9);
    for (int i = 0; i < 9; ++i) {
        const QPoint middle = blockAt(QPoint(330, 250), 60)[i];
        EXPECT_LT(distance(block[i], middle), 30.0 * std::sqrt(2.0)) << i;
    }
}

TEST(FindAnchorBlock, AnswersTheFirstPositionOfTheLargestPitchWhereAllScoresAreEqual)
{
    // 640 / 6 is 106.67: pitch 107, x from 2 * 107, y from 1.5 * 107 rounded up.
    EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(640, 480), QColor(120, 80, 60))),
              blockAt(QPoint(214, 161), 107));
    // 320 / 4 is 80: x from 160, y from 120.
    EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(640, 320), QColor(120, 80, 60))),
              blockAt(QPoint(160, 120), 80));
}

TEST(FindAnchorBlock, KeepsTheOneVisitedFirstOfTwoEqualBlocks)
{
    // Pitches 107, 80, 60: with 60 the positions are 120 + 20 i across and 90 + 20 k down, so
    // that both blocks are met in the same way.
    QImage sideBySide = uniform(QSize(640, 480), QColor(90, 90, 90));
    drawBlock(sideBySide, QPoint(180, 210), 60);
    drawBlock(sideBySide, QPoint(440, 210), 60);
    QImage left = uniform(QSize(640, 480), QColor(90, 90, 90));
    drawBlock(left, QPoint(180, 210), 60);
    EXPECT_EQ(algorithm.findAnchorBlock(sideBySide), algorithm.findAnchorBlock(left));

    QImage oneAboveTheOther = uniform(QSize(640, 480), QColor(90, 90, 90));
    drawBlock(oneAboveTheOther, QPoint(300, 110), 60);
    drawBlock(oneAboveTheOther, QPoint(300, 370), 60);
    QImage upper = uniform(QSize(640, 480), QColor(90, 90, 90));
    drawBlock(upper, QPoint(300, 110), 60);
    EXPECT_EQ(algorithm.findAnchorBlock(oneAboveTheOther), algorithm.findAnchorBlock(upper));
}

TEST(FindAnchorBlock, GoesOnAfterAHighScore)
{
    // The large block alone is found with a high score; the small one, visited later, is perfect.
    QImage image = uniform(QSize(640, 480), QColor(90, 90, 90));
    drawBlock(image, QPoint(220, 200), 90, QColor(140, 40, 40));
    const QVector<QPoint> large = algorithm.findAnchorBlock(image);
    ASSERT_LT(distance(large[4], QPoint(220, 200)), 45.0);
    ASSERT_GT(distance(large[0], large[1]), 70.0);
    const float score = scoreOf(image, large);
    EXPECT_GT(score, 0.8F);

    drawBlock(image, QPoint(520, 390), 45);
    const QVector<QPoint> small = algorithm.findAnchorBlock(image);
    EXPECT_LT(distance(small[4], QPoint(520, 390)), 22.5 * std::sqrt(2.0));
    EXPECT_LT(distance(small[0], small[1]), 50.0);
    EXPECT_EQ(scoreOf(image, large), score);
    EXPECT_GT(scoreOf(image, small), score);
    EXPECT_NEAR(scoreOf(image, small), 1.0F, 1e-3F);
}

TEST(FindAnchorBlock, ExaminesNothingWhereTheLargestPitchIsNotAboveTwentyPixels)
{
    const QVector<QPoint> none(9, QPoint(0, 0));
    const QColor color(120, 80, 60);
    EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(640, 80), color)), none);
    EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(120, 480), color)), none);
    EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(1, 1), color)), none);
    EXPECT_EQ(algorithm.findAnchorBlock(QImage()), none);
    // 81 / 4 is 20.25: one scale, pitch 20.
    EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(640, 81), color)),
              blockAt(QPoint(40, 30), 20));
}

TEST(FindAnchorBlock, FindsNothingWhereNoScoreIsAboveTheOneToBeginWith)
{
    // Without red or without blue a correlation is 0 / 0.
    const QVector<QPoint> none(9, QPoint(0, 0));
    for (const QColor& color : {QColor(0, 200, 0), QColor(90, 200, 0), QColor(0, 200, 90)})
        EXPECT_EQ(algorithm.findAnchorBlock(uniform(QSize(640, 480), color)), none);
}

TEST(FindAnchorBlock, TakesNoPixelOutsideOfAnySize)
{
    for (int width = 118; width < 140; ++width)
        for (int height = 78; height < 100; ++height)
            for (const QPoint& point :
                 algorithm.findAnchorBlock(uniform(QSize(width, height), Qt::darkGray)))
                ASSERT_TRUE(QRect(0, 0, width, height).contains(point));
}

TEST(FindAnchorBlock, IsNotMovedByTheLevelOfTheLight)
{
    // Ratios alone count: half the light halves every byte, so even bytes keep their ratios.
    QImage bright(640, 480, QImage::Format_RGB32);
    QImage dim(640, 480, QImage::Format_RGB32);
    const QImage scene = ChartScene::render(straightScene());
    for (int y = 0; y < 480; ++y)
        for (int x = 0; x < 640; ++x) {
            const QColor color = scene.pixelColor(x, y);
            const QColor half(color.red() / 2, color.green() / 2, color.blue() / 2);
            dim.setPixelColor(x, y, half);
            bright.setPixelColor(x, y, QColor(half.red() * 2, half.green() * 2, half.blue() * 2));
        }
    EXPECT_EQ(algorithm.findAnchorBlock(bright), algorithm.findAnchorBlock(dim));
}

TEST(FindAnchorBlock, DoesNotTurnTheChart)
{
    const QImage upright = algorithm.boxBlur(ChartScene::render(straightScene()), 5);
    const QImage turned = upright.transformed(QTransform().rotate(180));
    const QVector<QPoint> found = algorithm.findAnchorBlock(upright);
    EXPECT_LT(distance(found[4], straightCenter(8)), 30.0);
    const QVector<QPoint> block = algorithm.findAnchorBlock(turned);
    EXPECT_GT(distance(block[4], QPoint(639, 479) - straightCenter(8)), 30.0);
    // What is taken for the block instead is less like it.
    EXPECT_LT(scoreOf(turned, block), 0.95F * scoreOf(upright, found));
}

TEST(FitPatchCenters, FindsAllPatchesFromARoughBlock)
{
    const QImage smoothed = algorithm.boxBlur(ChartScene::render(straightScene()), 5);
    for (const QPoint& error : {QPoint(0, 0), QPoint(9, -8), QPoint(-12, 10)}) {
        const QVector<QPoint> centers =
            algorithm.fitPatchCenters(smoothed, blockAt(straightCenter(8) + error, 60));
        ASSERT_EQ(centers.size(), 24);
        for (int patch = 0; patch < 24; ++patch)
            EXPECT_LT(distance(centers[patch], straightCenter(patch)), 6.0) << patch;
    }
}

TEST(FitPatchCenters, FollowsColumnsThatSpread)
{
    // From 53 pixels a column above to 60 below: row and column act together, which an affine
    // grid cannot follow.
    ChartScene::Scene scene = straightScene();
    scene.corners = {QPointF(120, 80), QPointF(440, 80), QPointF(100, 320), QPointF(460, 320)};
    QTransform toImage;
    ASSERT_TRUE(QTransform::quadToQuad(
        QPolygonF({{0, 0}, {6, 0}, {6, 4}, {0, 4}}),
        QPolygonF({scene.corners[0], scene.corners[1], scene.corners[3], scene.corners[2]}),
        toImage));
    const auto center = [&toImage](int patch) {
        return toImage.map(QPointF(patch % 6 + 0.5, patch / 6 + 0.5)).toPoint();
    };
    QVector<QPoint> block;
    for (int i = 0; i < 9; ++i)
        block.append(center(i / 3 * 6 + i % 3 + 1));
    const QImage smoothed = algorithm.boxBlur(ChartScene::render(scene), 5);
    const QVector<QPoint> centers = algorithm.fitPatchCenters(smoothed, block);
    for (int patch = 0; patch < 24; ++patch)
        EXPECT_LT(distance(centers[patch], center(patch)), 9.0) << patch;
}

TEST(FitPatchCenters, PaysNoHeedToPatch17)
{
    const QVector<QPoint> block = blockAt(straightCenter(8), 60);
    QImage image = algorithm.boxBlur(ChartScene::render(straightScene()), 5);
    const QVector<QPoint> before = algorithm.fitPatchCenters(image, block);
    const auto paint = [&image](int patch) {
        for (int y = -22; y <= 22; ++y)
            for (int x = -22; x <= 22; ++x)
                image.setPixelColor(straightCenter(patch) + QPoint(x, y),
                                    x > 0 ? QColor(255, 255, 255) : QColor(0, 0, 0));
    };
    paint(17);
    EXPECT_EQ(algorithm.fitPatchCenters(image, block), before);
    // Another of the far corners does count.
    paint(5);
    EXPECT_NE(algorithm.fitPatchCenters(image, block), before);
}

TEST(FitPatchCenters, StaysAtTheOriginWithABlockThatWasNotFound)
{
    const QImage image = algorithm.boxBlur(ChartScene::render(straightScene()), 5);
    const QVector<QPoint> nothing(24, QPoint(0, 0));
    EXPECT_EQ(algorithm.fitPatchCenters(image, QVector<QPoint>(9, QPoint(0, 0))), nothing);
    EXPECT_EQ(algorithm.fitPatchCenters(QImage(), QVector<QPoint>(9, QPoint(0, 0))), nothing);
}

TEST(FitPatchCenters, NeedsNinePoints)
{
    const QImage image = uniform(QSize(50, 50), Qt::gray);
    EXPECT_TRUE(algorithm.fitPatchCenters(image, {}).isEmpty());
    EXPECT_TRUE(algorithm.fitPatchCenters(image, QVector<QPoint>(8)).isEmpty());
    EXPECT_TRUE(algorithm.fitPatchCenters(image, QVector<QPoint>(10)).isEmpty());
}

TEST(FitPatchCenters, EndsForAnyBlock)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const QImage image = uniform(QSize(50, 50), Qt::gray);
    QVector<QPoint> block(9, QPoint(most, most));
    block[0] = QPoint(least, most);
    block[8] = QPoint(25, 25);
    EXPECT_EQ(algorithm.fitPatchCenters(image, block).size(), 24);
}

TEST(LocateCorners, GivesPixelsOfTheImageHandedIn)
{
    // Twice as wide with every pixel doubled reduces to the very same image.
    const QImage image = ChartScene::render(straightScene());
    const QVector<QPoint> corners = algorithm.locateCorners(image);
    const QVector<QPoint> doubled = algorithm.locateCorners(image.scaled(1280, 960));
    ASSERT_EQ(corners.size(), 4);
    ASSERT_EQ(doubled.size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(doubled[i], corners[i] * 2) << i;
}

TEST(LocateCorners, GivesTheChartsOutline)
{
    const ChartScene::Scene scene = straightScene();
    const QVector<QPoint> corners = algorithm.locateCorners(ChartScene::render(scene));
    ASSERT_EQ(corners.size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_LT(distance(corners[i], scene.corners[std::size_t(i)].toPoint()), 9.0) << i;
}

TEST(LocateCorners, SearchesNoImageWhoseReducedCopyTakesTooMuchMemory)
{
    const auto search = [](const QSize& size, QImage::Format format) {
        QImage image(size, format);
        image.fill(Qt::darkGreen);
        return algorithm.locateCorners(image);
    };
    EXPECT_EQ(search(QSize(100, 540), QImage::Format_RGB32).size(), 4);
    EXPECT_TRUE(search(QSize(100, 542), QImage::Format_RGB32).isEmpty());
    EXPECT_EQ(search(QSize(100, 343), QImage::Format_RGBX64).size(), 4);
    EXPECT_TRUE(search(QSize(100, 345), QImage::Format_RGBX64).isEmpty());
    EXPECT_TRUE(search(QSize(20, 20000), QImage::Format_RGB888).isEmpty());
    EXPECT_TRUE(search(QSize(1, 1000000), QImage::Format_Grayscale8).isEmpty());
}
