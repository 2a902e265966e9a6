// SPDX-License-Identifier: Apache-2.0
// Which images a camera can be calibrated by.
#include "pixelformat.h"

#include "command.h"
#include "genicamexception.h"
#include "iparameter.h"
#include "iparametercollection.h"

using Core::CameraPoolComponents::ICamera;

namespace ColorCalibrate {
namespace {

/// Empty where the camera has no such feature, or does not answer.
QString pixelFormatOf(ICamera& camera)
{
    const auto features = camera.parameterCollection();
    if (!features)
        return {};
    const auto format = features->enumerationParameter(QStringLiteral("PixelFormat"));
    try {
        return format->isReadable() ? format->value() : QString();
    } catch (const GenICam::RuntimeException&) {
        return {};
    }
}

} // namespace

void requireColor(ICamera& camera)
{
    const QString format = pixelFormatOf(camera);
    if (format.startsWith(QLatin1String("Mono")))
        throw CommandError(QStringLiteral("the camera's images have no color: PixelFormat is %1; "
                                          "set it to a color format such as RGB8")
                               .arg(format));
}

QString adviceOnPixelFormat(ICamera& camera)
{
    const QString format = pixelFormatOf(camera);
    if (!format.startsWith(QLatin1String("Bayer")))
        return {};
    return QStringLiteral("; PixelFormat is %1, in which a camera may send what its sensor has "
                          "seen: set it to a processed format such as RGB8")
        .arg(format);
}

} // namespace ColorCalibrate
