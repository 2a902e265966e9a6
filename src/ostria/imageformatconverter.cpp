// SPDX-License-Identifier: Apache-2.0
// Conversion of camera images to the two formats that measuring and display work on.
#include "imageformatconverter.h"

#include "demosaic.h"
#include "displaypixels.h"
#include "rowdecoder.h"
#include "stride.h"

#include <opencv2/core.hpp>

#include <algorithm>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>

namespace Ostria {
namespace {

/// What a strip's scratch memory should not exceed, so that it stays in a core's cache.
constexpr std::size_t stripBytes = 512 * 1024;

/// A conversion cut into strips of rows that can be worked on in any order.
class StripConversion
{
public:
    StripConversion(const COstriaImage& source, PixelType outputType, std::uint8_t* target,
                    std::size_t targetStride, ImageOrientation orientation)
        : m_source(source)
        , m_info(*pixelTypeInfo(source.pixelType()))
        , m_toDisplay(outputType == PixelType::BGRa8)
        , m_target(target)
        , m_targetStride(targetStride)
        , m_orientation(orientation)
    {
        const std::size_t fixed = scratchValues(0);
        const std::size_t perRow = scratchValues(1) - fixed + 1;
        const std::size_t room = stripBytes / sizeof(std::uint16_t);
        const std::size_t rows = room > fixed ? (room - fixed) / perRow / 2 * 2 : 0;
        m_stripRows =
            static_cast<int>(std::min<std::size_t>(std::max<std::size_t>(rows, 2), largestStrip));
    }

    int strips() const { return (m_source.height() + m_stripRows - 1) / m_stripRows; }

    /// Values of scratch memory that each thread needs for itself.
    std::size_t scratchValues() const { return scratchValues(m_stripRows); }

    void convertStrip(int strip, std::uint16_t* scratch) const
    {
        const int begin = strip * m_stripRows;
        const int end = std::min(begin + m_stripRows, m_source.height());
        if (m_info.layout == PixelLayout::Bayer)
            convertMosaic(begin, end, scratch);
        else
            convertColors(begin, end, scratch);
    }

private:
    static constexpr std::size_t largestStrip = 64;

    std::size_t scratchValues(int rows) const
    {
        if (m_info.layout == PixelLayout::Bayer)
            return demosaicScratch(m_source.width(), rows);
        return 3 * static_cast<std::size_t>(m_source.width());
    }

    void convertMosaic(int begin, int end, std::uint16_t* scratch) const
    {
        const std::uint16_t* rgb = demosaicRows(m_source, begin, end, scratch);
        for (int y = begin; y < end; ++y, rgb += 3 * static_cast<std::size_t>(m_source.width()))
            writeRow(y, reinterpret_cast<const std::uint8_t*>(rgb));
    }

    void convertColors(int begin, int end, std::uint16_t* scratch) const
    {
        for (int y = begin; y < end; ++y) {
            const std::uint8_t* row =
                m_source.data() + m_source.stride() * static_cast<std::size_t>(y);
            if (m_source.pixelType() != PixelType::RGB16) {
                decodeColors(m_source.pixelType(), m_info, row, 0, y, m_source.width(),
                             16 - m_info.bitDepth, scratch);
                row = reinterpret_cast<const std::uint8_t*>(scratch);
            }
            writeRow(y, row);
        }
    }

    void writeRow(int y, const std::uint8_t* rgb16) const
    {
        const int line = m_orientation == ImageOrientation::TopDown ? y : m_source.height() - 1 - y;
        std::uint8_t* target = m_target + m_targetStride * static_cast<std::size_t>(line);
        if (m_toDisplay)
            packForDisplay(rgb16, m_source.width(), target);
        else
            std::memcpy(target, rgb16, 6 * static_cast<std::size_t>(m_source.width()));
    }

