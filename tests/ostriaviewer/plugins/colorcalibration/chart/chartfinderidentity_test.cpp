// SPDX-License-Identifier: Apache-2.0
// Every step of the chart finder gives the very bits of the one that asks pixel by pixel.
#include "chartfinderalgorithm.h"
#include "colorcorrectionautochartfinder.h"

#include "chartscene.h"
#include "obviouschartfinder.h"

#include <QByteArray>
#include <QVector>

#include <gtest/gtest.h>

#include <cstring>
#include <ostream>
#include <random>

namespace ColorCalibration {

void PrintTo(const ColorCorrectionAutoChartFinderResult& result, std::ostream* stream)
{
    for (const QPoint& point :
         {result.upperLeft, result.upperRight, result.lowerLeft, result.lowerRight})
        *stream << '(' << point.x() << ", " << point.y() << ") ";
    *stream << (result.valid ? "valid" : "not valid");
}

} // namespace ColorCalibration

using namespace ColorCalibration;

namespace {

const ChartFinderAlgorithm algorithm;

class Random
{
public:
    explicit Random(unsigned seed)
        : m_generator(seed)
    {}
    int integer(int lowest, int highest)
    {
        return lowest + int(m_generator() % unsigned(highest - lowest + 1));
    }
    double real(double lowest, double highest)
    {
        return lowest + (highest - lowest) * double(m_generator()) / 4294967295.0;
    }

private:
    std::mt19937 m_generator;
};

/// Entries that an indexed format can have, 0 for the others.
int fullTable(QImage::Format format)
{
    switch (format) {
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
        return 2;
    case QImage::Format_Indexed8:
        return 256;
    default:
        return 0;
    }
}

void fillWithRandomBits(QImage& image, Random& random)
{
    for (int y = 0; y < image.height(); ++y) {
        uchar* line = image.scanLine(y);
        for (int i = 0; i < image.bytesPerLine(); ++i)
            line[i] = uchar(random.integer(0, 255));
    }
}

/// Where Qt's scaling depends on what lay in memory before: colours brighter than their alpha, and
/// clear pixels of 16 bits a channel.
bool allowsOnlySaneAlpha(QImage::Format format)
{
    const QPixelFormat pixels = QImage::toPixelFormat(format);
    return pixels.premultiplied() == QPixelFormat::Premultiplied || format == QImage::Format_RGBA64;
}

/// Any bits that the format can have: any alpha, any index, with or without a colour table.
QImage randomBits(QImage::Format format, const QSize& size, Random& random)
{
    if (allowsOnlySaneAlpha(format)) {
        QImage image(size, QImage::Format_ARGB32);
        fillWithRandomBits(image, random);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, image.pixel(x, y) | 0x01000000U);
        return image.convertToFormat(format);
    }
    QImage image(size, format);
    QVector<QRgb> table;
    for (int colors = random.integer(0, fullTable(format)); colors > 0; --colors)
        table.append(qRgba(random.integer(0, 255), random.integer(0, 255), random.integer(0, 255),
                           random.integer(0, 255)));
    if (!table.isEmpty())
        image.setColorTable(table);
    fillWithRandomBits(image, random);
    return image;
}

QImage gradient(const QSize& size, Random& random)
{
    QImage image(size, QImage::Format_ARGB32);
    const int slope[3] = {random.integer(1, 5), random.integer(1, 5), random.integer(1, 5)};
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y,
                           qRgba(x * slope[0] / 3 % 256, (x + y) * slope[1] / 5 % 256,
                                 y * slope[2] / 4 % 256, 255 - (x + 2 * y) % 255));
    return image;
}

QImage coloredBlocks(const QSize& size, Random& random)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int i = 0; i < 40; ++i) {
        const QRgb color =
            qRgb(random.integer(0, 255), random.integer(0, 255), random.integer(0, 255));
        const QRect block = QRect(random.integer(0, size.width()), random.integer(0, size.height()),
                                  size.width() / 4 + 1, size.height() / 4 + 1) &
                            image.rect();
        for (int y = block.top(); y <= block.bottom(); ++y)
            for (int x = block.left(); x <= block.right(); ++x)
                image.setPixel(x, y, color);
    }
    return image;
}

QImage chart(const QSize& size, Random& random)
{
    ChartScene::Scene scene;
    scene.size = size;
    ChartScene::Placement placement;
    placement.width = random.real(0.3, 1.0) * size.width();
    placement.center =
        QPointF(random.real(0.3, 0.7) * size.width(), random.real(0.3, 0.7) * size.height());
    placement.turn = random.real(-20.0, 20.0);
    placement.tiltX = random.real(-20.0, 20.0);
    scene.corners = ChartScene::cornersOf(placement);
    scene.light = random.real(0.1, 2.0);
    scene.noise = random.real(0.0, 6.0);
    scene.seed = unsigned(random.integer(0, 1000000));
    return ChartScene::render(scene);
}

