// SPDX-License-Identifier: Apache-2.0
// The viewer's window: cameras, live view, messages.
#include "mainwindow.h"

#include "messagelogpanel.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

#include <utility>

namespace Viewer {

using Plugin::AppCore::CId;

namespace {

CId id(const char* name)
{
    return CId(QString::fromLatin1(name));
}

} // namespace

MainWindow::MainWindow(const MainWindowParts& parts)
    : m_parts(parts)
    , m_view(new LiveView(this))
    , m_commands(new CameraCommands(parts.cameras, parts.selector, this))
    , m_selectorPanel(new CameraSelectorPanel(parts.cameras, parts.selector, this))
    , m_session(new LiveSession(parts.cameras, parts.selector, *m_view, this))
    , m_recording(new RecordingCommands(parts.cameras, *m_commands, parts.settings, this))
    , m_saver(new PictureSaver(parts.settings, this))
    , m_features(new FeaturePanel(parts.cameras, parts.selector, this))
    , m_menu(new MainMenu(*menuBar(), parts.menus, *m_commands, *m_view, this))
    , m_tools(addToolBar(QString()))
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(QIcon(QStringLiteral(":/ostriaviewercomponents/Resources/ostriaviewer.svg")));
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    m_view->setObjectName(QStringLiteral("liveView"));
    setCentralWidget(m_view);
    parts.menus.addContext(id("AppCore.Global.Context"), this);
    m_cameraDock = addPanel(Qt::LeftDockWidgetArea, "camerasPanel", m_selectorPanel);
    m_messageDock = addPanel(Qt::BottomDockWidgetArea, "messagesPanel",
                             new MessageLogPanel(&parts.messages, this));
    m_featureDock = addPanel(Qt::RightDockWidgetArea, "featuresPanel", m_features);
    makeToolBar();
    makeStatusBar();
    publishContextMenu();
    makeConnections();
    retranslate();
    resize(1200, 800);
    resizeDocks({m_cameraDock, m_featureDock}, {350, 340}, Qt::Horizontal);
    resizeDocks({m_messageDock}, {170}, Qt::Vertical);
}

MainWindow::~MainWindow()
{
    m_parts.messages.disconnect(this);
}

QDockWidget* MainWindow::addPanel(Qt::DockWidgetArea area, const char* name, QWidget* widget)
{
    auto* dock = new QDockWidget(this);
    dock->setObjectName(QString::fromLatin1(name));
    dock->setWidget(widget);
    addDockWidget(area, dock);
    m_menu->addToView(dock->toggleViewAction());
    return dock;
}

void MainWindow::makeToolBar()
{
    m_tools->setObjectName(QStringLiteral("cameraTools"));
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_tools->addActions({m_commands->openAction(), m_commands->closeAction()});
    m_tools->addSeparator();
    m_tools->addActions(
        {m_commands->startAction(), m_commands->stopAction(), m_commands->singleAction()});
    m_tools->addAction(m_recording->recordAction());
    m_menu->addToView(m_tools->toggleViewAction());
    m_menu->addToCamera(m_recording->recordAction());
    m_menu->addToCamera(m_recording->folderAction());
}

void MainWindow::makeStatusBar()
{
    for (QLabel** label : {&m_ending, &m_pixel, &m_rate, &m_scale}) {
        *label = new QLabel(this);
        statusBar()->addPermanentWidget(*label);
    }
    m_ending->setObjectName(QStringLiteral("ending"));
    m_ending->setMinimumWidth(1); // long names of cameras do not widen the window
    m_pixel->setObjectName(QStringLiteral("pixel"));
    m_rate->setObjectName(QStringLiteral("rate"));
    m_scale->setObjectName(QStringLiteral("scale"));
}

void MainWindow::publishContextMenu()
{
    QMenu* menu = m_selectorPanel->contextMenu();
    menu->addActions({m_commands->openAction(), m_commands->closeAction()});
    menu->addSeparator();
    menu->addActions(
        {m_commands->startAction(), m_commands->stopAction(), m_commands->singleAction()});
    menu->addSeparator();
    m_parts.menus.addContainer(id("OstriaViewer.CameraSelectorContextMenu"), menu,
                               {id("OstriaViewer.Group.CameraSelectorContextMenu.Misc")});
}

