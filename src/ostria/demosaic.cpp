// SPDX-License-Identifier: Apache-2.0
// Bilinear interpolation of Bayer mosaics, strip by strip.
#include "demosaic.h"

#include "rowdecoder.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace Ostria {
namespace {

// A row's neighbours are needed above and below. Two rows above instead of one keep the strip's
// mosaic in the image's own order, and make a strip of one row high enough to be interpolated.
constexpr int rowsAbove = 2;
constexpr int rowsBelow = 1;

int conversionCode(const PixelTypeInfo& info)
{
    if (info.redY == 0)
        return info.redX == 0 ? cv::COLOR_BayerRGGB2RGB : cv::COLOR_BayerGRBG2RGB;
    return info.redX == 0 ? cv::COLOR_BayerGBRG2RGB : cv::COLOR_BayerBGGR2RGB;
}

} // namespace

std::size_t demosaicScratch(int width, int rows)
{
    const auto allRows = static_cast<std::size_t>(rows) + rowsAbove + rowsBelow;
    return 4 * allRows * static_cast<std::size_t>(width);
}

const std::uint16_t* demosaicRows(const COstriaImage& source, int begin, int end,
                                  std::uint16_t* scratch)
{
    const PixelTypeInfo& info = *pixelTypeInfo(source.pixelType());
    const int first = std::max(begin - rowsAbove, 0);
    const int rows = std::min(end + rowsBelow, source.height()) - first;
    const auto width = static_cast<std::size_t>(source.width());

    std::uint16_t* sample = scratch;
    const std::uint8_t* row = source.data() + source.stride() * static_cast<std::size_t>(first);
    for (int y = 0; y < rows; ++y, sample += width, row += source.stride())
        decodeSamples(info, row, 0, source.width(), 16 - info.bitDepth, sample);

    const cv::Mat mosaic(rows, source.width(), CV_16UC1, scratch);
    cv::Mat colors(rows, source.width(), CV_16UC3, sample);
    cv::cvtColor(mosaic, colors, conversionCode(info));
    return sample + 3 * width * static_cast<std::size_t>(begin - first);
}

} // namespace Ostria
