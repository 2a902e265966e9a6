// SPDX-License-Identifier: Apache-2.0
// The container of a camera image.
#include "ostriaimage.h"

#include "rowdecoder.h"
#include "stride.h"

#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

namespace Ostria {
namespace {

std::shared_ptr<const std::uint8_t> share(std::unique_ptr<std::uint8_t[]> pixels)
{
    const std::shared_ptr<std::uint8_t> shared(pixels.get(), std::default_delete<std::uint8_t[]>());
    static_cast<void>(pixels.release());
    return shared;
}

/// Memory that has any content, unlike make_unique's.
std::unique_ptr<std::uint8_t[]> unsetBytes(std::size_t size)
{
    return std::unique_ptr<std::uint8_t[]>(new std::uint8_t[size]);
}

} // namespace

COstriaImage::State COstriaImage::checkedShape(PixelType type, int width, int height,
                                               std::size_t paddingX)
{
    State state;
    state.stride = ComputeStride(type, width, paddingX);
    static_cast<void>(ComputeImageSize(state.stride, height));
    state.info = pixelTypeInfo(type);
    state.type = type;
    state.width = width;
    state.height = height;
    state.paddingX = paddingX;
    return state;
}

COstriaImage::COstriaImage(PixelType type, int width, int height, std::size_t paddingX)
    : m_state(checkedShape(type, width, height, paddingX))
{
    m_state.pixels = share(std::make_unique<std::uint8_t[]>(size()));
}

COstriaImage::~COstriaImage() = default;

COstriaImage::COstriaImage(COstriaImage&& other) noexcept
    : m_state(std::exchange(other.m_state, State()))
{}

COstriaImage& COstriaImage::operator=(COstriaImage&& other) noexcept
{
    m_state = std::exchange(other.m_state, State());
    return *this;
}

COstriaImage COstriaImage::attach(std::shared_ptr<const std::uint8_t> buffer, std::size_t size,
                                  PixelType type, int width, int height, std::size_t paddingX)
{
    COstriaImage image;
    image.m_state = checkedShape(type, width, height, paddingX);
    if (!buffer)
        throw std::invalid_argument("There is no buffer to attach.");
    if (size < image.size())
        throw std::invalid_argument("The buffer has " + std::to_string(size) +
                                    " bytes, the image needs " + std::to_string(image.size()) +
                                    ".");
    image.m_state.pixels = std::move(buffer);
    image.m_state.attached = true;
    return image;
}

COstriaImage COstriaImage::withUnsetPixels(PixelType type, int width, int height,
                                           std::size_t paddingX)
{
    COstriaImage image;
    image.m_state = checkedShape(type, width, height, paddingX);
    std::unique_ptr<std::uint8_t[]> pixels = unsetBytes(image.size());
    if (paddingX > 0) {
        for (std::size_t end = image.stride(); end <= image.size(); end += image.stride())
            std::memset(pixels.get() + end - paddingX, 0, paddingX);
    }
    image.m_state.pixels = share(std::move(pixels));
    return image;
}

bool COstriaImage::ownsPixelsAlone() const
{
    if (m_state.attached || m_state.pixels.use_count() != 1)
        return false;
    // The count alone orders nothing. Dropping a reference does: what other threads did before
    // they dropped theirs has happened before whatever we do now.
    std::shared_ptr<const std::uint8_t>(m_state.pixels).reset();
    return true;
}

std::uint8_t* COstriaImage::writableData()
{
    if (!isValid())
        return nullptr;
    if (!ownsPixelsAlone()) {
        std::unique_ptr<std::uint8_t[]> pixels = unsetBytes(size());
        std::memcpy(pixels.get(), data(), size());
        m_state.pixels = share(std::move(pixels));
        m_state.attached = false;
    }
    return const_cast<std::uint8_t*>(m_state.pixels.get());
}

void COstriaImage::checkRun(int x, int y, int count) const
{
    if (!isValid())
        throw std::out_of_range("The image has no pixels.");
    const bool inside =
        x >= 0 && y >= 0 && count >= 0 && y < height() && x <= width() && count <= width() - x;
    if (!inside)
        throw std::out_of_range(std::to_string(count) + " pixels at (" + std::to_string(x) + ", " +
                                std::to_string(y) + ") are not inside an image of " +
                                std::to_string(width()) + " x " + std::to_string(height()) +
                                " pixels.");
}

PixelReading COstriaImage::readPixel(int x, int y) const
{
    checkRun(x, y, 1);
    std::uint16_t rgb[3];
    decodeColors(m_state.type, *m_state.info, data() + stride() * static_cast<std::size_t>(y), x, y,
                 1, 0, rgb);
    return {static_cast<int>(m_state.type), m_state.info->bitDepth, rgb[0], rgb[1], rgb[2]};
}

void COstriaImage::readRow(int x, int y, int count, std::uint16_t* rgb) const
{
    checkRun(x, y, count);
    decodeColors(m_state.type, *m_state.info, data() + stride() * static_cast<std::size_t>(y), x, y,
                 count, 0, rgb);
}

} // namespace Ostria
