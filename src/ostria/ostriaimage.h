// SPDX-License-Identifier: Apache-2.0
// The container of a camera image.
#pragma once

#include "pixeltype.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace Ostria {

/// One pixel of an image as integers at the image's own bit depth.
struct PixelReading
{
    int pixelType; ///< PFNC id of the image's pixel type
    int bitDepth;  ///< significant bits of each channel, 8 to 16
    int red;       ///< 0 to 2^bitDepth - 1
    int green;     ///< 0 to 2^bitDepth - 1
    int blue;      ///< 0 to 2^bitDepth - 1
};

/// A camera image: pixel type, size and rows of pixels from top to bottom.
///
/// A value: copies share the pixels, and whoever asks for write access to shared pixels gets a
/// copy of his own. Reentrant; copies may live in different threads.
///
/// Colours that are read from a pixel: a mono pixel answers its value three times; a pixel behind
/// a Bayer mosaic answers its one value in the channel of its filter and 0 in the others; YUV is
/// converted to RGB by ITU-R BT.601 with luma from 16 to 235 and chroma from 16 to 240.
class COstriaImage
{
public:
    COstriaImage() = default;

    /// An image with zeroed pixels of its own.
    /// \param paddingX  unused bytes after each row
    /// \throws std::invalid_argument  unknown pixel type, size that the type cannot have
    /// \throws std::length_error      more bytes than an int can count
    COstriaImage(PixelType type, int width, int height, std::size_t paddingX = 0);

    virtual ~COstriaImage();
    COstriaImage(const COstriaImage&) = default;
    COstriaImage& operator=(const COstriaImage&) = default;

    /// What was moved from is an image without pixels.
    COstriaImage(COstriaImage&& other) noexcept;
    COstriaImage& operator=(COstriaImage&& other) noexcept;

    /// An image over pixels that somebody else holds; nothing is copied.
    /// \param buffer  shared with the image and all its copies; not written to
    /// \param size    bytes in the buffer, at least stride times height
    /// \throws as the constructor; std::invalid_argument also if buffer is null or too short
    static COstriaImage attach(std::shared_ptr<const std::uint8_t> buffer, std::size_t size,
                               PixelType type, int width, int height, std::size_t paddingX = 0);

    /// Whether the image holds pixels.
    bool isValid() const { return m_state.pixels != nullptr; }

    PixelType pixelType() const { return m_state.type; }
    int width() const { return m_state.width; }
    int height() const { return m_state.height; }
    std::size_t paddingX() const { return m_state.paddingX; }
    std::size_t stride() const { return m_state.stride; }

    /// Bytes from the first row's beginning to the last row's end; 0 for an image without pixels.
    std::size_t size() const { return m_state.stride * static_cast<std::size_t>(m_state.height); }

    /// The first row, null for an image without pixels. Lent as long as the image lives.
    const std::uint8_t* data() const { return m_state.pixels.get(); }

    /// The first row for writing. Pixels that are attached or shared with another image are copied
    /// before, so that nobody else sees the change. Null for an image without pixels.
    std::uint8_t* writableData();

    /// One pixel.
    /// \throws std::out_of_range  x or y lies outside, or the image has no pixels
    virtual PixelReading readPixel(int x, int y) const;

    /// A run of pixels of one row, the same values as readPixel gives, without its cost per pixel.
    /// \param rgb  room for 3 * count values: red, green, blue of each pixel
    /// \throws std::out_of_range  a part of the run lies outside, or the image has no pixels
    virtual void readRow(int x, int y, int count, std::uint16_t* rgb) const;

private:
    friend class CImageFormatConverter;

    struct State
    {
        std::shared_ptr<const std::uint8_t> pixels;
        const PixelTypeInfo* info = nullptr;
        PixelType type = PixelType::Undefined;
        int width = 0;
        int height = 0;
        std::size_t paddingX = 0;
        std::size_t stride = 0;
        bool attached = false;
    };

    /// The state of an image of this shape whose pixels are missing yet.
    static State checkedShape(PixelType type, int width, int height, std::size_t paddingX);

    /// An image whose pixels have any value; the padding is zeroed.
    static COstriaImage withUnsetPixels(PixelType type, int width, int height,
                                        std::size_t paddingX);

    /// Whether nobody else can see the pixels.
    bool ownsPixelsAlone() const;

    void checkRun(int x, int y, int count) const;

    State m_state;
};

} // namespace Ostria
