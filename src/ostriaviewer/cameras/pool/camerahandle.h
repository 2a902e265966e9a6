// SPDX-License-Identifier: Apache-2.0
// Exclusive rights to a camera.
#pragma once

#include "hostcamera.h"

#include <atomic>

namespace Cameras {

/// Stands for a camera towards whoever has exclusive rights to it, and gives them back at its end.
/// Holds the camera. Thread-safe.
class CameraHandle final : public Core::CameraPoolComponents::ICamera
{
    Q_OBJECT

public:
    /// For HostCamera, which has made sure that there is no other.
    explicit CameraHandle(HostCameraPtr camera);
    ~CameraHandle() override;

    const HostCameraPtr& camera() const { return m_camera; }

    QString modelName() const override;
    bool isOpen() const override;
    bool isGrabbing() const override;
    bool startGrabbing() override;
    bool grabSingle(int timeoutMs) override;
    bool grabSingle() override;
    void stopGrabbing() override;
    Core::ParameterCollection::ParameterCollectionPtr parameterCollection() override;

private:
    const HostCameraPtr m_camera;
    std::atomic<bool> m_hasGrabbed = false;
};

} // namespace Cameras
