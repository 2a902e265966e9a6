// SPDX-License-Identifier: Apache-2.0
// What the chart finder answers and announces, and that no image brings it down.
#include "colorcorrectionautochartfinder.h"

#include "chartscene.h"
#include "obviouschartfinder.h"

#include <QLineF>
#include <QMetaMethod>
#include <QThread>
#include <QVariant>
#include <QVector>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace ColorCalibration;
using Result = ColorCorrectionAutoChartFinderResult;

namespace {

ChartScene::Scene scene()
{
    ChartScene::Scene made;
    made.size = QSize(800, 600);
    made.corners = ChartScene::cornersOf({QPointF(420, 290), 500.0, 2.0});
    made.noise = 1.5;
    return made;
}

QImage uniform(const QSize& size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(QColor(120, 110, 90));
    return image;
}

Result find(const QImage& image)
{
    return ColorCorrectionAutoChartFinder().findChart(image);
}

} // namespace

TEST(ColorCorrectionAutoChartFinderResult, StartsAtZeroAndNotValid)
{
    const Result result;
    EXPECT_EQ(result.upperLeft, QPoint(0, 0));
    EXPECT_EQ(result.upperRight, QPoint(0, 0));
    EXPECT_EQ(result.lowerLeft, QPoint(0, 0));
    EXPECT_EQ(result.lowerRight, QPoint(0, 0));
    EXPECT_FALSE(result.valid);
}

TEST(ColorCorrectionAutoChartFinderResult, TravelsInAVariant)
{
    const Result result{{1, 2}, {3, 4}, {5, 6}, {7, 8}, true};
    EXPECT_EQ(QVariant::fromValue(result).value<Result>(), result);
}

TEST(ColorCorrectionAutoChartFinder, FindsTheChart)
{
    const ChartScene::Scene made = scene();
    const Result result = find(ChartScene::render(made));
    ASSERT_TRUE(result.valid);
    const QPoint found[] = {result.upperLeft, result.upperRight, result.lowerLeft,
                            result.lowerRight};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_LT(QLineF(found[i], made.corners[i]).length(), 0.25 * 500.0 / 6.0) << i;
}

TEST(ColorCorrectionAutoChartFinder, EmitsTheRecordOnceAndReturnsIt)
{
    ColorCorrectionAutoChartFinder finder;
    std::vector<Result> emitted;
    QObject::connect(&finder, &ColorCorrectionAutoChartFinder::autoChartFinderFinished,
                     [&emitted](const Result& result) { emitted.push_back(result); });
    const Result found = finder.findChart(ChartScene::render(scene()));
    EXPECT_EQ(emitted, std::vector<Result>{found});
    const Result none = finder.findChart(QImage());
    EXPECT_EQ(emitted, (std::vector<Result>{found, none}));
}

TEST(ColorCorrectionAutoChartFinder, EmitsOnTheCallingThread)
{
    ColorCorrectionAutoChartFinder finder;
    QThread* emittedOn = nullptr;
    QObject::connect(
        &finder, &ColorCorrectionAutoChartFinder::autoChartFinderFinished, &finder,
        [&emittedOn] { emittedOn = QThread::currentThread(); }, Qt::DirectConnection);
    const std::unique_ptr<QThread> worker(QThread::create([&finder] { finder.findChart({}); }));
    worker->start();
    worker->wait();
    EXPECT_EQ(emittedOn, worker.get());
}

TEST(ColorCorrectionAutoChartFinder, RegistersTheRecordOfItsSignalForQueuedConnections)
{
    const ColorCorrectionAutoChartFinder finder;
    const QMetaObject* meta = finder.metaObject();
    const int index = meta->indexOfSignal(
        "autoChartFinderFinished(ColorCalibration::ColorCorrectionAutoChartFinderResult)");
    ASSERT_GE(index, 0);
    EXPECT_EQ(meta->method(index).parameterType(0), qMetaTypeId<Result>());
}

TEST(ColorCorrectionAutoChartFinder, KeepsNothingBetweenCalls)
{
    ColorCorrectionAutoChartFinder finder;
    const QImage chart = ChartScene::render(scene());
    const Result first = finder.findChart(chart);
    EXPECT_FALSE(finder.findChart(QImage()).valid);
    EXPECT_EQ(finder.findChart(chart), first);
}

TEST(ColorCorrectionAutoChartFinder, LeavesTheImageAlone)
{
    for (const int width : {640, 800}) {
        const QImage image = ChartScene::render(scene()).scaledToWidth(width);
        const QImage copy = image.copy();
        const uchar* bits = image.constBits();
        find(image);
        EXPECT_EQ(image, copy);
        EXPECT_EQ(image.constBits(), bits);
    }
}

