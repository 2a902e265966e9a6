// SPDX-License-Identifier: Apache-2.0
// What the user can do with the selected camera.
#include "cameracommands.h"

#include "commandtext.h"

#include <QGuiApplication>

namespace Viewer {

using Cameras::HostCamera;
using Cameras::HostCameraPtr;

namespace {

/// The camera's own words for what has just failed; they are told once.
QString takeErrorText(HostCamera& camera)
{
    const QString text = camera.lastErrorText();
    camera.clearLastError();
    return text;
}

} // namespace

CameraCommands::CameraCommands(CameraList& cameras, DeviceSelectorService& selector,
                               QObject* parent)
    : QObject(parent)
    , m_cameras(cameras)
    , m_selector(selector)
    , m_open(makeAction("open", QKeySequence(Qt::CTRL | Qt::Key_O)))
    , m_close(makeAction("close", QKeySequence(Qt::CTRL | Qt::Key_W)))
    , m_start(makeAction("start", QKeySequence(Qt::Key_F5)))
    , m_stop(makeAction("stop", QKeySequence(Qt::SHIFT | Qt::Key_F5)))
    , m_single(makeAction("single", QKeySequence(Qt::Key_F6)))
{
    connect(m_open, &QAction::triggered, this, &CameraCommands::open);
    connect(m_close, &QAction::triggered, this, &CameraCommands::close);
    connect(m_start, &QAction::triggered, this, &CameraCommands::start);
    connect(m_stop, &QAction::triggered, this, &CameraCommands::stop);
    connect(m_single, &QAction::triggered, this, &CameraCommands::grabSingle);
    connect(&selector, &DeviceSelectorService::switched, this, &CameraCommands::update);
    connect(&cameras, &CameraList::stateChanged, this, &CameraCommands::update);
    retranslate();
    update();
}

QAction* CameraCommands::makeAction(const char* name, const QKeySequence& shortcut)
{
    auto* action = new QAction(this);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    action->setIcon(
        QIcon(QStringLiteral(":/ostriaviewer/icons/%1.svg").arg(QString::fromLatin1(name))));
    return action;
}

HostCameraPtr CameraCommands::camera() const
{
    return m_selector.selected().dynamicCast<HostCamera>();
}

// Opening may take a network's time, so the user sees that something happens.
bool CameraCommands::ensureOpen(const HostCameraPtr& camera)
{
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    const bool isOpen = m_cameras.pool().open(camera);
    QGuiApplication::restoreOverrideCursor();
    if (isOpen)
        return true;
    emit failed(
        tr("%1 could not be opened. %2").arg(camera->displayName(), takeErrorText(*camera)));
    return false;
}

void CameraCommands::open()
{
    if (const HostCameraPtr selected = camera())
        ensureOpen(selected);
}

void CameraCommands::close()
{
    if (const HostCameraPtr selected = camera())
        selected->close();
}

void CameraCommands::start()
{
    const HostCameraPtr selected = camera();
    if (!selected || !ensureOpen(selected) || selected->startGrabbing())
        return;
    if (selected->isExclusive())
        emit failed(tr("%1 delivers no images, as another part of the program is using it. End "
                       "that first.")
                        .arg(selected->displayName()));
    else
        emit failed(
            tr("%1 delivers no images. %2").arg(selected->displayName(), takeErrorText(*selected)));
}

void CameraCommands::stop()
{
    if (const HostCameraPtr selected = camera())
        selected->stopGrabbing();
}

void CameraCommands::grabSingle()
{
    const HostCameraPtr selected = camera();
    if (!selected || !ensureOpen(selected) || selected->grabSingle())
        return;
    if (selected->isExclusive())
        emit failed(tr("%1 takes no picture, as another part of the program is using it. Try again "
                       "later.")
                        .arg(selected->displayName()));
    else
        emit failed(
            tr("%1 takes no picture. %2").arg(selected->displayName(), takeErrorText(*selected)));
}

void CameraCommands::update()
{
    const HostCameraPtr selected = camera();
    const CameraState state = m_cameras.state(selected);
    const bool isIdle = state == CameraState::Closed || state == CameraState::Open;
    m_open->setEnabled(selected && state == CameraState::Closed);
    m_close->setEnabled(state != CameraState::Closed);
    m_start->setEnabled(selected && isIdle);
    m_single->setEnabled(selected && isIdle);
    m_stop->setEnabled(selected && !isIdle);
}

void CameraCommands::retranslate()
{
    setCommandText(*m_open, tr("&Open"));
    m_open->setToolTip(tr("Open the selected camera"));
    setCommandText(*m_close, tr("&Close"));
    m_close->setToolTip(tr("Close the selected camera"));
    setCommandText(*m_start, tr("&Start"));
    m_start->setToolTip(tr("Show the camera's picture continuously"));
    setCommandText(*m_stop, tr("S&top"));
    m_stop->setToolTip(tr("Stop the camera"));
    setCommandText(*m_single, tr("Single &Picture"));
    m_single->setToolTip(tr("Take one picture"));
}

} // namespace Viewer
