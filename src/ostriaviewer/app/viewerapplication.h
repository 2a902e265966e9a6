// SPDX-License-Identifier: Apache-2.0
// Puts the viewer together: cameras, services, window and plugins.
#pragma once

#include "cameralist.h"
#include "camerapool.h"
#include "camerasettingscommands.h"
#include "camerasources.h"
#include "closingquestion.h"
#include "deviceselectorservice.h"
#include "dialogfocus.h"
#include "language.h"
#include "mainwindow.h"
#include "menuservice.h"
#include "messagelogmodel.h"
#include "messagelogservice.h"
#include "pluginmanager.h"
#include "serviceregistry.h"
#include "viewerarguments.h"
#include "viewersettings.h"

#include <QObject>
#include <QSharedPointer>

#include <memory>

namespace Viewer {

/// The whole viewer; its end gives all cameras back. Thread-bound: GUI thread.
class ViewerApplication final : public QObject
{
    Q_OBJECT

public:
    /// \param emulated  the cameras of the emulation; not null, each once
    ViewerApplication(ViewerArguments arguments, const QList<Cameras::HostCameraPtr>& emulated);
    ~ViewerApplication() override;

    /// Shows the window, begins to look for cameras, and loads the plugins.
    void start();

    /// Closes dialogs that are open, then the window, and asks nothing. What runs in a dialog is
    /// cancelled.
    void quit();

    MainWindow& window() { return *m_window; }
    const QSharedPointer<Core::Service::CServiceRegistry>& registry() const { return m_registry; }
    MessageLogModel& messages() { return m_messages; }
    const PluginManager& plugins() const { return m_plugins; }
    Cameras::CameraPool& pool() { return m_pool; }

    /// The host parts that plugins may depend on.
    static PluginManager::HostParts hostParts();

    /// Where the viewer's own plugins are.
    static QString standardPluginFolder();

private:
    void registerServices();
    void makeConnections();
    void reportCameras();
    CameraSettings startSettings() const;
    void loadPlugins();
    void selectCamera();
    void waitForCamera();
    void waitForFirstCamera();
    bool selectNamedCamera();
    void chooseTheme(Theme theme);
    void chooseLanguage(const QString& code);
    void showPlugins();
    void showAbout();
    bool mayClose();
    void warn(const QString& text);

    const ViewerArguments m_arguments;
    const QSharedPointer<Core::Service::CServiceRegistry> m_registry;
    ViewerSettings m_settings;
    LanguageCatalogues m_catalogues;
    QString m_language;
    MessageLogModel m_messages;
    Cameras::CameraPool m_pool;
    const QSharedPointer<MenuService> m_menus;
    const QSharedPointer<DeviceSelectorService> m_selector;
    const QSharedPointer<MessageLogService> m_log;
    CameraList m_cameras;
    CameraSources m_sources;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<DialogFocus> m_dialogFocus;
    std::unique_ptr<CameraSettingsCommands> m_cameraSettings;
    std::unique_ptr<ClosingQuestion> m_closingQuestion;
    bool m_isQuitting = false;
    PluginManager m_plugins; // ends first
};

} // namespace Viewer
