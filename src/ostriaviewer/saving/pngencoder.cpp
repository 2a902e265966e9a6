// SPDX-License-Identifier: Apache-2.0
// Images as PNG.
#include "pngencoder.h"

#include <png.h>
#include <zlib.h>

#include <csetjmp>
#include <new>

namespace Saving {
namespace {

/// libpng leaves a call that fails by a long jump.
void leave(png_structp png, png_const_charp /*reason*/)
{
    png_longjmp(png, 1);
}

void ignore(png_structp /*png*/, png_const_charp /*warning*/) {}

bool append(QByteArray& out, const char* bytes, png_size_t count) noexcept
{
    try {
        out.append(bytes, static_cast<int>(count));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// No exception may go through libpng, and no long jump out of a handler.
void store(png_structp png, png_bytep bytes, png_size_t count)
{
    auto& out = *static_cast<QByteArray*>(png_get_io_ptr(png));
    if (!append(out, reinterpret_cast<const char*>(bytes), count))
        png_error(png, "out of memory");
}

void flushNothing(png_structp /*png*/) {}

/// One picture's way through libpng.
class PngWriter
{
public:
    /// \param out  receives the file, not owned
    explicit PngWriter(QByteArray& out)
        : m_png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignore))
        , m_info(m_png ? png_create_info_struct(m_png) : nullptr)
    {
        if (m_png)
            png_set_write_fn(m_png, &out, store, flushNothing);
    }
    ~PngWriter() { png_destroy_write_struct(&m_png, &m_info); }
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;

    /// \param pixels  8 bits of gray, or of red, green and blue
    /// \param filters  from which libpng chooses for each row
    /// \return  false without memory
    bool write(const QImage& pixels, int filters)
    {
        // Nothing that has a destructor may be made behind this line.
        // NOLINTNEXTLINE(cert-err52-cpp): libpng has no other way
        if (!m_info || setjmp(png_jmpbuf(m_png)) != 0)
            return false;
        png_set_IHDR(m_png, m_info, static_cast<png_uint_32>(pixels.width()),
                     static_cast<png_uint_32>(pixels.height()), 8,
                     pixels.depth() == 8 ? PNG_COLOR_TYPE_GRAY : PNG_COLOR_TYPE_RGB,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        // What the filters leave of a camera's image is noise, in which hardly anything comes again
        // but zeros. To look for runs alone takes a fraction of the time, and the file is smaller.
        png_set_compression_strategy(m_png, Z_RLE);
        png_set_filter(m_png, PNG_FILTER_TYPE_BASE, filters);
        png_write_info(m_png, m_info);
        for (int y = 0; y < pixels.height(); ++y)
            png_write_row(m_png, pixels.constScanLine(y));
        png_write_end(m_png, m_info);
        return true;
    }

private:
    png_structp m_png;
    png_infop m_info;
};

EncodedPng encode(const QImage& image, int filters)
{
    if (image.isNull())
        return {{}, QStringLiteral("there is no image")};
    const EncodedPng noRoom{{}, QStringLiteral("there is not enough memory for the image")};
    try {
        const bool isGray = image.depth() == 8 && image.isGrayscale();
        const QImage pixels =
            image.convertToFormat(isGray ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
        EncodedPng png;
        if (pixels.isNull() || !PngWriter(png.bytes).write(pixels, filters))
            return noRoom;
        return png;
    } catch (const std::bad_alloc&) {
        return noRoom;
    }
}

} // namespace

EncodedPng encodePng(const QImage& image)
{
    return encode(image, PNG_ALL_FILTERS);
}

// To try all filters on a row takes longer than to compress what one of them leaves.
EncodedPng encodePngQuickly(const QImage& image)
{
    return encode(image, PNG_FILTER_SUB);
}

} // namespace Saving
