// SPDX-License-Identifier: Apache-2.0
// The cameras that the tool can see.
#include "cameras.h"

#include "command.h"
#include "emulatedcamera.h"
#include "imagefile.h"

#include <QStringList>

using Cameras::HostCameraPtr;
using Cameras::Emulation::Scene;

namespace ColorCalibrate {

ToolCameras::ToolCameras(const std::optional<Scene>& scene)
{
    Cameras::Emulation::EmulationOptions options;
    if (scene)
        options.scene = *scene;
    QList<HostCameraPtr> cameras;
    for (const Cameras::Emulation::CameraModel& model : Cameras::Emulation::everydayModels())
        cameras.append(Cameras::Emulation::EmulatedCamera::create(model, options));
    m_pool = std::make_unique<Cameras::CameraPool>(cameras);
    m_pool->registerServices(m_registry);
}

ToolCameras::~ToolCameras() = default;

HostCameraPtr ToolCameras::find(const QString& name) const
{
    QStringList names;
    for (const HostCameraPtr& camera : all()) {
        if (camera->displayName() == name || camera->modelName() == name)
            return camera;
        names.append(QStringLiteral("\"%1\"").arg(camera->displayName()));
    }
    throw CommandError(QStringLiteral("there is no camera \"%1\"; there are %2")
                           .arg(name, names.join(QStringLiteral(", "))));
}

Plugin::CameraPool::ICameraStatusService* ToolCameras::statusService() const
{
    return m_registry.find<Plugin::CameraPool::ICameraStatusService>().data();
}

Plugin::CameraPool::ICameraControlService* ToolCameras::controlService() const
{
    return m_registry.find<Plugin::CameraPool::ICameraControlService>().data();
}

Plugin::ParameterCollectionPool::IParameterService* ToolCameras::parameterService() const
{
    return m_registry.find<Plugin::ParameterCollectionPool::IParameterService>().data();
}

Scene readScene(const QString& fileName)
{
    const QImage image = readImage(fileName).convertToFormat(QImage::Format_RGB888);
    return Scene(Scene::fromSrgb8(image.width(), image.height(), image.constBits(),
                                  static_cast<std::size_t>(image.bytesPerLine())));
}

} // namespace ColorCalibrate
