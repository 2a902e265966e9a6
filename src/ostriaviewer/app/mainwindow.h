// SPDX-License-Identifier: Apache-2.0
// The viewer's window: cameras, live view, messages.
#pragma once

#include "cameracommands.h"
#include "cameralist.h"
#include "cameraselectorpanel.h"
#include "deviceselectorservice.h"
#include "featurepanel.h"
#include "livesession.h"
#include "liveview.h"
#include "mainmenu.h"
#include "menuservice.h"
#include "messagelogmodel.h"
#include "picturesaver.h"
#include "recordingcommands.h"
#include "viewersettings.h"

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QToolBar>

#include <functional>

namespace Viewer {

/// What the window shows; all are lent as long as it lives.
struct MainWindowParts
{
    CameraList& cameras;
    DeviceSelectorService& selector;
    MenuService& menus;
    MessageLogModel& messages;
    ViewerSettings& settings;
};

/// Thread-bound: GUI thread.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const MainWindowParts& parts);
    ~MainWindow() override;

    /// Asked before the window closes.
    /// \param mayClose  false keeps it open
    void setCloseCondition(std::function<bool()> mayClose);

    CameraSelectorPanel& selectorPanel() { return *m_selectorPanel; }
    CameraCommands& commands() { return *m_commands; }
    MainMenu& menu() { return *m_menu; }
    LiveView& liveView() { return *m_view; }
    LiveSession& session() { return *m_session; }
    RecordingCommands& recording() { return *m_recording; }
    FeaturePanel& features() { return *m_features; }

    /// Adds a panel that can be moved, hidden and shown by the View menu.
    /// \param name    of the panel in the remembered layout
    /// \param widget  taken over
    QDockWidget* addPanel(Qt::DockWidgetArea area, const char* name, QWidget* widget);

    void restoreLayout();
    void saveLayout();

    /// A message about something the user asked for; the window stays usable meanwhile.
    /// \param dialog  where it stands, if not over this window
    void showFailure(const QString& text, QWidget* dialog = nullptr);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeToolBar();
    void makeStatusBar();
    void makeConnections();
    void publishContextMenu();
    void savePicture();
    void chooseRecordingFolder();
    void showPixel(const QPoint& pixel);
    void showScale();
    void showRate(double perSecond);
    void showEnding();
    void showMessage(const LogMessage& message);
    void retranslate();

    MainWindowParts m_parts;
    std::function<bool()> m_mayClose;
    LiveView* m_view;
    CameraCommands* m_commands;
    CameraSelectorPanel* m_selectorPanel;
    LiveSession* m_session;
    RecordingCommands* m_recording;
    PictureSaver* m_saver;
    FeaturePanel* m_features;
    MainMenu* m_menu;
    QToolBar* m_tools;
    QDockWidget* m_cameraDock;
    QDockWidget* m_messageDock;
    QDockWidget* m_featureDock;
    QLabel* m_ending;
    QLabel* m_pixel;
    QLabel* m_rate;
    QLabel* m_scale;
};

} // namespace Viewer
