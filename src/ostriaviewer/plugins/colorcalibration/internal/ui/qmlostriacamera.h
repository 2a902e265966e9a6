// SPDX-License-Identifier: Apache-2.0
// The live image as the pages see it.
#pragma once

#include "camerainterface.h"

#include <QAbstractVideoSurface>
#include <QImage>
#include <QMutex>
#include <QPointer>
#include <QQuickItem>
#include <QSize>
#include <QThread>
#include <QVideoFrame>
#include <QVideoSurfaceFormat>

#include <memory>

namespace ColorCalibration {

class PictureBuffer;
class QMLOstriaCameraGrabber;

/// A source of a VideoOutput: shows the camera's images, scaled to the size at which they are
/// drawn. Thread-bound to the GUI thread but for setBusyIndication.
///
/// Whatever ends or replaces the worker waits for the grab that is under way, and for nothing else.
class QMLOstriaCamera : public QQuickItem
{
    Q_OBJECT
    /// Milliseconds between two polls; holds from the next start on.
    Q_PROPERTY(int interval READ interval WRITE setInterval NOTIFY intervalChanged)
    /// Where frames go; set by the VideoOutput, not owned.
    Q_PROPERTY(QAbstractVideoSurface* videoSurface READ videoSurface WRITE setVideoSurface)
    /// Size of the frames, pixels.
    Q_PROPERTY(QSize size READ frameSize WRITE setFrameSize NOTIFY sizeChanged)
    /// Size of the last image as the camera delivered it, pixels.
    Q_PROPERTY(
        QSize originalSize READ originalSize WRITE setOriginalSize NOTIFY originalSizeChanged)
    /// Kept for the pages; the camera's images do not come here.
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)

public:
    /// \param camera  not owned, outlives the item
    explicit QMLOstriaCamera(CameraInterface* camera, QQuickItem* parent = nullptr);
    ~QMLOstriaCamera() override;

    /// Shows images until stopGrab.
    Q_INVOKABLE void startGrab();
    /// Ends the worker and waits until it is idle.
    Q_INVOKABLE void stopGrab();
    /// Shows one image; tries until a grab succeeds. Nothing while images are shown continuously.
    Q_INVOKABLE void singleGrab();

    /// Keeps the busy indicator shown while something else uses the camera. Thread-safe.
    void setBusyIndication(bool busy);

    int interval() const;
    void setInterval(int interval);
    QAbstractVideoSurface* videoSurface() const;
    void setVideoSurface(QAbstractVideoSurface* surface);
    QSize frameSize() const;
    /// A worker that shows images continuously goes on at the new size, but no longer counts as
    /// started: the next startGrab replaces it.
    void setFrameSize(const QSize& size);
    QSize originalSize() const;
    void setOriginalSize(const QSize& size);
    QImage image() const;
    void setImage(const QImage& image);

signals:
    void sizeChanged();
    void originalSizeChanged();
    void intervalChanged();
    /// A new image of the camera is shown, or the property was written.
    void imageChanged();
    /// A grab failed; the logo is shown.
    void imageFailed();

private slots:
    void onImageReady(bool notifiy);
    void onFullImageSizeChanged(QSize size);

private:
    void endWorker();
    void deleteWorker();
    void fitSurface();
    void restartGrabber(bool singleShot);

    QPointer<QAbstractVideoSurface> m_surface;
    QVideoSurfaceFormat m_format;
    std::unique_ptr<QVideoFrame> m_frame;
    PictureBuffer* m_buffer = nullptr; // the frame's
    bool m_running = false;
    int m_interval;
    QSize m_originalSize;
    QImage m_image;
    QSize m_size;
    CameraInterface* m_camera;
    QThread* m_thread = nullptr;

    // Taken for the flag and for exchanging the worker.
    QMutex m_busyMutex;
    bool m_busy = false;
    std::unique_ptr<QMLOstriaCameraGrabber> m_worker;
};

} // namespace ColorCalibration
