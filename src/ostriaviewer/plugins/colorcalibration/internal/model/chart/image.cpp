// SPDX-License-Identifier: Apache-2.0
// The image value.
#include "image.h"

#include "logging.h"

#include <limits>

namespace ColorCalibration {
namespace {

void logMismatch(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(
        QStringLiteral("ostria.viewer.plugins.colorCalibration.image.image"));
    Core::Logging::createLogEntry(Core::Logging::Fatal, category, text);
}

int bitsPerPixel(int format)
{
    switch (format) {
    case Mono8:
        return 8;
    case Color32:
        return 32;
    default:
        return 0;
    }
}

/// 0 where there is no such row: no format, no width, or more bytes than an int counts.
int rowBytes(int width, int format)
{
    const qint64 bytes = (qint64{width} * bitsPerPixel(format) + 31) / 32 * 4;
    return width > 0 && bytes <= std::numeric_limits<int>::max() ? static_cast<int>(bytes) : 0;
}

/// 0 where there is no such buffer.
std::size_t bufferBytes(int width, int height, int format)
{
    const qint64 bytes = qint64{rowBytes(width, format)} * height;
    return height > 0 && bytes <= std::numeric_limits<int>::max() ? static_cast<std::size_t>(bytes)
                                                                  : 0;
}

} // namespace

const QVector<QRgb>& grayColorTable()
{
    static const QVector<QRgb> table = [] {
        QVector<QRgb> grays;
        grays.reserve(256);
        for (int level = 0; level < 256; ++level)
            grays.append(qRgb(level, level, level));
        return grays;
    }();
    return table;
}

Image::Image(const Image& other, int format)
    : m_camera(other.m_camera)
{
    if (format == NoImage)
        return;
    createBuffer(other.width(), other.height(), format);
    if (!sizeMatches())
        logMismatch(QStringLiteral("Image dimensions are not matching."));
}

Image::Image(int width, int height, int format, const Ostria::COstriaImage& cameraImage)
    : m_camera(new CameraData)
{
    m_camera->image = cameraImage;
    if (format == NoImage)
        return;
    createBuffer(width, height, format);
    if (!sizeMatches())
        logMismatch(QStringLiteral("Image dimensions are not matching!"));
}

Image Image::fromCameraImage(int format, const Ostria::COstriaImage& cameraImage)
{
    if (!cameraImage.isValid())
        return {};
    return {cameraImage.width(), cameraImage.height(), format, cameraImage};
}

void Image::createBuffer(int width, int height, int format)
{
    m_data = new ImageData;
    m_data->width = width;
    m_data->height = height;
    m_data->format = format;
    if (m_camera && m_camera->image.isValid())
        m_data->buffer.resize(bufferBytes(width, height, format));
}

bool Image::sizeMatches() const
{
    if (!m_camera || !m_camera->image.isValid())
        return true;
    return m_camera->image.width() == width() && m_camera->image.height() == height();
}

bool Image::isValid() const
{
    return format() != NoImage && m_camera && m_camera->image.isValid();
}

int Image::width() const
{
    return m_data ? m_data->width : 0;
}

int Image::height() const
{
    return m_data ? m_data->height : 0;
}

int Image::format() const
{
    return m_data ? m_data->format : NoImage;
}

int Image::stride() const
{
    return isValid() ? rowBytes(m_data->width, m_data->format) : 0;
}

QImage Image::toQImage() const
{
    if (!isValid() || m_data->buffer.empty())
        return {};
    const uchar* buffer = m_data->buffer.data();
    if (m_data->format == Color32)
        return {buffer, m_data->width, m_data->height, stride(), QImage::Format_RGB32};
    // Setting a colour table on an image over read-only memory would copy all its pixels.
    QImage image(const_cast<uchar*>(buffer), m_data->width, m_data->height, stride(),
                 QImage::Format_Indexed8);
    image.setColorTable(grayColorTable());
    return image;
}

uchar* Image::writableBuffer()
{
    return m_data && !m_data.constData()->buffer.empty() ? m_data->buffer.data() : nullptr;
}

Ostria::COstriaImage Image::cameraImage() const
{
    return m_camera ? m_camera->image : Ostria::COstriaImage();
}

} // namespace ColorCalibration
