// SPDX-License-Identifier: Apache-2.0
// Image files as camera images.
#include "imagefile.h"

#include "command.h"
#include "decoderoutput.h"
#include "imagefilecompleteness.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRgba64>

#include <cstring>
#include <new>

using Ostria::COstriaImage;
using Ostria::PixelType;

namespace ColorCalibrate {
namespace {

constexpr qint64 mostPixels = qint64{1} << 28;
constexpr int mostFileBytes = 1 << 30;
constexpr qint64 pieceBytes = 1 << 22;

[[noreturn]] void fail(const QString& fileName, const QString& problem)
{
    throw CommandError(QStringLiteral("%1: %2").arg(fileName, problem));
}

QByteArray readFile(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        fail(fileName, file.errorString());
    QByteArray data;
    for (QByteArray piece = file.read(pieceBytes); !piece.isEmpty();
         piece = file.read(pieceBytes)) {
        data += piece;
        if (data.size() > mostFileBytes)
            fail(fileName, QStringLiteral("the file has more than %1 bytes").arg(mostFileBytes));
    }
    if (file.error() != QFileDevice::NoError)
        fail(fileName, file.errorString());
    if (data.isEmpty())
        fail(fileName, QStringLiteral("the file is empty"));
    return data;
}

bool isKnownFormat(const QByteArray& format)
{
    return format == "png" || format == "tiff" || format == "jpeg" || format == "bmp";
}

QImage converted(const QImage& image, QImage::Format format)
{
    QImage result = image.convertToFormat(format);
    if (result.isNull())
        throw std::bad_alloc();
    return result;
}

bool isTransparent(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return false;
    const QImage alpha = converted(image, QImage::Format_RGBA64);
    for (int y = 0; y < alpha.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgba64*>(alpha.constScanLine(y));
        for (int x = 0; x < alpha.width(); ++x)
            if (row[x].alpha() != 0xFFFF)
                return true;
    }
    return false;
}

void requireColor(const QImage& image, const QString& fileName)
{
    // Also where gray is stored as color, with or without an alpha channel.
    if (image.isNull() || image.allGray())
        fail(fileName, QStringLiteral("the image is gray; a color image of the chart is needed"));
    if (image.format() == QImage::Format_Indexed8 || image.format() == QImage::Format_Mono ||
        image.format() == QImage::Format_MonoLSB)
        fail(fileName,
             QStringLiteral("the image has a palette of %1 colors, which a camera's image "
                            "has not; save it with full colors")
                 .arg(image.colorCount()));
    if (isTransparent(image))
        fail(fileName, QStringLiteral("the image has transparent pixels, which have no color to be "
                                      "measured"));
}

COstriaImage toRgb16(const QImage& image)
{
    const QImage source = converted(image, QImage::Format_RGBX64);
    COstriaImage target(PixelType::RGB16, source.width(), source.height());
    std::uint8_t* row = target.writableData();
    for (int y = 0; y < source.height(); ++y, row += target.stride()) {
        const auto* pixels = reinterpret_cast<const QRgba64*>(source.constScanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const quint16 rgb[3] = {pixels[x].red(), pixels[x].green(), pixels[x].blue()};
            std::memcpy(row + sizeof rgb * static_cast<std::size_t>(x), rgb, sizeof rgb);
        }
    }
    return target;
}

COstriaImage toRgb8(const QImage& image)
{
    const QImage source = converted(image, QImage::Format_RGB888);
    COstriaImage target(PixelType::RGB8, source.width(), source.height());
    std::uint8_t* row = target.writableData();
    for (int y = 0; y < source.height(); ++y, row += target.stride())
        std::memcpy(row, source.constScanLine(y), target.stride());
    return target;
}

bool hasSixteenBits(const QImage& image)
{
    switch (image.format()) {
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
        return true;
    default:
        return false;
    }
}

} // namespace

QImage readImage(const QString& fileName)
{
    return readImageData(readFile(fileName), fileName);
}

QImage readImageData(QByteArray data, const QString& name)
{
    const DecoderOutput silenced;
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.canRead() ? reader.format() : QByteArray();
    if (!isKnownFormat(format))
        fail(name, QStringLiteral("this is no image of a known format; PNG, TIFF, JPEG and BMP "
                                  "are read"));
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > mostPixels)
        fail(name, QStringLiteral("the image of %1 x %2 pixels is too large")
                       .arg(size.width())
                       .arg(size.height()));
    if (!isCheapToDecode(data, format))
        fail(name, QStringLiteral("the image is stored in more passes than any camera writes"));
    const QImage image = reader.read();
    if (image.isNull())
        fail(name,
             QStringLiteral("the image is damaged, truncated or too large for the memory (%1)")
                 .arg(reader.errorString()));
    if (!isComplete(data, format))
        fail(name, QStringLiteral("the image is truncated"));
    return image;
}

COstriaImage toCameraImage(const QImage& image, const QString& fileName)
{
    requireColor(image, fileName);
    return hasSixteenBits(image) ? toRgb16(image) : toRgb8(image);
}

} // namespace ColorCalibrate