void MainWindow::makeConnections()
{
    connect(m_selectorPanel, &CameraSelectorPanel::activated, m_commands, &CameraCommands::start);
    connect(m_commands, &CameraCommands::failed, this,
            [this](const QString& text) { showFailure(text); });
    connect(m_menu, &MainMenu::savePictureRequested, this, &MainWindow::savePicture);
    connect(m_saver, &PictureSaver::failed, this, &MainWindow::showFailure);
    connect(m_menu, &MainMenu::quitRequested, this, &QWidget::close);
    connect(&m_parts.selector, &DeviceSelectorService::switched, m_recording,
            &RecordingCommands::update);
    connect(m_recording, &RecordingCommands::folderRequested, this,
            &MainWindow::chooseRecordingFolder);
    connect(m_recording, &RecordingCommands::endingChanged, this, &MainWindow::showEnding);
    connect(m_view, &LiveView::pixelHovered, this, &MainWindow::showPixel);
    connect(m_view, &LiveView::scaleChanged, this, &MainWindow::showScale);
    connect(m_session, &LiveSession::rateMeasured, this, &MainWindow::showRate);
    connect(&m_parts.messages, &MessageLogModel::added, this, &MainWindow::showMessage);
}

void MainWindow::setCloseCondition(std::function<bool()> mayClose)
{
    m_mayClose = std::move(mayClose);
}

void MainWindow::restoreLayout()
{
    restoreGeometry(m_parts.settings.value(QStringLiteral("Geometry")).toByteArray());
    restoreState(m_parts.settings.value(QStringLiteral("Layout")).toByteArray(),
                 ViewerSettings::version);
}

void MainWindow::saveLayout()
{
    m_parts.settings.setValue(QStringLiteral("Geometry"), saveGeometry());
    m_parts.settings.setValue(QStringLiteral("Layout"), saveState(ViewerSettings::version));
}

void MainWindow::showFailure(const QString& text, QWidget* dialog)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Ostria Viewer"), text, QMessageBox::Ok,
                                dialog ? dialog : this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

void MainWindow::savePicture()
{
    const QImage picture = m_view->picture();
    const Cameras::HostCameraPtr camera = m_commands->camera();
    if (picture.isNull() || !camera)
        return showFailure(tr("There is no picture to save. Start a camera first."));
    m_saver->save(picture, camera->modelName());
}

void MainWindow::chooseRecordingFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Recording Folder"), m_recording->folder());
    if (!folder.isEmpty())
        m_recording->setFolder(folder);
}

void MainWindow::showPixel(const QPoint& pixel)
{
    const QImage& picture = m_view->picture();
    if (!picture.valid(pixel))
        return m_pixel->clear();
    const QColor color = picture.pixelColor(pixel);
    m_pixel->setText(tr("%1, %2:  R %3  G %4  B %5")
                         .arg(pixel.x())
                         .arg(pixel.y())
                         .arg(color.red())
                         .arg(color.green())
                         .arg(color.blue()));
}

void MainWindow::showScale()
{
    if (m_view->picture().isNull())
        m_scale->clear();
    else
        m_scale->setText(tr("%1 x %2 at %3 %")
                             .arg(m_view->picture().width())
                             .arg(m_view->picture().height())
                             .arg(m_view->scale() * 100.0, 0, 'f', 0));
}

void MainWindow::showRate(double perSecond)
{
    m_rate->setText(perSecond > 0.0 ? tr("%1 pictures/s").arg(perSecond, 0, 'f', 1) : QString());
}

void MainWindow::showEnding()
{
    const QString cameras = m_recording->ending().join(QStringLiteral(", "));
    m_ending->setText(cameras.isEmpty() ? QString()
                                        : tr("Writing the last pictures of %1.").arg(cameras));
}

// Whoever has hidden the messages still learns of what went wrong.
void MainWindow::showMessage(const LogMessage& message)
{
    if (message.level >= Core::Logging::Warning)
        statusBar()->showMessage(message.text, 15000);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_mayClose && !m_mayClose())
        return event->ignore();
    saveLayout();
    event->accept();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::retranslate()
{
    setWindowTitle(tr("Ostria Viewer"));
    m_view->setAccessibleName(tr("Live view"));
    m_cameraDock->setWindowTitle(tr("Cameras"));
    m_messageDock->setWindowTitle(tr("Messages"));
    m_featureDock->setWindowTitle(tr("Features"));
    m_tools->setWindowTitle(tr("Camera tools"));
    m_commands->retranslate();
    m_recording->retranslate();
    m_menu->retranslate();
    m_session->retranslate();
    showEnding();
    showScale();
}

} // namespace Viewer
