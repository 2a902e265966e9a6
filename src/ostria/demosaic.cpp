// SPDX-License-Identifier: Apache-2.0
// Bilinear interpolation of Bayer mosaics, strip by strip.
#include "demosaic.h"

#include "rowdecoder.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace Ostria {
namespace {

// Rows that are decoded above and below a strip, as its outermost rows need their neighbours. Two
// above instead of one, so that every part that is interpolated begins with an even row.
constexpr int rowsAbove = 2;
constexpr int rowsBelow = 1;
constexpr int seamRows = 4;

int conversionCode(const PixelTypeInfo& info)
{
    if (info.redY == 0)
        return info.redX == 0 ? cv::COLOR_BayerRGGB2RGB : cv::COLOR_BayerGRBG2RGB;
    return info.redX == 0 ? cv::COLOR_BayerGBRG2RGB : cv::COLOR_BayerBGGR2RGB;
}

/// Interpolates a few rows apart and copies the one that has all its neighbours there.
/// \param row  number of that row among those of the mosaic
void writeSeam(const cv::Mat& mosaic, int code, std::uint16_t* scratch, int row, cv::Mat target)
{
    cv::Mat colors(mosaic.rows, mosaic.cols, CV_16UC3, scratch);
    cv::cvtColor(mosaic, colors, code);
    colors.row(row).copyTo(target);
}

} // namespace

std::size_t demosaicScratch(int width, int rows)
{
    const auto mosaicRows = static_cast<std::size_t>(rows) + rowsAbove + rowsBelow;
    return (mosaicRows + std::size_t(3) * seamRows) * static_cast<std::size_t>(width);
}

void demosaicRows(const COstriaImage& source, int begin, int end, std::uint16_t* scratch,
                  std::uint16_t* out, std::size_t stride)
{
    const PixelTypeInfo& info = *pixelTypeInfo(source.pixelType());
    const int first = std::max(begin - rowsAbove, 0);
    const int rows = std::min(end + rowsBelow, source.height()) - first;

    std::uint16_t* sample = scratch;
    const std::uint8_t* row = source.data() + source.stride() * static_cast<std::size_t>(first);
    for (int y = 0; y < rows; ++y, sample += source.width(), row += source.stride())
        decodeSamples(info, row, 0, source.width(), 16 - info.bitDepth, sample);

    // OpenCV makes the outermost rows copies of their neighbours. That is right at the image's
    // own edges; where strips meet, the row is made again with its true neighbours.
    const cv::Mat mosaic(rows, source.width(), CV_16UC1, scratch);
    cv::Mat colors(end - begin, source.width(), CV_16UC3, out, stride);
    const int code = conversionCode(info);
    const int above = begin - first;
    cv::cvtColor(mosaic.rowRange(above, end - first), colors, code);
    if (begin > 0)
        writeSeam(mosaic.rowRange(above - 2, above + 2), code, sample, 2, colors.row(0));
    if (end < source.height())
        writeSeam(mosaic.rowRange(rows - 3, rows), code, sample, 1, colors.row(colors.rows - 1));
}

} // namespace Ostria
