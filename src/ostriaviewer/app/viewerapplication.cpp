// SPDX-License-Identifier: Apache-2.0
// Puts the viewer together: cameras, services, window and plugins.
#include "viewerapplication.h"

#include "pluginsdialog.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include <functional>
#include <utility>

namespace Viewer {

using Cameras::HostCameraPtr;

namespace {

const auto themeName = QStringLiteral("Theme");
const auto languageName = QStringLiteral("Language");

} // namespace

ViewerApplication::ViewerApplication(ViewerArguments arguments,
                                     const QList<HostCameraPtr>& emulated)
    : m_arguments(std::move(arguments))
    , m_registry(QSharedPointer<Core::Service::CServiceRegistry>::create())
    , m_language(startLanguage(m_settings.value(languageName).toString()))
    , m_pool({})
    , m_menus(QSharedPointer<MenuService>::create())
    , m_selector(QSharedPointer<DeviceSelectorService>::create())
    , m_log(QSharedPointer<MessageLogService>::create(&m_messages))
    , m_cameras(m_pool)
    , m_sources(m_pool, *m_selector, emulated)
    , m_plugins(m_registry, hostParts())
{
    m_catalogues.install(m_language);
    const Theme theme = themeFromName(m_settings.value(themeName).toString());
    applyTheme(theme);
    registerServices();
    m_window = std::make_unique<MainWindow>(
        MainWindowParts{m_cameras, *m_selector, *m_menus, m_messages, m_settings});
    m_dialogFocus = std::make_unique<DialogFocus>(*m_window);
    m_window->menu().showTheme(theme);
    m_window->menu().showLanguage(m_language);
    m_cameraSettings =
        std::make_unique<CameraSettingsCommands>(m_sources, m_cameras, m_settings, *m_window);
    m_closingQuestion = std::make_unique<ClosingQuestion>(m_window->recording(), *m_window);
    auto* line = new QAction(m_window.get());
    line->setSeparator(true);
    m_window->menu().addToCamera(line);
    m_window->menu().addToCamera(m_cameraSettings->searchAction());
    m_window->menu().addToCamera(m_cameraSettings->settingsAction());
    makeConnections();
    reportCameras();
    if (!m_settings.warning().isEmpty())
        warn(m_settings.warning());
}

ViewerApplication::~ViewerApplication()
{
    m_plugins.unload();
    for (const Core::Service::ServicePtr& service :
         QList<Core::Service::ServicePtr>{m_menus, m_selector, m_log})
        m_registry->remove(service);
}

void ViewerApplication::registerServices()
{
    m_registry->add(m_log);
    m_registry->add(m_menus);
    m_registry->add(m_selector);
    m_pool.registerServices(*m_registry);
}

void ViewerApplication::makeConnections()
{
    const MainMenu* menu = &m_window->menu();
    connect(menu, &MainMenu::themeChosen, this, &ViewerApplication::chooseTheme);
    connect(menu, &MainMenu::languageChosen, this, &ViewerApplication::chooseLanguage);
    connect(menu, &MainMenu::pluginsRequested, this, &ViewerApplication::showPlugins);
    connect(menu, &MainMenu::aboutRequested, this, &ViewerApplication::showAbout);
    connect(&m_window->commands(), &CameraCommands::failed, this,
            [this](const QString& text) { m_log->addOwn(Core::Logging::Error, text); });
    connect(&m_window->recording(), &RecordingCommands::reported, this,
            [this](const QString& text, bool isFailure) {
                m_log->addOwn(isFailure ? Core::Logging::Error : Core::Logging::Information, text);
                if (isFailure)
                    m_window->showFailure(text);
            });
    connect(&m_window->features(), &FeaturePanel::refused, this,
            [this](const QString& reason) { warn(reason); });
    connect(&m_window->session(), &LiveSession::frameFailed, this,
            [this](const HostCameraPtr& camera, const QString& reason) {
                warn(tr("A picture of %1 failed: %2").arg(camera->displayName(), reason));
            });
    connect(&m_cameras, &CameraList::connectionLost, this, [this](const HostCameraPtr& camera) {
        m_log->addOwn(Core::Logging::Error,
                      tr("The connection to %1 is lost. Reconnect the camera and open it again.")
                          .arg(camera->displayName()));
    });
    m_window->setCloseCondition([this] { return mayClose(); });
    m_pool.setAnnouncer([selector = m_selector](const HostCameraPtr& camera,
                                                const std::function<void()>& announce) {
        selector->tellPlugins(camera, announce);
    });
}

void ViewerApplication::reportCameras()
{
    connect(&m_sources, &CameraSources::found, this, [this](const HostCameraPtr& camera) {
        m_log->addOwn(Core::Logging::Information, tr("%1 was found.").arg(camera->displayName()));
    });
    connect(&m_sources, &CameraSources::vanished, this, [this](const HostCameraPtr& camera) {
        m_log->addOwn(Core::Logging::Information,
                      tr("%1 can no longer be found.").arg(camera->displayName()));
    });
}

void ViewerApplication::start()
{
    m_window->restoreLayout();
    m_window->show();
    // Without a window manager nobody else gives it the keys.
    m_window->activateWindow();
    m_sources.apply(startSettings());
    loadPlugins();
    selectCamera();
}

CameraSettings ViewerApplication::startSettings() const
{
    CameraSettings settings = readCameraSettings(m_settings);
    settings.backends = m_arguments.backends.value_or(settings.backends);
    return settings;
}

// Plugins learn of what happens from then on alone, so they come first. A camera that is named but
// not there may still be found.
void ViewerApplication::selectCamera()
{
    const auto cameras = m_cameras.cameras();
    if (m_arguments.camera.isEmpty()) {
        if (cameras.isEmpty())
            return waitForFirstCamera();
        return m_window->selectorPanel().select(cameras.constFirst());
    }
    if (selectNamedCamera())
        return;
    if (m_sources.isFirstSearch())
        return waitForCamera();
    warn(tr("There is no camera \"%1\"; select one in the list.").arg(m_arguments.camera));
}

// Once the user has selected a camera or changed what is looked for, that counts.
void ViewerApplication::waitForCamera()
{
    auto* wait = new QObject(this);
    connect(m_selector.data(), &DeviceSelectorService::switched, wait, &QObject::deleteLater);
    connect(&m_sources, &CameraSources::applied, wait, &QObject::deleteLater);
    connect(&m_sources, &CameraSources::searched, wait, [this, wait] {
        wait->deleteLater();
        selectCamera();
    });
}

void ViewerApplication::waitForFirstCamera()
{
    auto* wait = new QObject(this);
    connect(m_selector.data(), &DeviceSelectorService::switched, wait, &QObject::deleteLater);
    connect(&m_cameras, &CameraList::added, wait, [this](const HostCameraPtr& camera) {
        if (!m_selector->selected())
            m_window->selectorPanel().select(camera);
    });
}

/// \return  whether there is such a camera; which of several is meant the user has to say
bool ViewerApplication::selectNamedCamera()
{
    const auto named = Cameras::camerasNamed(m_cameras.cameras(), m_arguments.camera);
    if (named.isEmpty())
        return false;
    if (named.size() > 1) {
        warn(tr("There are several cameras \"%1\"; select one in the list.")
                 .arg(m_arguments.camera));
        return true;
    }
    m_window->selectorPanel().select(named.constFirst());
    m_window->commands().start();
    return true;
}

void ViewerApplication::loadPlugins()
{
    const QString folder =
        m_arguments.pluginFolder.isEmpty() ? standardPluginFolder() : m_arguments.pluginFolder;
    m_plugins.loadFolder(folder, m_language, m_arguments.all);
    const QList<PluginReport> reports = m_plugins.reports();
    if (reports.isEmpty())
        warn(tr("There is no plugin in %1, so the viewer runs without tools. Install it again, or "
                "start it with the option --plugins and the folder of its plugins.")
                 .arg(QDir::toNativeSeparators(folder)));
    for (const PluginReport& report : reports) {
        const QString file = QDir::toNativeSeparators(report.file);
        if (report.error.isEmpty())
            m_log->addOwn(Core::Logging::Information,
                          tr("Plugin %1 %2 is loaded.").arg(report.name, report.version));
        else
            m_log->addOwn(report.isRequired ? Core::Logging::Error : Core::Logging::Warning,
                          tr("Plugin %1 is left out. %2").arg(file, report.error));
    }
}

PluginManager::HostParts ViewerApplication::hostParts()
{
    const QVersionNumber services(2, 0, 0);
    const QVersionNumber shell(7, 3, 0);
    return {{QStringLiteral("AppCore"), services},
            {QStringLiteral("CameraPool"), services},
            {QStringLiteral("DataProcessingCore"), services},
            {QStringLiteral("MessageLogCore"), services},
            {QStringLiteral("ParameterCollectionPool"), services},
            {QStringLiteral("CameraSelector"), shell},
            {QStringLiteral("ImageView"), shell},
            {QStringLiteral("ViewerShell"), shell},
            {QStringLiteral("VideoRecording"), shell}};
}

// Installed, or in the folder of a build.
QString ViewerApplication::standardPluginFolder()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString installed =
        programs.absoluteFilePath(QStringLiteral("../lib/ostriaviewer/plugins"));
    const QString built = programs.absoluteFilePath(QStringLiteral("../plugins"));
    return QDir::cleanPath(QDir(installed).exists() ? installed : built);
}

