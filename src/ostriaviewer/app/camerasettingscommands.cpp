// SPDX-License-Identifier: Apache-2.0
// The commands around where cameras come from.
#include "camerasettingscommands.h"

#include "camerasettingsdialog.h"
#include "networkinterfaces.h"

#include <QStringList>

namespace Viewer {

CameraSettingsCommands::CameraSettingsCommands(CameraSources& sources, const CameraList& cameras,
                                               ViewerSettings& settings, QWidget& window,
                                               QObject* parent)
    : QObject(parent)
    , m_sources(sources)
    , m_cameras(cameras)
    , m_settings(settings)
    , m_window(window)
    , m_search(new QAction(&window))
    , m_edit(new QAction(&window))
{
    m_search->setObjectName(QStringLiteral("searchCameras"));
    m_search->setShortcut(QKeySequence(Qt::Key_F8));
    m_edit->setObjectName(QStringLiteral("editCameraSettings"));
    m_edit->setMenuRole(QAction::PreferencesRole);
    connect(m_search, &QAction::triggered, &sources, &CameraSources::search);
    connect(m_edit, &QAction::triggered, this, &CameraSettingsCommands::edit);
    retranslate();
}

void CameraSettingsCommands::edit()
{
    const CameraSettings kept =
        m_settings.isKept() ? readCameraSettings(m_settings) : m_sources.settings();
    auto* dialog = new CameraSettingsDialog(kept, Cameras::GenICam::networkInterfaces(), &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setQuestion(
        [this, kept](const CameraSettings& chosen) { return question(applied(chosen, kept)); });
    connect(dialog, &QDialog::accepted, this, [this, dialog, kept] {
        const CameraSettings chosen = dialog->settings();
        writeCameraSettings(m_settings, chosen);
        m_sources.apply(applied(chosen, kept));
    });
    dialog->open();
}

// The kind of cameras that this start alone was asked to show stays until another one is chosen,
// and is not kept.
CameraSettings CameraSettingsCommands::applied(const CameraSettings& chosen,
                                               const CameraSettings& kept) const
{
    CameraSettings applied = chosen;
    if (chosen.backends == kept.backends)
        applied.backends = m_sources.settings().backends;
    return applied;
}

QString CameraSettingsCommands::question(const CameraSettings& settings) const
{
    QStringList lines;
    for (const Cameras::HostCameraPtr& camera : m_sources.closedBy(settings))
        lines.append(tr("%1 (%2)").arg(camera->displayName(),
                                       CameraList::stateName(m_cameras.state(camera))));
    if (lines.isEmpty())
        return {};
    return tr("These settings close cameras that are in use:\n\n%1\n\nDo you want to close them "
              "and use the settings?")
        .arg(lines.join(QLatin1Char('\n')));
}

void CameraSettingsCommands::retranslate()
{
    m_search->setText(tr("&Look for Cameras"));
    m_search->setToolTip(tr("Look for cameras on the network and on USB now"));
    m_edit->setText(tr("Camera Setti&ngs..."));
    m_edit->setToolTip(tr("Choose which cameras are shown and how they are reached"));
}

} // namespace Viewer
