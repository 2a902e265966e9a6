// SPDX-License-Identifier: Apache-2.0
// Reads rows of a QImage of any format.
#include "pixelrows.h"

#include <QSysInfo>

#include <array>

namespace ColorCalibration {

namespace {

std::array<double, 256> makeByteFractions()
{
    std::array<double, 256> fractions{};
    for (std::size_t v = 0; v < fractions.size(); ++v)
        fractions[v] = double(v) / 255.0;
    return fractions;
}

std::array<unsigned char, 256> makeByteIdentity()
{
    std::array<unsigned char, 256> identity{};
    for (std::size_t v = 0; v < identity.size(); ++v)
        identity[v] = static_cast<unsigned char>(v);
    return identity;
}

} // namespace

QColor pixelColorAt(const QImage& image, int x, int y)
{
    const bool indexed = image.format() == QImage::Format_Indexed8 ||
                         image.format() == QImage::Format_Mono ||
                         image.format() == QImage::Format_MonoLSB;
    if (indexed && image.pixelIndex(x, y) >= image.colorCount())
        return {0, 0, 0};
    return image.pixelColor(x, y);
}

const double* byteFractions()
{
    static const std::array<double, 256> fractions = makeByteFractions();
    return fractions.data();
}

PixelRows::PixelRows(const QImage& image)
    : m_image(image)
    , m_layout(byteLayout(image.format()))
{}

PixelRows::ByteLayout PixelRows::byteLayout(QImage::Format format)
{
    const bool little = QSysInfo::ByteOrder == QSysInfo::LittleEndian;
    switch (format) {
    case QImage::Format_Grayscale8:
        return {1, 0, 0, 0, -1};
    case QImage::Format_RGB888:
        return {3, 0, 1, 2, -1};
    case QImage::Format_BGR888:
        return {3, 2, 1, 0, -1};
    case QImage::Format_RGBX8888:
    case QImage::Format_RGBA8888:
        return {4, 0, 1, 2, -1};
    case QImage::Format_RGBA8888_Premultiplied:
        return {4, 0, 1, 2, 3};
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
        return little ? ByteLayout{4, 2, 1, 0, -1} : ByteLayout{4, 1, 2, 3, -1};
    case QImage::Format_ARGB32_Premultiplied:
        return little ? ByteLayout{4, 2, 1, 0, 3} : ByteLayout{4, 1, 2, 3, 0};
    default:
        return {};
    }
}

template <typename Convert, typename Value>
void PixelRows::read(int y, const Value* byteValues, Convert convert, Value* rgb) const
{
    const unsigned char* bytes = m_image.constScanLine(y);
    const ByteLayout layout = m_layout;
    for (int x = 0; x < m_image.width(); ++x, rgb += RgbBytes::Channels, bytes += layout.step) {
        const bool direct =
            layout.step > 0 && (layout.premultiplier < 0 || bytes[layout.premultiplier] == 255);
        if (direct) {
            rgb[0] = byteValues[bytes[layout.red]];
            rgb[1] = byteValues[bytes[layout.green]];
            rgb[2] = byteValues[bytes[layout.blue]];
        } else {
            convert(pixelColorAt(m_image, x, y), rgb);
        }
    }
}

void PixelRows::readFractions(int y, double* rgb) const
{
    const auto convert = [](const QColor& color, double* out) {
        out[0] = color.redF();
        out[1] = color.greenF();
        out[2] = color.blueF();
    };
    read(y, byteFractions(), convert, rgb);
}

void PixelRows::readBytes(int y, unsigned char* rgb) const
{
    static const std::array<unsigned char, 256> identity = makeByteIdentity();
    const auto convert = [](const QColor& color, unsigned char* out) {
        out[0] = static_cast<unsigned char>(color.red());
        out[1] = static_cast<unsigned char>(color.green());
        out[2] = static_cast<unsigned char>(color.blue());
    };
    read(y, identity.data(), convert, rgb);
}

RgbBytes toRgbBytes(const QImage& image)
{
    const PixelRows rows(image);
    RgbBytes bytes(image.width(), image.height());
    for (int y = 0; y < bytes.height; ++y)
        rows.readBytes(y, bytes.pixel(0, y));
    return bytes;
}

QImage toImage(const RgbBytes& bytes)
{
    QImage image(bytes.width, bytes.height, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const unsigned char* rgb = bytes.pixel(0, y);
        for (int x = 0; x < image.width(); ++x, rgb += RgbBytes::Channels)
            line[x] = qRgb(rgb[0], rgb[1], rgb[2]);
    }
    return image;
}

} // namespace ColorCalibration