constexpr int KindCount = 8;

/// Height over width above which the search is refused: the reduced image and its smoothed copy
/// take too many bytes.
double tallestSearched(QImage::Format format)
{
    constexpr double width = ChartFinderAlgorithm::WorkingWidth;
    const int bits = QImage(1, 1, format).depth();
    return double(ChartFinderAlgorithm::MaxWorkingBytes) /
           (width * width * (qMax(1.0, bits / 8.0) + 3.0));
}

/// Any width with any height up to this many times the width.
QSize randomSize(const QSize& least, const QSize& most, double tallest, Random& random)
{
    QSize size;
    do {
        size.setWidth(random.integer(least.width(), most.width()));
        size.setHeight(random.integer(least.height(), most.height()));
    } while (size.height() > tallest * size.width());
    return size;
}

QImage randomImage(QImage::Format format, int kind, Random& random)
{
    // The plain search takes as long as the image is tall: the tallest come in turns.
    const bool anyHeight = int(format) % KindCount == kind;
    const double tallest = anyHeight ? tallestSearched(format) : 1.25;
    const QSize large = randomSize(QSize(60, 1), QSize(900, 700), tallest, random);
    switch (kind) {
    case 0:
        return randomBits(format, randomSize(QSize(1, 1), QSize(40, 40), tallest, random), random);
    case 1:
        return randomBits(format, large, random);
    case 2:
        return gradient(large, random).convertToFormat(format);
    case 3:
        return coloredBlocks(large, random).convertToFormat(format);
    case 4: {
        QImage image(large, QImage::Format_ARGB32);
        image.fill(QColor(random.integer(0, 255), random.integer(0, 255), random.integer(0, 255)));
        return image.convertToFormat(format);
    }
    case 5:
        return chart(QSize(large.width(), large.width() * 3 / 4), random).convertToFormat(format);
    case 6:
        return chart(QSize(large.width() * 2 / 3, large.width() * 7 / 9), random)
            .convertToFormat(format);
    default:
        return chart(large, random).convertToFormat(format);
    }
}

/// Qt reads beyond the end of a table that is too short; the missing entries count as black.
QImage withFullTable(QImage image)
{
    QVector<QRgb> table = image.colorTable();
    while (table.size() < fullTable(image.format()))
        table.append(qRgb(0, 0, 0));
    if (!table.isEmpty())
        image.setColorTable(table);
    return image;
}

bool sameBits(const dlib::matrix<float>& a, const dlib::matrix<float>& b)
{
    return a.nr() == b.nr() && a.nc() == b.nc() &&
           std::memcmp(&a(0, 0), &b(0, 0), sizeof(float) * std::size_t(a.size())) == 0;
}

void expectSameSeeks(const QImage& image, Random& random)
{
    for (int i = 0; i < 12; ++i) {
        const QPoint start(random.integer(-5, image.width() + 5),
                           random.integer(-5, image.height() + 5));
        const double radius = random.real(0.0, 40.0);
        const int sign = random.integer(0, 3) == 0 ? -1 : 1;
        const int first = random.integer(-2, 12);
        EXPECT_EQ(algorithm.seekPatchCenter(image, start, radius, sign, first),
                  Obvious::seekPatchCenter(image, start, radius, sign, first));
        const int stepY = random.integer(-3, 3);
        const int stepX = random.integer(-3, 3);
        const int length = random.integer(-1, 90);
        EXPECT_EQ(algorithm.weightedRaySum(image, start, stepY, stepX, length),
                  Obvious::weightedRaySum(image, start, stepY, stepX, length));
    }
}

