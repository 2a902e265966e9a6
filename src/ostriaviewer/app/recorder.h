// SPDX-License-Identifier: Apache-2.0
// Writes a camera's images into numbered files.
#pragma once

#include "hostcamera.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

namespace Viewer {

/// What became of a recording.
struct RecordingResult
{
    QString folder;
    std::uint64_t written = 0;
    std::uint64_t dropped = 0; ///< came faster than they could be written
    std::uint64_t failed = 0;  ///< the camera did not deliver them whole
    QString error;             ///< what ended the recording and what to do, for people;
                               ///< empty if it was asked to end
};

/// Records one camera, once, as 8-bit PNG files "000001.png" and so on, named by the number that
/// the camera gave the frame, so that gaps show; it ends where the camera counts anew. Images wait
/// for the disk in memory, but not more than `longestQueue`. Thread-bound: GUI thread.
class Recorder final : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t longestQueue = 24;

    explicit Recorder(QObject* parent = nullptr);

    /// Ends as by stop, and waits for what is still to be written.
    ~Recorder() override;

    /// Begins with the camera's next image.
    /// \param folder  made if it is not there; should be empty
    /// \return  empty, or why the recording cannot begin, for people
    QString start(const Cameras::HostCameraPtr& camera, const QString& folder);

    /// Takes no further images; finished tells when those taken are written.
    void stop();

    /// Whether no further images are taken, while those taken may still be written.
    bool isEnding() const;

signals:
    /// Emitted once after start.
    void finished(const Viewer::RecordingResult& result);

private:
    struct Queue;

    static void run(const std::shared_ptr<Queue>& queue);
    void finish();

    std::shared_ptr<Queue> m_queue;
    QMetaObject::Connection m_connection;
    std::thread m_thread;
};

} // namespace Viewer
