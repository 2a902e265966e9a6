// SPDX-License-Identifier: Apache-2.0
// Exclusive rights to a camera.
#include "camerahandle.h"

#include <utility>

namespace Cameras {

CameraHandle::CameraHandle(HostCameraPtr camera)
    : m_camera(std::move(camera))
{}

CameraHandle::~CameraHandle()
{
    if (m_hasGrabbed)
        m_camera->stopGrabbing();
    m_camera->releaseExclusiveAccess();
}

QString CameraHandle::modelName() const
{
    return m_camera->modelName();
}

bool CameraHandle::isOpen() const
{
    return m_camera->isOpen();
}

bool CameraHandle::isGrabbing() const
{
    return m_camera->isGrabbing();
}

bool CameraHandle::startGrabbing()
{
    m_hasGrabbed = true;
    return m_camera->doStartGrabbing();
}

bool CameraHandle::grabSingle(int timeoutMs)
{
    m_hasGrabbed = true;
    return m_camera->doGrabSingle(timeoutMs);
}

bool CameraHandle::grabSingle()
{
    return grabSingle(m_camera->defaultTimeoutMs());
}

void CameraHandle::stopGrabbing()
{
    m_camera->stopGrabbing();
}

Core::ParameterCollection::ParameterCollectionPtr CameraHandle::parameterCollection()
{
    return m_camera->parameterCollection();
}

} // namespace Cameras
