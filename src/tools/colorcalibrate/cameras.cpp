// SPDX-License-Identifier: Apache-2.0
// The cameras that the tool can see.
#include "cameras.h"

#include "command.h"
#include "discovery.h"
#include "emulatedcamera.h"
#include "genicamcamera.h"
#include "imagefile.h"

#include <QStringList>

using Cameras::HostCameraPtr;
using Cameras::Emulation::Scene;
using Cameras::GenICam::GenicamCamera;
using Cameras::GenICam::TransportSettings;

namespace ColorCalibrate {

namespace {

QList<HostCameraPtr> emulatedCameras(const std::optional<Scene>& scene)
{
    Cameras::Emulation::EmulationOptions options;
    if (scene)
        options.scene = *scene;
    QList<HostCameraPtr> cameras;
    for (const Cameras::Emulation::CameraModel& model : Cameras::Emulation::everydayModels())
        cameras.append(Cameras::Emulation::EmulatedCamera::create(model, options));
    return cameras;
}

QList<HostCameraPtr> realCameras(const CameraSelection& selection)
{
    TransportSettings settings;
    settings.packetSize = selection.packetSize;
    settings.interfaces = selection.interfaces;
    if (!selection.address.isEmpty())
        return {GenicamCamera::create(Cameras::GenICam::cameraAt(selection.address), settings)};
    QList<HostCameraPtr> cameras;
    if (selection.isLooking)
        for (const auto& identity :
             Cameras::GenICam::findNetworkCameras(settings) + Cameras::GenICam::findUsbCameras())
            cameras.append(GenicamCamera::create(identity, settings));
    return cameras;
}

QString namesOf(const QList<HostCameraPtr>& cameras)
{
    QStringList names;
    for (const HostCameraPtr& camera : cameras)
        names.append(QStringLiteral("\"%1\"").arg(camera->displayName()));
    return names.join(QStringLiteral(", "));
}

} // namespace

ToolCameras::ToolCameras(const std::optional<Scene>& scene, const CameraSelection& selection)
{
    QList<HostCameraPtr> cameras = realCameras(selection);
    if (selection.hasEmulated)
        cameras = emulatedCameras(scene) + cameras;
    m_pool = std::make_unique<Cameras::CameraPool>(cameras);
    m_pool->registerServices(m_registry);
}

ToolCameras::~ToolCameras() = default;

QString ToolCameras::backendOf(const HostCameraPtr& camera)
{
    return camera.dynamicCast<GenicamCamera>() ? QStringLiteral("genicam")
                                               : QStringLiteral("emulation");
}

HostCameraPtr ToolCameras::find(const QString& name) const
{
    const QList<HostCameraPtr> named = Cameras::camerasNamed(all(), name);
    if (named.size() == 1)
        return named.first();
    if (named.size() > 1)
        throw CommandError(QStringLiteral("there are several cameras \"%1\"; name one of %2")
                               .arg(name, namesOf(named)));
    const QString names = namesOf(all());
    if (names.isEmpty())
        throw CommandError(QStringLiteral("there is no camera \"%1\"; none was found").arg(name));
    throw CommandError(QStringLiteral("there is no camera \"%1\"; there are %2").arg(name, names));
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
