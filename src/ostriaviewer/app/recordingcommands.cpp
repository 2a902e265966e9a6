// SPDX-License-Identifier: Apache-2.0
// Recording of the selected camera.
#include "recordingcommands.h"

#include "commandtext.h"
#include "filenames.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Viewer {

using Cameras::HostCamera;
using Cameras::HostCameraPtr;

namespace {

const auto folderName = QStringLiteral("RecordingFolder");

/// A folder that stands in no other's way.
QString newFolder(const QString& parent, const QString& camera)
{
    const QString name = QStringLiteral("%1/%2").arg(parent, fileNameNow(camera));
    QString free = name;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = QStringLiteral("%1_%2").arg(name).arg(number);
    return free;
}

} // namespace

RecordingCommands::RecordingCommands(CameraList& cameras, CameraCommands& commands,
                                     ViewerSettings& settings, QObject* parent)
    : QObject(parent)
    , m_cameras(cameras)
    , m_commands(commands)
    , m_settings(settings)
    , m_record(new QAction(this))
    , m_chooseFolder(new QAction(this))
{
    m_folder =
        settings.value(folderName, QStandardPaths::writableLocation(QStandardPaths::MoviesLocation))
            .toString();
    m_record->setObjectName(QStringLiteral("record"));
    m_record->setCheckable(true);
    m_record->setShortcut(QKeySequence(Qt::Key_F7));
    m_record->setIcon(QIcon(QStringLiteral(":/ostriaviewer/icons/record.svg")));
    m_chooseFolder->setObjectName(QStringLiteral("recordingFolder"));
    connect(m_record, &QAction::triggered, this, &RecordingCommands::toggle);
    connect(m_chooseFolder, &QAction::triggered, this, &RecordingCommands::folderRequested);
    connect(&cameras, &CameraList::stateChanged, this, &RecordingCommands::onStateChanged);
    connect(&cameras, &CameraList::removed, this, &RecordingCommands::onRemoved);
    retranslate();
    update();
}

// Recorders wait for what is still to be written.
RecordingCommands::~RecordingCommands()
{
    for (auto recorder = m_recorders.begin(); recorder != m_recorders.end(); ++recorder) {
        m_cameras.pool().recordings()->end(recorder.key());
        delete recorder.value();
    }
}

QString RecordingCommands::folder() const
{
    return m_folder;
}

void RecordingCommands::setFolder(const QString& folder)
{
    m_folder = folder;
    m_settings.setValue(folderName, folder);
}

QStringList RecordingCommands::recorded() const
{
    QStringList names;
    for (auto recorder = m_recorders.begin(); recorder != m_recorders.end(); ++recorder)
        names.append(recorder.key()->displayName());
    names.sort();
    return names;
}

QStringList RecordingCommands::ending() const
{
    QStringList names;
    for (auto recorder = m_recorders.begin(); recorder != m_recorders.end(); ++recorder)
        if (recorder.value()->isEnding())
            names.append(recorder.key()->displayName());
    names.sort();
    return names;
}

void RecordingCommands::stopAll()
{
    for (Recorder* recorder : m_recorders)
        recorder->stop();
    update();
}

void RecordingCommands::toggle(bool isWanted)
{
    const HostCameraPtr camera = m_commands.camera();
    if (!camera)
        return;
    if (!isWanted)
        return stop(camera.data());
    start(camera);
    update();
}

// The recorder listens before the camera starts, so that no image is missed.
void RecordingCommands::start(const HostCameraPtr& camera)
{
    if (m_recorders.contains(camera.data()))
        return;
    auto* recorder = new Recorder(this);
    const QString error = recorder->start(camera, newFolder(m_folder, camera->modelName()));
    if (!error.isEmpty()) {
        delete recorder;
        emit reported(error, true);
        return;
    }
    m_recorders.insert(camera.data(), recorder);
    connect(recorder, &Recorder::finished, this,
            [this, camera](const RecordingResult& result) { onFinished(camera, result); });
    m_cameras.pool().recordings()->begin(camera.data(), [this, key = camera.data()] { stop(key); });
    if (!camera->isGrabbing())
        m_commands.start();
    if (!camera->isGrabbing())
        recorder->stop();
    m_cameras.announce(camera);
    emit begun();
}

void RecordingCommands::stop(const HostCamera* camera)
{
    if (Recorder* recorder = m_recorders.value(camera))
        recorder->stop();
    update();
}

bool RecordingCommands::isEnding(const HostCamera* camera) const
{
    const Recorder* recorder = m_recorders.value(camera);
    return recorder && recorder->isEnding();
}

void RecordingCommands::onStateChanged(const HostCameraPtr& camera)
{
    if (!camera->isGrabbing())
        stop(camera.data());
    else
        update();
}

// What such a camera does is not told any more.
void RecordingCommands::onRemoved(const HostCameraPtr& camera)
{
    stop(camera.data());
}

void RecordingCommands::onFinished(const HostCameraPtr& camera, const RecordingResult& result)
{
    m_recorders.take(camera.data())->deleteLater();
    m_cameras.pool().recordings()->end(camera.data());
    const QString folder = QDir::toNativeSeparators(result.folder);
    const int written = static_cast<int>(result.written);
    if (!result.error.isEmpty())
        emit reported(
            tr("The recording of %1 ended after %n picture(s). %2 What was recorded is in %3.",
               nullptr, written)
                .arg(camera->displayName(), result.error, folder),
            true);
    else if (result.dropped + result.failed > 0)
        emit reported(tr("Recorded %n picture(s) of %1 in %2. %3 more came too fast to be written, "
                         "%4 failed in the camera; the numbers of the files show where.",
                         nullptr, written)
                          .arg(camera->displayName(), folder, QString::number(result.dropped),
                               QString::number(result.failed)),
                      false);
    else
        emit reported(tr("Recorded %n picture(s) of %1 in %2.", nullptr, written)
                          .arg(camera->displayName(), folder),
                      false);
    m_cameras.announce(camera);
    if (m_recorders.isEmpty())
        emit allEnded();
}

void RecordingCommands::update()
{
    const HostCameraPtr camera = m_commands.camera();
    const bool isRecording = camera && m_cameras.pool().recordings()->isRecording(camera.data());
    const bool isWriting = isEnding(camera.data());
    m_record->setEnabled(camera && !isWriting);
    m_record->setChecked(isRecording && !isWriting);
    emit endingChanged();
}

void RecordingCommands::retranslate()
{
    setCommandText(*m_record, tr("&Record"));
    m_record->setToolTip(tr("Write the camera's pictures into files until pressed again"));
    setCommandText(*m_chooseFolder, tr("Recording &Folder..."));
}

} // namespace Viewer
