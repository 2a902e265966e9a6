// SPDX-License-Identifier: Apache-2.0
// Brings the selected camera's images into the live view.
#pragma once

#include "cameralist.h"
#include "deviceselectorservice.h"
#include "frameconverter.h"
#include "liveview.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace Viewer {

/// Thread-bound: GUI thread.
class LiveSession final : public QObject
{
    Q_OBJECT

public:
    /// All are lent as long as the session lives.
    LiveSession(CameraList& cameras, DeviceSelectorService& selector, LiveView& view,
                QObject* parent = nullptr);
    ~LiveSession() override;

    void retranslate();

    /// Pauses behind a modal window that holds the camera exclusively: such a window shows the
    /// camera's picture itself. What it has grabbed last is shown when it has ended.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Once a second while frames come, and once more when they end.
    /// \param perSecond  frames shown; 0 at the end
    void rateMeasured(double perSecond);

    /// The first of frames in a row that failed.
    void frameFailed(const Cameras::HostCameraPtr& camera, const QString& reason);

private:
    void follow();
    void onStateChanged(const Cameras::HostCameraPtr& camera);
    void onConnectionLost(const Cameras::HostCameraPtr& camera);
    void show(const LiveFrame& frame);
    void updatePause();
    void measureRate();

    CameraList& m_cameras;
    LiveView& m_view;
    DeviceSelectorService& m_selector;
    FrameConverter m_converter;
    Cameras::HostCameraPtr m_camera;
    QMetaObject::Connection m_connection;
    bool m_isBlocked = false; // the window, by a modal one
    bool m_isLost = false;
    bool m_isFailing = false;
    QTimer m_rateTimer;
    QElapsedTimer m_sinceRate;
    int m_frames = 0;
};

} // namespace Viewer
