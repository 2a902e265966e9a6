// SPDX-License-Identifier: Apache-2.0
// Brings the selected camera's images into the live view.
#include "livesession.h"

#include <QEvent>

#include <utility>

namespace Viewer {

using Cameras::HostCamera;
using Cameras::HostCameraPtr;

LiveSession::LiveSession(CameraList& cameras, DeviceSelectorService& selector, LiveView& view,
                         QObject* parent)
    : QObject(parent)
    , m_cameras(cameras)
    , m_view(view)
    , m_selector(selector)
{
    connect(&selector, &DeviceSelectorService::switched, this, &LiveSession::follow);
    connect(&cameras, &CameraList::stateChanged, this, &LiveSession::onStateChanged);
    connect(&cameras, &CameraList::connectionLost, this, &LiveSession::onConnectionLost);
    connect(&m_converter, &FrameConverter::frameReady, this, &LiveSession::show);
    connect(&m_rateTimer, &QTimer::timeout, this, &LiveSession::measureRate);
    m_rateTimer.setInterval(1000);
    view.window()->installEventFilter(this);
    follow();
}

LiveSession::~LiveSession()
{
    disconnect(m_connection);
}

// The camera's thread hands each image to the converter itself, so that the GUI thread never makes
// it wait.
void LiveSession::follow()
{
    disconnect(m_connection);
    m_camera = m_selector.selected().dynamicCast<HostCamera>();
    m_isLost = false;
    m_isFailing = false;
    m_view.setPicture({});
    updatePause();
    retranslate();
    const FrameConverter::Inlet inlet = m_converter.openInlet();
    if (m_camera)
        m_connection = connect(m_camera.data(), &HostCamera::cameraImageGrabbed,
                               [inlet](const Core::CameraPoolComponents::CameraInfoPtr& /*camera*/,
                                       const Ostria::CGrabResultPtr& result) { inlet(result); });
}

bool LiveSession::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked) {
        m_isBlocked = event->type() == QEvent::WindowBlocked;
        updatePause();
    }
    return QObject::eventFilter(watched, event);
}

void LiveSession::updatePause()
{
    m_converter.setPaused(m_isBlocked && m_camera && m_camera->isExclusive());
}

void LiveSession::retranslate()
{
    if (!m_camera)
        m_view.setHint(tr("Select a camera in the list."));
    else if (m_isLost)
        m_view.setHint(tr("The connection to %1 is lost. Reconnect the camera and open it again.")
                           .arg(m_camera->displayName()));
    else if (!m_camera->isOpen())
        m_view.setHint(tr("%1 is closed. Double-click it, or press F5, to see its picture.")
                           .arg(m_camera->displayName()));
    else if (!m_camera->isGrabbing())
        m_view.setHint(tr("%1 is open. Press F5 to see its picture, or F6 for a single one.")
                           .arg(m_camera->displayName()));
    else
        m_view.setHint(tr("Waiting for the first picture of %1.").arg(m_camera->displayName()));
}

// The last picture of a closed camera would pass for a live one.
void LiveSession::onStateChanged(const HostCameraPtr& camera)
{
    if (camera != m_camera)
        return;
    if (!camera->isOpen())
        m_view.setPicture({});
    else
        m_isLost = false;
    retranslate();
}

void LiveSession::onConnectionLost(const HostCameraPtr& camera)
{
    if (camera != m_camera)
        return;
    m_isLost = true;
    m_view.setPicture({});
    retranslate();
}

void LiveSession::show(const LiveFrame& frame)
{
    if (!m_camera || !m_camera->isOpen())
        return;
    if (frame.picture.isNull()) {
        if (!std::exchange(m_isFailing, true))
            emit frameFailed(m_camera, frame.error);
        return;
    }
    m_isFailing = false;
    m_view.setPicture(frame.picture);
    ++m_frames;
    if (!m_rateTimer.isActive()) {
        m_sinceRate.start();
        m_rateTimer.start();
    }
}

void LiveSession::measureRate()
{
    const double seconds = static_cast<double>(m_sinceRate.restart()) / 1000.0;
    const int frames = std::exchange(m_frames, 0);
    if (frames == 0)
        m_rateTimer.stop();
    emit rateMeasured(frames / seconds);
}

} // namespace Viewer
