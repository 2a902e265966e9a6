// SPDX-License-Identifier: Apache-2.0
// The cameras that the tool can see, with the services around them.
#pragma once

#include "backends.h"
#include "camerapool.h"
#include "scene.h"

#include <QString>

#include <optional>

namespace ColorCalibrate {

/// A host without a window: the pool of cameras and its services. Thread-bound.
class ToolCameras
{
public:
    /// Takes a second where cameras are to be looked for.
    /// \param scene  what the emulated cameras see, the chart if missing
    explicit ToolCameras(const std::optional<Cameras::Emulation::Scene>& scene = {},
                         const CameraSelection& selection = {});
    ~ToolCameras();

    QList<Cameras::HostCameraPtr> all() const { return m_pool->cameras(); }

    /// "emulation" or "genicam".
    static QString backendOf(const Cameras::HostCameraPtr& camera);

    /// A camera by its display name or its model name.
    /// \throws CommandError  there is none; the message names those that there are
    Cameras::HostCameraPtr find(const QString& name) const;

    Plugin::CameraPool::ICameraStatusService* statusService() const;
    Plugin::CameraPool::ICameraControlService* controlService() const;
    Plugin::ParameterCollectionPool::IParameterService* parameterService() const;

private:
    Core::Service::CServiceRegistry m_registry;
    std::unique_ptr<Cameras::CameraPool> m_pool;
};

/// An image file as the scene of an emulated camera.
/// \throws CommandError  the file cannot be read
Cameras::Emulation::Scene readScene(const QString& fileName);

} // namespace ColorCalibrate