void ViewerApplication::chooseTheme(Theme theme)
{
    m_settings.setValue(themeName, nameOf(theme));
    applyTheme(theme);
    m_window->menu().showTheme(theme);
}

void ViewerApplication::chooseLanguage(const QString& code)
{
    m_settings.setValue(languageName, code);
    m_language = code;
    m_catalogues.install(code);
    m_plugins.setLanguage(code);
    m_cameraSettings->retranslate();
    m_window->menu().showLanguage(code);
}

void ViewerApplication::showPlugins()
{
    auto* dialog = new PluginsDialog(m_plugins.reports(), m_window.get());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void ViewerApplication::showAbout()
{
    auto* box = new QMessageBox(
        QMessageBox::NoIcon, tr("About Ostria Viewer"),
        tr("<h3>Ostria Viewer %1</h3><p>Shows the pictures of cameras, and what plugins do with "
           "them.</p><p>Licence: Apache 2.0. Built on Qt %2.</p>")
            .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion())),
        QMessageBox::Close, m_window.get());
    box->setIconPixmap(m_window->windowIcon().pixmap(64));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

bool ViewerApplication::mayClose()
{
    return !QApplication::activeModalWidget() && m_plugins.checkClosability(false) &&
           (m_isQuitting || m_closingQuestion->mayClose());
}

// A dialog runs an event loop of its own, which must have ended before the window does.
void ViewerApplication::quit()
{
    m_isQuitting = true;
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog) {
        m_isQuitting = m_window->close();
        return;
    }
    dialog->close();
    QMetaObject::invokeMethod(
        this,
        [this, dialog] {
            m_isQuitting = QApplication::activeModalWidget() != dialog;
            if (m_isQuitting)
                quit();
        },
        Qt::QueuedConnection);
}

void ViewerApplication::warn(const QString& text)
{
    m_log->addOwn(Core::Logging::Warning, text);
}

} // namespace Viewer
