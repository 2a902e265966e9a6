// SPDX-License-Identifier: Apache-2.0
// What every camera of the host is, whatever stands behind it.
#include "hostcamera.h"

#include "camerahandle.h"

#include <QCoreApplication>

namespace Cameras {

HostCamera::~HostCamera() = default;

HostCamera::CameraPtr HostCamera::takeExclusiveAccess()
{
    const std::lock_guard lock(m_mutex);
    if (m_exclusive) {
        m_lastError = QCoreApplication::translate(
            "Cameras::HostCamera", "The camera is being used by another part of the program.");
        return {};
    }
    const auto handle = QSharedPointer<CameraHandle>::create(sharedFromThis());
    m_handle = handle;
    m_exclusive = true;
    return handle;
}

bool HostCamera::isExclusive() const
{
    const std::lock_guard lock(m_mutex);
    return m_exclusive;
}

QSharedPointer<CameraHandle> HostCamera::handle() const
{
    const std::lock_guard lock(m_mutex);
    return m_handle.toStrongRef();
}

void HostCamera::releaseExclusiveAccess()
{
    const std::lock_guard lock(m_mutex);
    m_exclusive = false;
}

bool HostCamera::startGrabbing()
{
    return !isExclusive() && doStartGrabbing();
}

bool HostCamera::grabSingle(int timeoutMs)
{
    return !isExclusive() && doGrabSingle(timeoutMs);
}

bool HostCamera::grabSingle()
{
    return grabSingle(defaultTimeoutMs());
}

QString HostCamera::lastErrorText() const
{
    const std::lock_guard lock(m_mutex);
    return m_lastError;
}

void HostCamera::clearLastError()
{
    setLastError({});
}

void HostCamera::setLastError(const QString& text)
{
    const std::lock_guard lock(m_mutex);
    m_lastError = text;
}

// The handle is held meanwhile: a receiver may drop it.
void HostCamera::deliver(const Ostria::CGrabResultPtr& result)
{
    const auto info = sharedFromThis();
    emit cameraImageGrabbed(info, result);
    if (const auto exclusive = handle())
        emit exclusive->cameraImageGrabbed(info, result);
}

void HostCamera::announceConnectionLost()
{
    emit cameraConnectionLost();
    if (const auto exclusive = handle())
        emit exclusive->cameraConnectionLost();
}

} // namespace Cameras
