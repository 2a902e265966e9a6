// SPDX-License-Identifier: Apache-2.0
// What the viewer's cameras are doing, told in the GUI thread.
#include "cameralist.h"

namespace Viewer {

using Cameras::HostCamera;
using Cameras::HostCameraPtr;

CameraList::CameraList(Cameras::CameraPool& pool, QObject* parent)
    : QObject(parent)
    , m_pool(pool)
{
    for (const HostCameraPtr& camera : pool.cameras())
        watch(camera);
    connect(&pool, &Cameras::CameraPool::cameraAdded, this, [this](const HostCameraPtr& camera) {
        watch(camera);
        emit added(camera);
    });
    connect(&pool, &Cameras::CameraPool::cameraRemoved, this, [this](const HostCameraPtr& camera) {
        camera->disconnect(this);
        emit removed(camera);
    });
}

// The camera is held weakly, as its own connection must not keep it.
void CameraList::watch(const HostCameraPtr& camera)
{
    const QWeakPointer<HostCamera> weak = camera;
    connect(
        camera.data(), &HostCamera::stateChanged, this,
        [this, weak] {
            if (const HostCameraPtr changed = weak.toStrongRef())
                emit stateChanged(changed);
        },
        Qt::QueuedConnection);
    connect(
        camera.data(), &HostCamera::cameraConnectionLost, this,
        [this, weak] {
            if (const HostCameraPtr lost = weak.toStrongRef())
                emit connectionLost(lost);
        },
        Qt::QueuedConnection);
}

CameraState CameraList::state(const HostCameraPtr& camera) const
{
    if (!camera || !camera->isOpen())
        return CameraState::Closed;
    if (m_pool.recordings()->isRecording(camera.data()))
        return CameraState::Recording;
    return camera->isGrabbing() ? CameraState::Acquiring : CameraState::Open;
}

QString CameraList::stateName(CameraState state)
{
    switch (state) {
    case CameraState::Closed:
        return tr("closed");
    case CameraState::Open:
        return tr("open");
    case CameraState::Acquiring:
        return tr("acquiring");
    case CameraState::Recording:
        break;
    }
    return tr("recording");
}

void CameraList::announce(const HostCameraPtr& camera)
{
    emit stateChanged(camera);
}

} // namespace Viewer
