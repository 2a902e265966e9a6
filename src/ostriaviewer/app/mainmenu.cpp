// SPDX-License-Identifier: Apache-2.0
// The menu bar of the main window.
#include "mainmenu.h"

#include "language.h"

#include <algorithm>

namespace Viewer {

using Plugin::AppCore::CId;

namespace {

CId id(const char* name)
{
    return CId(QString::fromLatin1(name));
}

} // namespace

MainMenu::MainMenu(QMenuBar& bar, MenuService& service, CameraCommands& camera, LiveView& view,
                   QObject* parent)
    : QObject(parent)
    , m_commands(camera)
    , m_file(makeMenu(bar, "fileMenu"))
    , m_view(makeMenu(bar, "viewMenu"))
    , m_camera(makeMenu(bar, "cameraMenu"))
    , m_tools(makeMenu(bar, "toolsMenu"))
    , m_language(makeMenu(bar, "languageMenu"))
    , m_help(makeMenu(bar, "helpMenu"))
    , m_theme(new QMenu(m_view))
    , m_noTool(new QAction(this))
    , m_themes(new QActionGroup(this))
    , m_languages(new QActionGroup(this))
{
    fillFile();
    fillView(view);
    fillCamera(camera);
    fillLanguage();
    fillHelp();
    publish(service);
    m_noTool->setEnabled(false);
    m_tools->addAction(m_noTool);
    connect(m_tools, &QMenu::aboutToShow, this, &MainMenu::showPlaceholder);
    retranslate();
}

QMenu* MainMenu::makeMenu(QMenuBar& bar, const char* name)
{
    QMenu* menu = bar.addMenu(QString());
    menu->setObjectName(QString::fromLatin1(name));
    menu->setToolTipsVisible(true);
    return menu;
}

void MainMenu::fillFile()
{
    m_savePicture = m_file->addAction({}, this, &MainMenu::savePictureRequested);
    m_savePicture->setObjectName(QStringLiteral("savePicture"));
    m_savePicture->setShortcut(QKeySequence::Save);
    m_file->addSeparator();
    m_quit = m_file->addAction({}, this, &MainMenu::quitRequested);
    m_quit->setObjectName(QStringLiteral("quit"));
    m_quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_quit->setMenuRole(QAction::QuitRole);
}

void MainMenu::fillView(LiveView& view)
{
    m_fit = m_view->addAction({}, &view, &LiveView::zoomToFit);
    m_fit->setObjectName(QStringLiteral("zoomToFit"));
    m_fit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    m_pixels = m_view->addAction({}, &view, &LiveView::zoomToPixels);
    m_pixels->setObjectName(QStringLiteral("zoomToPixels"));
    m_pixels->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_1));
    m_zoomIn = m_view->addAction({}, &view, &LiveView::zoomIn);
    m_zoomIn->setShortcut(QKeySequence::ZoomIn);
    m_zoomOut = m_view->addAction({}, &view, &LiveView::zoomOut);
    m_zoomOut->setShortcut(QKeySequence::ZoomOut);
    m_view->addSeparator();
    m_panels = m_view->addSeparator();
    m_view->addMenu(m_theme);
    for (const Theme theme : {Theme::Desktop, Theme::Light, Theme::Dark}) {
        QAction* action = m_theme->addAction({}, this, [this, theme] { emit themeChosen(theme); });
        action->setObjectName(nameOf(theme) + QStringLiteral("Theme"));
        action->setCheckable(true);
        action->setData(nameOf(theme));
        m_themes->addAction(action);
    }
}

void MainMenu::fillCamera(CameraCommands& camera)
{
    m_camera->addActions({camera.openAction(), camera.closeAction()});
    m_camera->addSeparator();
    m_camera->addActions({camera.startAction(), camera.stopAction(), camera.singleAction()});
}

void MainMenu::fillLanguage()
{
    for (const LanguageName& language : languages()) {
        QAction* action = m_language->addAction(
            language.nativeName, this, [this, code = language.code] { emit languageChosen(code); });
        action->setObjectName(QStringLiteral("language_") + language.code);
        action->setCheckable(true);
        action->setData(language.code);
        m_languages->addAction(action);
    }
}

void MainMenu::fillHelp()
{
    m_plugins = m_help->addAction({}, this, &MainMenu::pluginsRequested);
    m_plugins->setObjectName(QStringLiteral("plugins"));
    m_about = m_help->addAction({}, this, &MainMenu::aboutRequested);
    m_about->setObjectName(QStringLiteral("about"));
    m_about->setMenuRole(QAction::AboutRole);
}

void MainMenu::publish(MenuService& service)
{
    service.addContainer(id("OstriaViewer.Menu.File"), m_file, {});
    service.addContainer(id("OstriaViewer.Menu.View"), m_view, {});
    service.addContainer(id("OstriaViewer.Menu.Camera"), m_camera, {});
    service.addContainer(id("OstriaViewer.Menu.Tools"), m_tools,
                         {id("OstriaViewer.Group.Tools.Tools")});
    service.addContainer(id("OstriaViewer.Menu.Help"), m_help, {});
}

// An empty menu would not open, and say nothing.
void MainMenu::showPlaceholder()
{
    const QList<QAction*> actions = m_tools->actions();
    const auto camera = m_commands.camera();
    m_noTool->setText(camera && !camera->isOpen() ? tr("Open the camera to see its tools")
                                                  : tr("No tool for the selected camera"));
    m_noTool->setVisible(std::none_of(actions.begin(), actions.end(), [this](QAction* action) {
        return action != m_noTool && !action->isSeparator() && action->isVisible();
    }));
}

void MainMenu::addToView(QAction* action)
{
    m_view->insertAction(m_panels, action);
}

void MainMenu::addToCamera(QAction* action)
{
    m_camera->addAction(action);
}

void MainMenu::showTheme(Theme theme)
{
    for (QAction* action : m_themes->actions())
        action->setChecked(action->data().toString() == nameOf(theme));
}

void MainMenu::showLanguage(const QString& code)
{
    for (QAction* action : m_languages->actions())
        action->setChecked(action->data().toString() == code);
}

void MainMenu::retranslate()
{
    m_file->setTitle(tr("&File"));
    m_view->setTitle(tr("&View"));
    m_camera->setTitle(tr("&Camera"));
    m_tools->setTitle(tr("&Tools"));
    m_language->setTitle(tr("&Language"));
    m_help->setTitle(tr("&Help"));
    m_theme->setTitle(tr("&Theme"));
    m_savePicture->setText(tr("&Save Picture..."));
    m_quit->setText(tr("&Quit"));
    m_fit->setText(tr("Zoom to &Fit"));
    m_pixels->setText(tr("Zoom to &Pixels"));
    m_zoomIn->setText(tr("Zoom &In"));
    m_zoomOut->setText(tr("Zoom &Out"));
    m_plugins->setText(tr("&Plugins"));
    m_about->setText(tr("&About"));
    const QString themes[] = {tr("Like the &Desktop"), tr("&Light"), tr("Dar&k")};
    for (int index = 0; index < m_themes->actions().size(); ++index)
        m_themes->actions().at(index)->setText(themes[index]);
}

} // namespace Viewer
