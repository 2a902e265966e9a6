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
#include <memory>
#include <utility>

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

/// What the buffer says of its image.
struct Layout
{
    Ostria::PixelType type;
    int width;
    int height;
    std::size_t padding; ///< bytes behind each row
};

Layout layoutOf(ArvBuffer* buffer, Ostria::PixelType type)
{
    gint paddingX = 0;
    gint paddingY = 0;
    arv_buffer_get_image_padding(buffer, &paddingX, &paddingY);
    return {type, arv_buffer_get_image_width(buffer), arv_buffer_get_image_height(buffer),
            static_cast<std::size_t>(paddingX)};
}

/// \return  null where the camera has sent less than it says; any size can be said
std::unique_ptr<Ostria::COstriaImage> copyImage(ArvBuffer* buffer, const Layout& layout)
{
    const std::size_t wanted = Ostria::ComputeImageSize(
        Ostria::ComputeStride(layout.type, layout.width, layout.padding), layout.height);
    std::size_t size = 0;
    const void* data = arv_buffer_get_image_data(buffer, &size);
    if (!data || size < wanted)
        return nullptr;
    auto image = std::make_unique<Ostria::COstriaImage>(layout.type, layout.width, layout.height,
                                                        layout.padding);
    std::memcpy(image->writableData(), data, image->size());
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
        const auto image = copyImage(buffer, layoutOf(buffer, type));
        if (!image)
            return nullptr;
        return std::make_shared<Ostria::CGrabResult>(std::move(*image), number);
    } catch (const std::exception& error) {
        return failure(Texts::tr("The frame cannot be used (%1). Choose another pixel format or "
                                 "another image size.")
                           .arg(Core::withoutFullStop(QString::fromUtf8(error.what()))),
                       number);
    }
}

} // namespace Cameras::GenICam