    const COstriaImage& m_source;
    const PixelTypeInfo& m_info;
    const bool m_toDisplay;
    std::uint8_t* const m_target;
    const std::size_t m_targetStride;
    const ImageOrientation m_orientation;
    int m_stripRows = 2;
};

/// Works off all strips, on as many threads as OpenCV may use.
void run(const StripConversion& conversion, std::vector<std::uint16_t>& scratch)
{
    const int strips = conversion.strips();
    const int tasks = std::clamp(cv::getNumThreads(), 1, strips);
    const std::size_t share = conversion.scratchValues();
    if (scratch.size() < share * static_cast<std::size_t>(tasks))
        scratch.resize(share * static_cast<std::size_t>(tasks));

    const auto work = [&](const cv::Range& range) {
        for (int task = range.start; task < range.end; ++task) {
            std::uint16_t* own = scratch.data() + share * static_cast<std::size_t>(task);
            const auto firstStrip = [&](std::int64_t number) {
                return number * strips / tasks;
            };
            for (auto strip = firstStrip(task); strip < firstStrip(task + 1); ++strip)
                conversion.convertStrip(static_cast<int>(strip), own);
        }
    };
    if (tasks == 1)
        work(cv::Range(0, 1));
    else
        cv::parallel_for_(cv::Range(0, tasks), work, tasks);
}

void checkSource(const COstriaImage& source)
{
    if (!source.isValid())
        throw std::invalid_argument("The source image has no pixels.");
    const bool mosaic = pixelTypeInfo(source.pixelType())->layout == PixelLayout::Bayer;
    if (mosaic && (source.width() < smallestMosaicWidth || source.height() < smallestMosaicHeight))
        throw std::invalid_argument("A mosaic of " + std::to_string(source.width()) + " x " +
                                    std::to_string(source.height()) +
                                    " pixels is too small, interpolation needs " +
                                    std::to_string(smallestMosaicWidth) + " x " +
                                    std::to_string(smallestMosaicHeight) + ".");
}

bool overlap(const std::uint8_t* buffer, std::size_t size, const COstriaImage& source)
{
    const std::less<const std::uint8_t*> before;
    return before(buffer, source.data() + source.size()) && before(source.data(), buffer + size);
}

} // namespace

void CImageFormatConverter::setOutputPixelFormat(PixelType type)
{
    if (type != PixelType::RGB16 && type != PixelType::BGRa8)
        throw std::invalid_argument(std::string("Cannot convert to ") + pixelTypeName(type) +
                                    ", only to RGB16 and BGRa8.");
    m_outputType = type;
}

std::size_t CImageFormatConverter::bufferSizeForConversion(int width, int height) const
{
    return ComputeImageSize(ComputeStride(m_outputType, width, m_outputPaddingX), height);
}

void CImageFormatConverter::Convert(std::uint8_t* buffer, std::size_t size,
                                    const COstriaImage& source)
{
    checkSource(source);
    const std::size_t needed = bufferSizeForConversion(source.width(), source.height());
    if (!buffer)
        throw std::invalid_argument("There is no buffer to convert into.");
    if (size < needed)
        throw std::invalid_argument("The buffer has " + std::to_string(size) +
                                    " bytes, the image needs " + std::to_string(needed) + ".");
    if (overlap(buffer, needed, source))
        throw std::invalid_argument("The buffer overlaps the pixels of the source image.");
    const std::size_t stride = needed / static_cast<std::size_t>(source.height());
    run(StripConversion(source, m_outputType, buffer, stride, m_orientation), m_scratch);
}

void CImageFormatConverter::Convert(COstriaImage& target, const COstriaImage& source)
{
    checkSource(source);
    const COstriaImage heldSource = source; // target and source may be one image
    const bool reuse = target.isValid() && target.pixelType() == m_outputType &&
                       target.width() == heldSource.width() &&
                       target.height() == heldSource.height() &&
                       target.paddingX() == m_outputPaddingX && target.ownsPixelsAlone();
    if (!reuse)
        target = COstriaImage::withUnsetPixels(m_outputType, heldSource.width(),
                                               heldSource.height(), m_outputPaddingX);
    Convert(target.writableData(), target.size(), heldSource);
}

} // namespace Ostria
