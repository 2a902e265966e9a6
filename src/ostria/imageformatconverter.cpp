// SPDX-License-Identifier: Apache-2.0
// Conversion of camera images to the two formats that measuring and display work on.
#include "imageformatconverter.h"

#include "demosaic.h"
#include "stride.h"
#include "stripconversion.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace Ostria {
namespace {

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
    const std::less<> before;
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
    convertInStrips(source, {m_outputType, buffer, stride, m_orientation}, m_scratch);
}

void CImageFormatConverter::Convert(COstriaImage& target, const COstriaImage& source)
{
    checkSource(source);
    const bool reuse = &target != &source && target.isValid() &&
                       target.pixelType() == m_outputType && target.width() == source.width() &&
                       target.height() == source.height() &&
                       target.paddingX() == m_outputPaddingX && target.ownsPixelsAlone();
    if (reuse) {
        Convert(target.writableData(), target.size(), source);
        return;
    }
    COstriaImage result = COstriaImage::withUnsetPixels(m_outputType, source.width(),
                                                        source.height(), m_outputPaddingX);
    Convert(result.writableData(), result.size(), source);
    target = std::move(result);
}

} // namespace Ostria
