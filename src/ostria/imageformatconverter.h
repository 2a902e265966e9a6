// SPDX-License-Identifier: Apache-2.0
// Conversion of camera images to the two formats that measuring and display work on.
#pragma once

#include "ostriaimage.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Ostria {

/// The order of the rows that a converter writes.
enum class ImageOrientation : std::uint8_t { TopDown, BottomUp };

/// Converts camera images of every pixel type to RGB16 (for measuring) or BGRa8 (for display).
///
/// To 16 bits a channel, values are aligned to the most significant bit by shifting: 8-bit v
/// becomes v << 8, 12-bit v becomes v << 4, so that v / 2^bits stays what it was. To 8 bits a
/// channel the high byte of the 16-bit value is taken; alpha is 255, also where the source has an
/// alpha of its own. Mosaics are interpolated bilinearly, at 16 bits.
///
/// Reentrant; one converter serves one thread at a time and keeps its scratch memory. It works on
/// as many threads as OpenCV is allowed to use.
class CImageFormatConverter
{
public:
    CImageFormatConverter() = default;

    /// \throws std::invalid_argument  neither RGB16 nor BGRa8
    void setOutputPixelFormat(PixelType type);

    /// Unused bytes after each row that is written, 0 at first. Their content is left alone.
    void setOutputPaddingX(std::size_t paddingX) { m_outputPaddingX = paddingX; }

    /// TopDown at first.
    void setOutputOrientation(ImageOrientation orientation) { m_orientation = orientation; }

    /// Bytes that an image converted with the present settings takes.
    /// \throws std::invalid_argument, std::length_error  as ComputeStride and ComputeImageSize
    std::size_t bufferSizeForConversion(int width, int height) const;

    /// Converts into a buffer of the caller's.
    /// \param buffer  of any alignment; does not overlap the pixels of the source
    /// \param size    bytes in the buffer, at least bufferSizeForConversion
    /// \throws std::invalid_argument  the source has no pixels, is a mosaic of fewer than 3 rows or
    ///         4 columns, or the buffer is null, too short or overlaps the source's pixels
    /// \throws std::length_error      the result has more bytes than an int can count
    void Convert(std::uint8_t* buffer, std::size_t size, const COstriaImage& source);

    /// Converts into an image with pixels of its own. Where the target already is an image of the
    /// right type, size and padding whose pixels nobody else sees, they are written over, which
    /// spares the time that fresh memory costs. A target that is the source itself is allowed.
    /// \throws as above; the target is unchanged then
    void Convert(COstriaImage& target, const COstriaImage& source);

private:
    PixelType m_outputType = PixelType::RGB16;
    std::size_t m_outputPaddingX = 0;
    ImageOrientation m_orientation = ImageOrientation::TopDown;
    std::vector<std::uint16_t> m_scratch;
};

} // namespace Ostria