/// Step by step, each fed with the outcome of the plain step before it.
void expectSameSearch(const QImage& image, Random& random)
{
    const QImage plainImage = withFullTable(image);
    const QImage reduced = Obvious::reduce(plainImage);
    const QImage smoothed = Obvious::boxBlur(reduced, 5);
    ASSERT_EQ(algorithm.boxBlur(Obvious::reduce(image), 5), smoothed);

    const QImage red = Obvious::keepChannel(QColor(1, 0, 0, 255), smoothed);
    const QImage green = Obvious::keepChannel(QColor(0, 1, 0, 255), smoothed);
    ASSERT_EQ(algorithm.keepChannel(QColor(1, 0, 0, 255), smoothed), red);
    ASSERT_EQ(algorithm.keepChannel(QColor(0, 1, 0, 255), smoothed), green);
    ASSERT_TRUE(sameBits(algorithm.channelRatio(red, green), Obvious::channelRatio(red, green)));

    const QVector<QPoint> block = Obvious::findAnchorBlock(smoothed);
    ASSERT_EQ(algorithm.findAnchorBlock(smoothed), block);
    expectSameSeeks(green, random);
    const QVector<QPoint> centers = Obvious::fitPatchCenters(smoothed, block);
    ASSERT_EQ(algorithm.fitPatchCenters(smoothed, block), centers);
    ASSERT_EQ(algorithm.outerCorners(centers), Obvious::outerCorners(centers));

    const QVector<QPoint> corners = Obvious::scaleUp(image, Obvious::outerCorners(centers));
    ASSERT_EQ(algorithm.locateCorners(image), corners);
    EXPECT_EQ(ColorCorrectionAutoChartFinder().findChart(image), Obvious::judge(image, corners));
}

class ChartFinderIdentity : public testing::TestWithParam<int>
{
protected:
    QImage::Format format() const { return QImage::Format(GetParam()); }
};

} // namespace

TEST_P(ChartFinderIdentity, HoldsForEveryStepOnRandomImages)
{
    Random random(1000U + unsigned(GetParam()));
    for (int kind = 0; kind < KindCount; ++kind) {
        const QImage image = randomImage(format(), kind, random);
        SCOPED_TRACE(testing::Message()
                     << "kind " << kind << ", " << image.width() << "x" << image.height());
        ASSERT_FALSE(image.isNull());
        expectSameSearch(image, random);
        if (HasFatalFailure())
            return;
    }
}

TEST_P(ChartFinderIdentity, HoldsForEachOperationOnImagesOfItsFormat)
{
    Random random(2000U + unsigned(GetParam()));
    for (int i = 0; i < 20; ++i) {
        const QSize size(random.integer(1, 70), random.integer(1, 50));
        const QImage image = randomBits(format(), size, random);
        const QImage other = randomBits(format(), size, random);
        const QImage plainImage = withFullTable(image);
        const QImage plainOther = withFullTable(other);
        const int radius = random.integer(0, 30);
        SCOPED_TRACE(testing::Message()
                     << size.width() << "x" << size.height() << ", radius " << radius);
        EXPECT_EQ(algorithm.boxBlur(image, radius), Obvious::boxBlur(plainImage, radius));
        const QColor mask(random.integer(0, 1), random.integer(0, 1), random.integer(0, 1));
        EXPECT_EQ(algorithm.keepChannel(mask, image), Obvious::keepChannel(mask, plainImage));
        EXPECT_TRUE(sameBits(algorithm.channelRatio(image, other),
                             Obvious::channelRatio(plainImage, plainOther)));
        expectSameSeeks(plainImage, random);
    }
}

TEST_P(ChartFinderIdentity, HoldsForAnchorBlockAndFitOnImagesOfItsFormat)
{
    Random random(3000U + unsigned(GetParam()));
    const QImage image = chart(QSize(300, 220), random).convertToFormat(format());
    const QVector<QPoint> block = Obvious::findAnchorBlock(image);
    EXPECT_EQ(algorithm.findAnchorBlock(image), block);
    EXPECT_EQ(algorithm.fitPatchCenters(image, block), Obvious::fitPatchCenters(image, block));
}

INSTANTIATE_TEST_SUITE_P(AllFormats, ChartFinderIdentity,
                         testing::Range(int(QImage::Format_Mono), int(QImage::NImageFormats)));

TEST(ChartFinderIdentity, HoldsForAMaskAboveFullScale)
{
    Random random(5);
    const QImage image = randomBits(QImage::Format_ARGB32, QSize(40, 30), random);
    for (const QColor& mask : {QColor(2, 0, 7), QColor(255, 255, 255), QColor(0, 0, 0)})
        EXPECT_EQ(algorithm.keepChannel(mask, image), Obvious::keepChannel(mask, image));
}

TEST(ChartFinderIdentity, HoldsForStripsOfAnyShape)
{
    Random random(6);
    for (const QSize& size : {QSize(1, 1), QSize(5, 9), QSize(2000, 3), QSize(900, 113),
                              QSize(900, 117), QSize(640, 480)}) {
        SCOPED_TRACE(testing::Message() << size.width() << "x" << size.height());
        expectSameSearch(randomBits(QImage::Format_RGB32, size, random), random);
    }
}
