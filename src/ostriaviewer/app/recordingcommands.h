// SPDX-License-Identifier: Apache-2.0
// Recording of the selected camera.
#pragma once

#include "cameracommands.h"
#include "cameralist.h"
#include "recorder.h"
#include "viewersettings.h"

#include <QAction>
#include <QHash>
#include <QObject>

#include <memory>

namespace Viewer {

/// The actions that begin and end recordings; each camera may be recorded by itself. A recording
/// ends with its camera's grabbing, and when its camera leaves the list. Thread-bound: GUI thread.
class RecordingCommands final : public QObject
{
    Q_OBJECT

public:
    /// All are lent as long as the commands live.
    RecordingCommands(CameraList& cameras, CameraCommands& commands, ViewerSettings& settings,
                      QObject* parent = nullptr);
    ~RecordingCommands() override;

    /// Checked while the selected camera is recorded; disabled while the last pictures of its
    /// recording are written.
    QAction* recordAction() const { return m_record; }
    QAction* folderAction() const { return m_chooseFolder; }

    /// Each recording gets a folder of its own in this one.
    QString folder() const;
    void setFolder(const QString& folder);

    /// The cameras whose recordings have not ended, by name.
    QStringList recorded() const;

    /// The cameras of which the last pictures are being written, by name.
    QStringList ending() const;

    /// Ends all recordings; `allEnded` tells when they are written.
    void stopAll();

    /// Enables and checks the actions for the camera that is selected now.
    void update();

    void retranslate();

signals:
    /// What the user should know; `isFailure` if the recording is not what was asked for.
    void reported(const QString& text, bool isFailure);

    /// A recording has begun.
    void begun();

    /// `ending` may have changed.
    void endingChanged();

    /// The last recording that ran has ended, and what is to be known of it has been reported.
    void allEnded();

    /// The user wants to choose the folder.
    void folderRequested();

private:
    void toggle(bool isWanted);
    void start(const Cameras::HostCameraPtr& camera);
    void stop(const Cameras::HostCamera* camera);
    bool isEnding(const Cameras::HostCamera* camera) const;
    void onStateChanged(const Cameras::HostCameraPtr& camera);
    void onRemoved(const Cameras::HostCameraPtr& camera);
    void onFinished(const Cameras::HostCameraPtr& camera, const RecordingResult& result);

    CameraList& m_cameras;
    CameraCommands& m_commands;
    ViewerSettings& m_settings;
    QString m_folder; // where settings are not kept
    QAction* m_record;
    QAction* m_chooseFolder;
    QHash<const Cameras::HostCamera*, Recorder*> m_recorders;
};

} // namespace Viewer
