// SPDX-License-Identifier: Apache-2.0
// The host's services around one camera: who holds it, and handles to it.
#pragma once

#include "fakecamera.h"
#include "icameraservices.h"

#include <functional>

class FakeStatusService : public Plugin::CameraPool::ICameraStatusService
{
public:
    bool cameraIsOpen = false;

    bool isCameraOpen(const Plugin::CameraPool::CameraPtr& /*camera*/) const override
    {
        return cameraIsOpen;
    }
    bool isAcquiringOrRecording(const Plugin::CameraPool::CameraInfoPtr& /*camera*/) const override
    {
        return false;
    }
};

/// Counts what it opens and closes, and the handles that are alive.
class FakeControlService : public Plugin::CameraPool::ICameraControlService
{
public:
    bool refuses = false;
    std::function<void()> onRefusal;
    bool throwsOnClose = false;
    int opens = 0;
    int accesses = 0;
    int closes = 0;
    int handles = 0;

    Plugin::CameraPool::CameraPtr
    getExclusiveAccess(const Plugin::CameraPool::CameraPtr& camera) override
    {
        ++accesses;
        return handleTo(camera);
    }

    Plugin::CameraPool::CameraPtr
    openWithExclusiveAccess(const Plugin::CameraPool::CameraPtr& camera) override
    {
        ++opens;
        auto handle = handleTo(camera);
        if (handle)
            fake(camera)->open = true;
        return handle;
    }

    void close(const Plugin::CameraPool::CameraPtr& camera) override
    {
        ++closes;
        fake(camera)->open = false;
        if (throwsOnClose)
            throw std::runtime_error("close failed");
    }

private:
    static FakeCamera* fake(const Plugin::CameraPool::CameraPtr& camera)
    {
        return dynamic_cast<FakeCamera*>(camera.data());
    }

    Plugin::CameraPool::CameraPtr handleTo(const Plugin::CameraPool::CameraPtr& camera)
    {
        if (refuses) {
            if (onRefusal)
                onRefusal();
            return {};
        }
        ++handles;
        return Plugin::CameraPool::CameraPtr(
            camera.data(), [this, camera](Core::CameraPoolComponents::ICamera*) { --handles; });
    }
};
