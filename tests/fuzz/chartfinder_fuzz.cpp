// SPDX-License-Identifier: Apache-2.0
// Feeds the chart finder with images and points of any kind, and holds its steps against the plain
// ones. To be run by libFuzzer.
#include "colorcorrectionautochartfinder.h"

#include "obviouschartfinder.h"

#include <QImage>
#include <QVector>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using namespace ColorCalibration;

namespace {

/// The input read from its beginning to its end; zeros afterwards.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {}

    template <typename Value>
    Value take()
    {
        Value value{};
        const std::size_t count = std::min(sizeof value, m_size);
        std::memcpy(&value, m_data, count);
        m_data += count;
        m_size -= count;
        return value;
    }

    int below(int limit) { return take<std::uint16_t>() % limit; }

    QPoint anyPoint()
    {
        const int x = take<std::int32_t>();
        return {x, take<std::int32_t>()};
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};

int tableSize(QImage::Format format)
{
    if (format == QImage::Format_Indexed8)
        return 256;
    return format == QImage::Format_Mono || format == QImage::Format_MonoLSB ? 2 : 0;
}

/// A few blocks of any bytes, so that few input bytes make an image with structure.
QImage readImage(Input& input)
{
    const auto format = QImage::Format(1 + input.below(QImage::NImageFormats - 1));
    QImage image(1 + input.below(160), 1 + input.below(120), format);
    std::memset(image.bits(), input.take<std::uint8_t>(), std::size_t(image.sizeInBytes()));
    QVector<QRgb> table(tableSize(format));
    for (QRgb& color : table)
        color = input.take<QRgb>();
    if (!table.isEmpty())
        image.setColorTable(table);
    for (int blocks = input.below(40); blocks > 0; --blocks) {
        const int first = input.below(image.bytesPerLine());
        const int length = 1 + input.below(image.bytesPerLine() - first);
        const int top = input.below(image.height());
        const int bottom = top + input.below(image.height() - top);
        const auto value = input.take<std::uint32_t>();
        for (int y = top; y <= bottom; ++y)
            for (int i = 0; i < length; ++i)
                image.scanLine(y)[first + i] = std::uint8_t(value >> (i % 4 * 8));
    }
    return image;
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void compareSteps(const QImage& image, Input& input)
{
    const ChartFinderAlgorithm algorithm;
    const int radius = input.below(20);
    require(algorithm.boxBlur(image, radius) == Obvious::boxBlur(image, radius));
    const QColor green(0, 1, 0, 255);
    require(algorithm.keepChannel(green, image) == Obvious::keepChannel(green, image));
    const QVector<QPoint> block = Obvious::findAnchorBlock(image);
    require(algorithm.findAnchorBlock(image) == block);
    require(algorithm.fitPatchCenters(image, block) == Obvious::fitPatchCenters(image, block));
    const QPoint start(input.below(200) - 20, input.below(160) - 20);
    const double seekRadius = input.below(60) / 2.0;
    const int firstStep = input.below(10);
    require(algorithm.seekPatchCenter(image, start, seekRadius, 1, firstStep) ==
            Obvious::seekPatchCenter(image, start, seekRadius, 1, firstStep));
}

void passExtremes(const QImage& image, Input& input)
{
    const ChartFinderAlgorithm algorithm;
    algorithm.weightedRaySum(image, input.anyPoint(), input.take<std::int32_t>(),
                             input.take<std::int32_t>(), input.take<std::int16_t>());
    algorithm.seekPatchCenter(image, input.anyPoint(), input.below(500), -1,
                              input.take<std::int32_t>());
    QVector<QPoint> centers(24);
    for (QPoint& center : centers)
        center = input.anyPoint();
    require(algorithm.outerCorners(centers).size() == 4);
}

void searchAll(const QImage& image)
{
    const ColorCorrectionAutoChartFinderResult result =
        ColorCorrectionAutoChartFinder().findChart(image);
    if (!result.valid)
        return;
    require(result.upperLeft.x() < result.upperRight.x());
    require(result.upperLeft.y() < result.lowerLeft.y());
    require(result.lowerRight.x() <= image.width() && result.lowerRight.y() <= image.height());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const QImage image = readImage(input);
    compareSteps(image, input);
    passExtremes(image, input);
    searchAll(image);
    return 0;
}
