// SPDX-License-Identifier: Apache-2.0
// A received buffer as an image.
#include "bufferimage_p.h"

#include "pixeltype.h"
#include "stride.h"
#include "withoutfullstop.h"

#include <arv.h>

#include <QCoreApplication>
#include <QString>

#include <cstring>
#include <exception>

namespace Cameras::GenICam {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::Frame)
};

Ostria::CGrabResultPtr failure(const QString& reason, std::uint64_t number)
{
    return std::make_shared<Ostria::CGrabResult>(reason.toStdString(), number);
}

bool holdsImage(ArvBuffer* buffer)
{
    const ArvBufferPayloadType type = arv_buffer_get_payload_type(buffer);
    return type == ARV_BUFFER_PAYLOAD_TYPE_IMAGE ||
           type == ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA;
}

Ostria::COstriaImage copyImage(ArvBuffer* buffer, Ostria::PixelType type)
{
    gint paddingX = 0;
    gint paddingY = 0;
    arv_buffer_get_image_padding(buffer, &paddingX, &paddingY);
    const int width = arv_buffer_get_image_width(buffer);
    const int height = arv_buffer_get_image_height(buffer);
    const std::size_t wanted = Ostria::ComputeImageSize(
        Ostria::ComputeStride(type, width, static_cast<std::size_t>(paddingX)), height);
    std::size_t size = 0;
    const void* data = arv_buffer_get_image_data(buffer, &size);
    // A camera may say any size; memory is taken for what it has sent alone.
    if (!data || size < wanted)
        throw std::length_error(Texts::tr("The frame holds less than its image.").toStdString());
    Ostria::COstriaImage image(type, width, height, static_cast<std::size_t>(paddingX));
    std::memcpy(image.writableData(), data, image.size());
    return image;
}

} // namespace

Ostria::CGrabResultPtr toGrabResult(ArvBuffer* buffer, std::uint64_t number)
{
    if (!holdsImage(buffer))
        return failure(Texts::tr("The frame holds no image."), number);
    const auto type = static_cast<Ostria::PixelType>(arv_buffer_get_image_pixel_format(buffer));
    if (!Ostria::pixelTypeInfo(type))
        return failure(Texts::tr("The pixel format 0x%1 is not known; choose another one.")
                           .arg(static_cast<quint32>(type), 8, 16, QLatin1Char('0')),
                       number);
    try {
        return std::make_shared<Ostria::CGrabResult>(copyImage(buffer, type), number);
    } catch (const std::exception& error) {
        return failure(Texts::tr("The frame cannot be used (%1). Choose another pixel format or "
                                 "another image size.")
                           .arg(Core::withoutFullStop(QString::fromUtf8(error.what()))),
                       number);
    }
}

} // namespace Cameras::GenICam
