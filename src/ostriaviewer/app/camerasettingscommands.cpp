// SPDX-License-Identifier: Apache-2.0
// The commands around where cameras come from.
#include "camerasettingscommands.h"

#include "camerasettingsdialog.h"

namespace Viewer {

CameraSettingsCommands::CameraSettingsCommands(CameraSources& sources, ViewerSettings& settings,
                                               QWidget& window, QObject* parent)
    : QObject(parent)
    , m_sources(sources)
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
    const CameraSettings kept = readCameraSettings(m_settings);
    auto* dialog =
        new CameraSettingsDialog(kept, CameraSettingsDialog::systemInterfaces(), &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, kept] { take(dialog->settings(), kept.backends); });
    dialog->open();
}

// The kind of cameras that this start alone was asked to show stays until another one is chosen,
// and is not kept.
void CameraSettingsCommands::take(const CameraSettings& chosen, Backends before)
{
    writeCameraSettings(m_settings, chosen);
    CameraSettings applied = chosen;
    if (chosen.backends == before)
        applied.backends = m_sources.settings().backends;
    m_sources.apply(applied);
}

void CameraSettingsCommands::retranslate()
{
    m_search->setText(tr("&Look for Cameras"));
    m_search->setToolTip(tr("Look for cameras on the network and on USB now"));
    m_edit->setText(tr("Camera Setti&ngs..."));
    m_edit->setToolTip(tr("Choose which cameras are shown and how they are reached"));
}

} // namespace Viewer
