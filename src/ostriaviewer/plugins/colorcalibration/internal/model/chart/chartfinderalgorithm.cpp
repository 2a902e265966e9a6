// SPDX-License-Identifier: Apache-2.0
// The steps by which the 24-patch chart is found in an image.
#include "chartfinderalgorithm.h"

#include "anchorsearch.h"
#include "boxsmoothing.h"
#include "patchcolors.h"
#include "patchgridfit.h"
#include "patchseeker.h"
#include "pixelrows.h"
#include "truncate.h"

#include <array>
#include <cmath>

namespace ColorCalibration {

namespace {

constexpr int SmoothingRadius = 5;

using ByteTable = std::array<unsigned char, 256>;

ByteTable scaledBytes(double factor)
{
    ByteTable table{};
    for (std::size_t v = 0; v < table.size(); ++v) {
        const double product = qBound(0.0, factor * double(v), 1.0);
        table[v] = QColor::fromRgbF(product, 0.0, 0.0, 1.0).rgba64().red8();
    }
    return table;
}

/// The reduced image, or a null image where there is nothing to search.
QImage reduced(const QImage& image)
{
    return image.isNull()
               ? QImage()
               : image.scaledToWidth(ChartFinderAlgorithm::WorkingWidth, Qt::FastTransformation);
}

bool isTooTall(const QImage& image)
{
    constexpr int width = ChartFinderAlgorithm::WorkingWidth;
    const double height = double(image.height()) * width / qMax(1, image.width());
    const double bytesPerRow = width * (qMax(1.0, image.depth() / 8.0) + RgbBytes::Channels);
    return height * bytesPerRow > double(ChartFinderAlgorithm::MaxWorkingBytes);
}

void readSums(const PixelRows& rows, int y, std::vector<double>& fractions,
              std::vector<double>& sums)
{
    rows.readFractions(y, fractions.data());
    for (std::size_t x = 0; x < sums.size(); ++x) {
        const double* rgb = fractions.data() + x * RgbBytes::Channels;
        sums[x] = rgb[0] + rgb[1] + rgb[2];
    }
}

} // namespace

QVector<QPoint> ChartFinderAlgorithm::locateCorners(const QImage& image) const
{
    if (isTooTall(image))
        return {};
    const double factor = image.width() / double(WorkingWidth);
    const RgbBytes smoothed = smooth(reduced(image), SmoothingRadius);
    const QVector<QPoint> block = ColorCalibration::findAnchorBlock(smoothed);
    QVector<QPoint> corners = outerCorners(ColorCalibration::fitPatchCenters(smoothed, block));
    for (QPoint& corner : corners)
        corner = QPoint(truncateToInt(corner.x() * factor), truncateToInt(corner.y() * factor));
    return corners;
}

QImage ChartFinderAlgorithm::boxBlur(const QImage& image, int radius) const
{
    return toImage(smooth(image, radius));
}

QImage ChartFinderAlgorithm::keepChannel(const QColor& mask, const QImage& image) const
{
    const ByteTable red = scaledBytes(mask.redF());
    const ByteTable green = scaledBytes(mask.greenF());
    const ByteTable blue = scaledBytes(mask.blueF());
    RgbBytes bytes = toRgbBytes(image);
    for (std::size_t i = 0; i < bytes.samples.size(); i += RgbBytes::Channels) {
        unsigned char* rgb = bytes.samples.data() + i;
        rgb[0] = red[rgb[0]];
        rgb[1] = green[rgb[1]];
        rgb[2] = blue[rgb[2]];
    }
    return toImage(bytes);
}

dlib::matrix<float> ChartFinderAlgorithm::channelRatio(const QImage& numerator,
                                                       const QImage& denominator) const
{
    if (numerator.size() != denominator.size() || numerator.format() != denominator.format()) {
        dlib::matrix<float> refused(1, 1);
        refused = 0.0F;
        return refused;
    }
    const PixelRows numeratorRows(numerator);
    const PixelRows denominatorRows(denominator);
    const auto width = static_cast<std::size_t>(numerator.width());
    std::vector<double> fractions(width * RgbBytes::Channels);
    std::vector<double> above(width);
    std::vector<double> below(width);
    dlib::matrix<float> ratios(numerator.width(), numerator.height());
    for (int y = 0; y < numerator.height(); ++y) {
        readSums(numeratorRows, y, fractions, above);
        readSums(denominatorRows, y, fractions, below);
        for (std::size_t x = 0; x < width; ++x)
            ratios(long(x), y) = below[x] > 0.0 ? static_cast<float>(above[x] / below[x]) : 1.0F;
    }
    return ratios;
}

QVector<QPoint> ChartFinderAlgorithm::findAnchorBlock(const QImage& image) const
{
    return ColorCalibration::findAnchorBlock(toRgbBytes(image));
}

QVector<QPoint> ChartFinderAlgorithm::fitPatchCenters(const QImage& image,
                                                      const QVector<QPoint>& block) const
{
    return ColorCalibration::fitPatchCenters(toRgbBytes(image), block);
}

QVector<QPoint> ChartFinderAlgorithm::outerCorners(const QVector<QPoint>& centers) const
{
    if (centers.size() != PatchCount)
        return {};
    const auto corner = [&centers](int patch, int signX, int xNeighbour, int signY,
                                   int yNeighbour) {
        const QPoint& center = centers[patch];
        const double halfX = std::abs(double(center.x()) - centers[xNeighbour].x()) / 2.0;
        const double halfY = std::abs(double(center.y()) - centers[yNeighbour].y()) / 2.0;
        return QPoint(truncateToInt(center.x() + signX * halfX),
                      truncateToInt(center.y() + signY * halfY));
    };
    return {corner(0, -1, 1, -1, 6), corner(5, 1, 4, -1, 11), corner(18, -1, 19, 1, 12),
            corner(23, 1, 22, 1, 17)};
}

QPoint ChartFinderAlgorithm::seekPatchCenter(const QImage& image, const QPoint& start,
                                             double radius, int sign, int firstStep) const
{
    return ColorCalibration::seekPatchCenter(GreenOfImage(image), start, radius, sign, firstStep);
}

float ChartFinderAlgorithm::weightedRaySum(const QImage& image, const QPoint& start, int stepY,
                                           int stepX, int length) const
{
    return ColorCalibration::weightedRaySum(GreenOfImage(image), start, stepY, stepX, length);
}

} // namespace ColorCalibration