TEST(ColorCorrectionAutoChartFinder, FindsNothingInANullImage)
{
    EXPECT_EQ(find(QImage()), Result());
}

TEST(ColorCorrectionAutoChartFinder, FindsNothingInAStrip)
{
    // 20000 x 20 becomes 640 x 1, 20000 x 10 becomes nothing at all.
    for (const QSize& size :
         {QSize(20000, 20), QSize(20000, 10), QSize(640, 80), QSize(80, 10), QSize(100000, 1)})
        EXPECT_EQ(find(uniform(size)), Result()) << size.width() << "x" << size.height();
}

TEST(ColorCorrectionAutoChartFinder, FindsNothingInAStripOnEnd)
{
    for (const QSize& size : {QSize(20, 20000), QSize(1, 100000), QSize(640, 64000)})
        EXPECT_EQ(find(uniform(size)), Result()) << size.width() << "x" << size.height();
}

TEST(ColorCorrectionAutoChartFinder, AnswersTheSmallestImagesAsThePlainSearchDoes)
{
    // A single pixel becomes 640 x 640 of one color.
    for (const QSize& size : {QSize(1, 1), QSize(2, 1), QSize(3, 1), QSize(3, 2), QSize(2, 3)}) {
        const QImage image = uniform(size);
        EXPECT_EQ(find(image), Obvious::findChart(image)) << size.width() << "x" << size.height();
    }
}

TEST(ColorCorrectionAutoChartFinder, AnswersTheSameForOneColorInEveryOpaqueFormat)
{
    const Result expected = find(uniform(QSize(320, 240)));
    for (const QImage::Format format :
         {QImage::Format_ARGB32, QImage::Format_RGB888, QImage::Format_BGR888,
          QImage::Format_RGBX8888, QImage::Format_RGBX64, QImage::Format_ARGB32_Premultiplied})
        EXPECT_EQ(find(uniform(QSize(320, 240), format)), expected) << format;
}

TEST(ColorCorrectionAutoChartFinder, AnswersTheSameForAChartInEveryWideFormat)
{
    const QImage image = ChartScene::render(scene());
    const Result expected = find(image);
    ASSERT_TRUE(expected.valid);
    for (const QImage::Format format :
         {QImage::Format_ARGB32, QImage::Format_RGB888, QImage::Format_BGR888,
          QImage::Format_RGBX8888, QImage::Format_RGBA8888_Premultiplied, QImage::Format_RGBX64})
        EXPECT_EQ(find(image.convertToFormat(format)), expected) << format;
}

TEST(ColorCorrectionAutoChartFinder, SurvivesAColorTableThatIsTooShort)
{
    QImage image(300, 200, QImage::Format_Indexed8);
    image.setColorTable({qRgb(200, 30, 30), qRgb(30, 200, 30)});
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.scanLine(y)[x] = uchar(x + y);
    QImage padded = image;
    QVector<QRgb> table = image.colorTable();
    table.resize(256);
    std::fill(table.begin() + 2, table.end(), qRgb(0, 0, 0));
    padded.setColorTable(table);
    EXPECT_EQ(find(image), find(padded));

    QImage black(300, 200, QImage::Format_RGB32);
    black.fill(Qt::black);
    const QImage withoutTable(image.constBits(), 300, 200, image.bytesPerLine(), image.format());
    EXPECT_EQ(find(withoutTable), find(black));
}

TEST(ColorCorrectionAutoChartFinder, TakesAnImageOverForeignMemoryWithPaddedRows)
{
    const QImage image = ChartScene::render(scene());
    std::vector<uchar> memory(std::size_t(image.height()) * 4000, 0x5a);
    for (int y = 0; y < image.height(); ++y)
        std::copy_n(image.constScanLine(y), image.bytesPerLine(),
                    memory.data() + std::size_t(y) * 4000);
    const QImage padded(memory.data(), image.width(), image.height(), 4000, image.format());
    EXPECT_EQ(find(padded), find(image));
}

TEST(ColorCorrectionAutoChartFinder, AnswersAsThePlainSearchDoesWhereThereIsNoChart)
{
    // No score is too low, so there is an answer, and chance decides which.
    for (unsigned seed = 0; seed < 8; ++seed) {
        ChartScene::Scene made = scene();
        made.corners = ChartScene::cornersOf({QPointF(-5000, -5000), 100.0});
        made.table = ChartScene::Table::Wood;
        made.noise = 20.0;
        made.seed = seed;
        const QImage image = ChartScene::render(made);
        EXPECT_EQ(find(image), Obvious::findChart(image)) << seed;
    }
}
