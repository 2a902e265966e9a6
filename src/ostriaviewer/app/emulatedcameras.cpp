// SPDX-License-Identifier: Apache-2.0
// The emulated cameras of the viewer, and the scene before them.
#include "emulatedcameras.h"

#include "emulatedcamera.h"

#include <QImageReader>

#include <exception>

namespace Viewer {

using namespace Cameras::Emulation;

namespace {

Scene readScene(const QString& file, QString& error)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QImage image = reader.read().convertToFormat(QImage::Format_RGB888);
    if (image.isNull()) {
        error = QStringLiteral("The scene %1 cannot be read: %2 Choose another image.")
                    .arg(file, reader.errorString() + QLatin1Char('.'));
        return Scene();
    }
    try {
        return Scene(Scene::fromSrgb8(image.width(), image.height(), image.constBits(),
                                      static_cast<std::size_t>(image.bytesPerLine())));
    } catch (const std::exception& problem) {
        error = QStringLiteral("The scene %1 cannot be shown: %2. Choose another image.")
                    .arg(file, QString::fromUtf8(problem.what()));
        return Scene();
    }
}

} // namespace

QList<Cameras::HostCameraPtr> emulatedCameras(const QString& sceneFile, QString& error)
{
    EmulationOptions options;
    if (!sceneFile.isEmpty())
        options.scene = readScene(sceneFile, error);
    QList<Cameras::HostCameraPtr> cameras;
    for (const CameraModel& model : everydayModels())
        cameras.append(EmulatedCamera::create(model, options));
    return cameras;
}

} // namespace Viewer
