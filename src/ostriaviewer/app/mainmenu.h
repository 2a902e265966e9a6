// SPDX-License-Identifier: Apache-2.0
// The menu bar of the main window.
#pragma once

#include "cameracommands.h"
#include "liveview.h"
#include "menuservice.h"
#include "theme.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QObject>

namespace Viewer {

/// Makes the menus, and makes them known to plugins. Thread-bound: GUI thread.
class MainMenu final : public QObject
{
    Q_OBJECT

public:
    /// All are lent as long as the menu lives.
    MainMenu(QMenuBar& bar, MenuService& service, CameraCommands& camera, LiveView& view,
             QObject* parent = nullptr);

    /// For the actions that show and hide parts of the window.
    void addToView(QAction* action);

    /// For further actions on the selected camera.
    void addToCamera(QAction* action);

    /// Marks what is in effect.
    void showTheme(Theme theme);
    void showLanguage(const QString& code);

    void retranslate();

signals:
    void savePictureRequested();
    void quitRequested();
    void themeChosen(Viewer::Theme theme);
    void languageChosen(const QString& code);
    void pluginsRequested();
    void aboutRequested();

private:
    QMenu* makeMenu(QMenuBar& bar, const char* name);
    void fillFile();
    void fillView(LiveView& view);
    void fillCamera(CameraCommands& camera);
    void fillLanguage();
    void fillHelp();
    void publish(MenuService& service);
    void showPlaceholder();

    CameraCommands& m_commands;
    QMenu* m_file;
    QMenu* m_view;
    QMenu* m_camera;
    QMenu* m_tools;
    QMenu* m_language;
    QMenu* m_help;
    QMenu* m_theme;
    QAction* m_savePicture;
    QAction* m_quit;
    QAction* m_fit;
    QAction* m_pixels;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
    QAction* m_panels; // the line above the panels
    QAction* m_noTool;
    QAction* m_plugins;
    QAction* m_about;
    QActionGroup* m_themes;
    QActionGroup* m_languages;
};

} // namespace Viewer
