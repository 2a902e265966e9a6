// SPDX-License-Identifier: Apache-2.0
// The commands around where cameras come from.
#pragma once

#include "cameralist.h"
#include "camerasources.h"
#include "viewersettings.h"

#include <QAction>
#include <QObject>

class QWidget;

namespace Viewer {

/// Looking for cameras, and the dialog with the settings. Thread-bound: GUI thread.
class CameraSettingsCommands final : public QObject
{
    Q_OBJECT

public:
    /// All are lent as long as the commands live.
    /// \param window  the parent of actions and dialog
    CameraSettingsCommands(CameraSources& sources, const CameraList& cameras,
                           ViewerSettings& settings, QWidget& window, QObject* parent = nullptr);

    QAction* searchAction() const { return m_search; }
    QAction* settingsAction() const { return m_edit; }

    void retranslate();

private:
    void edit();
    CameraSettings applied(const CameraSettings& chosen, const CameraSettings& kept) const;
    QString question(const CameraSettings& settings) const;

    CameraSources& m_sources;
    const CameraList& m_cameras;
    ViewerSettings& m_settings;
    QWidget& m_window;
    QAction* m_search;
    QAction* m_edit;
};

} // namespace Viewer
