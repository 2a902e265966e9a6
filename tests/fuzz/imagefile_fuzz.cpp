// SPDX-License-Identifier: Apache-2.0
// Any bytes as an image file: an image that can be searched and measured, or a CommandError.
#include "command.h"
#include "grid.h"
#include "imagefile.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString name = QStringLiteral("fuzz");
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QImage image;
    try {
        image = ColorCalibrate::readImageData(bytes, name);
        ColorCalibrate::toCameraImage(image, name);
    } catch (const ColorCalibrate::CommandError&) {
        // Refused in words.
    }
    try {
        ColorCalibrate::findGrid(image);
    } catch (const ColorCalibrate::CommandError&) {
        // Without a chart.
    }
    return 0;
}
