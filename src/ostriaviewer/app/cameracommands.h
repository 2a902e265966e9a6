// SPDX-License-Identifier: Apache-2.0
// What the user can do with the selected camera.
#pragma once

#include "cameralist.h"
#include "deviceselectorservice.h"

#include <QAction>
#include <QObject>

namespace Viewer {

/// The actions on the selected camera; they are enabled while they can be used. Thread-bound: GUI
/// thread.
class CameraCommands final : public QObject
{
    Q_OBJECT

public:
    /// \param cameras, selector  lent as long as the commands live
    CameraCommands(CameraList& cameras, DeviceSelectorService& selector, QObject* parent = nullptr);

    QAction* openAction() const { return m_open; }
    QAction* closeAction() const { return m_close; }
    QAction* startAction() const { return m_start; }
    QAction* stopAction() const { return m_stop; }
    QAction* singleAction() const { return m_single; }

    /// Null if none is selected.
    Cameras::HostCameraPtr camera() const;

    /// Opens the selected camera if it is closed, and shows its picture continuously.
    void start();

    void retranslate();

signals:
    /// Something the user asked for did not work.
    /// \param text  what, why, and what to do
    void failed(const QString& text);

private:
    QAction* makeAction(const char* name, const QKeySequence& shortcut);
    bool ensureOpen(const Cameras::HostCameraPtr& camera);
    void open();
    void close();
    void stop();
    void grabSingle();
    void update();

    CameraList& m_cameras;
    DeviceSelectorService& m_selector;
    QAction* m_open;
    QAction* m_close;
    QAction* m_start;
    QAction* m_stop;
    QAction* m_single;
};

} // namespace Viewer
