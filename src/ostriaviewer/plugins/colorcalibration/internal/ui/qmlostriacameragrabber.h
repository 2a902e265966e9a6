// SPDX-License-Identifier: Apache-2.0
// The worker behind the live image.
#pragma once

#include "camerainterface.h"

#include <QElapsedTimer>
#include <QFuture>
#include <QImage>
#include <QObject>
#include <QRecursiveMutex>
#include <QSize>

#include <atomic>
#include <condition_variable>
#include <mutex>

namespace ColorCalibration {

class PictureBuffer;

/// Polls the camera for images and puts what is to be seen into the frame's buffer: the image, the
/// logo while grabs fail, a turning busy indicator while one takes long.
///
/// Lives in a thread of its own. The grabs themselves run on the global thread pool, one at a time.
class QMLOstriaCameraGrabber : public QObject
{
    Q_OBJECT

public:
    struct Task
    {
        /// Size of the last grabbed image.
        QSize fullImageSize;
        /// Size of the pictures.
        QSize size;
        /// Pause between polls, milliseconds.
        int interval = 0;
        /// Not owned, outlives the worker; may be null, then there is nothing to do.
        CameraInterface* camera = nullptr;
        /// The same; of the pictures' size.
        PictureBuffer* buffer = nullptr;
        bool busy = false;
    };

    /// \param singleShot  ends after the first image that succeeds, else goes on until stop
    QMLOstriaCameraGrabber(const Task& task, bool singleShot);
    ~QMLOstriaCameraGrabber() override;

    /// Ends the loop, or keeps it from beginning. Does not wait. Thread-safe.
    void stop();

    /// Whether something else keeps the camera busy: then the time since the grab before is
    /// counted on, so that the indicator stays. Thread-safe.
    void setBusy(bool busy);

signals:
    /// The buffer holds a new picture; notifiy tells whether it is the camera's.
    void imageReady(bool notifiy);
    void imageFailed();
    void imageSizeChanged(QSize imageSize);
    /// The loop has ended.
    void stopped();

public slots:
    /// The whole loop. When it returns no grab is under way.
    void doWork();

private:
    bool isWanted() const;
    bool isBusy();
    void runLoop();
    void poll();
    void beginGrab();
    void grab(bool triggered);
    bool hasGrabEnded();
    void deliver();
    void deliverImage(const QImage& grabbed);
    void deliverLogo();
    void deliverIndicator();
    void pause();

    Task m_task;
    std::atomic_bool m_singleShot;
    std::atomic_bool m_continuous;
    QRecursiveMutex m_busyMutex;
    bool m_busy;

    // Of the worker's thread alone.
    QImage m_logo;
    QImage m_indicator;
    QImage m_lastFrame;
    QElapsedTimer m_timer;
    QFuture<void> m_grab;
    bool m_needGrab = true;
    bool m_failed = false;

    // What the pool's thread hands back; guarded by the mutex.
    std::mutex m_wakeMutex;
    std::condition_variable m_wake;
    QImage m_grabbed;
    bool m_grabSucceeded = false;
    bool m_grabEnded = false;
};

} // namespace ColorCalibration
