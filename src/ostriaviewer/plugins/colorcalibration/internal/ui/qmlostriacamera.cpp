// SPDX-License-Identifier: Apache-2.0
// The live image as the pages see it.
#include "qmlostriacamera.h"

#include "logging.h"
#include "picturebuffer.h"
#include "qmlostriacameragrabber.h"

#include <QMutexLocker>
#include <QSettings>

#include <algorithm>

namespace ColorCalibration {
namespace {

constexpr int ordinaryIntervalMs = 200;
constexpr int highestFramesPerSecond = 24;
constexpr QSize firstSize(4, 3);

void logCall(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(
        QStringLiteral("ostria.viewer.plugins.colorCalibration.ostriaCamera"));
    Core::Logging::createLogEntry(Core::Logging::Debug, category, text);
}

int intervalFromSettings()
{
    QSettings settings;
    settings.beginGroup(QStringLiteral("ColCalPlugin"));
    if (!settings.value(QStringLiteral("EnableDemoMode"), false).toBool())
        return ordinaryIntervalMs;
    const int wanted =
        settings.value(QStringLiteral("FramesPerSecond"), highestFramesPerSecond).toInt();
    // What is no rate at all counts as not set.
    const int rate = wanted < 1 ? highestFramesPerSecond : std::min(wanted, highestFramesPerSecond);
    return 1000 / rate;
}

} // namespace

QMLOstriaCamera::QMLOstriaCamera(CameraInterface* camera, QQuickItem* parent)
    : QQuickItem(parent)
    , m_format(firstSize, QVideoFrame::Format_ARGB32, QAbstractVideoBuffer::NoHandle)
    , m_interval(intervalFromSettings())
    , m_originalSize(firstSize)
    , m_size(firstSize)
    , m_camera(camera)
{}

QMLOstriaCamera::~QMLOstriaCamera()
{
    deleteWorker();
}

void QMLOstriaCamera::startGrab()
{
    logCall(QStringLiteral("startGrab()"));
    if (m_running)
        return;
    m_running = true;
    restartGrabber(false);
}

void QMLOstriaCamera::stopGrab()
{
    logCall(QStringLiteral("stopGrab()"));
    m_running = false;
    endWorker();
}

void QMLOstriaCamera::singleGrab()
{
    logCall(QStringLiteral("singleGrab()"));
    if (!m_running)
        restartGrabber(true);
}

void QMLOstriaCamera::setBusyIndication(bool busy)
{
    const QMutexLocker lock(&m_busyMutex);
    if (m_busy == busy)
        return;
    m_busy = busy;
    if (m_worker)
        m_worker->setBusy(busy);
}

int QMLOstriaCamera::interval() const
{
    return m_interval;
}

void QMLOstriaCamera::setInterval(int interval)
{
    if (m_interval == interval)
        return;
    m_interval = interval;
    emit intervalChanged();
}

QAbstractVideoSurface* QMLOstriaCamera::videoSurface() const
{
    return m_surface;
}

void QMLOstriaCamera::setVideoSurface(QAbstractVideoSurface* surface)
{
    if (m_surface == surface)
        return;
    m_surface = surface;
    if (m_running)
        restartGrabber(false);
}

QSize QMLOstriaCamera::frameSize() const
{
    return m_size;
}

void QMLOstriaCamera::setFrameSize(const QSize& size)
{
    if (m_size == size)
        return;
    m_size = size;
    m_format.setFrameSize(size);
    if (m_running) {
        stopGrab();
        restartGrabber(false);
    }
    emit sizeChanged();
}

QSize QMLOstriaCamera::originalSize() const
{
    return m_originalSize;
}

void QMLOstriaCamera::setOriginalSize(const QSize& size)
{
    m_originalSize = size;
    emit originalSizeChanged();
}

QImage QMLOstriaCamera::image() const
{
    return m_image;
}

void QMLOstriaCamera::setImage(const QImage& image)
{
    m_image = image;
    emit imageChanged();
}

void QMLOstriaCamera::onImageReady(bool notifiy)
{
    // The news may be of a worker before, whose frame has gone.
    if (m_surface && m_frame && m_buffer->hasPicture())
        m_surface->present(*m_frame);
    if (notifiy)
        emit imageChanged();
}

void QMLOstriaCamera::onFullImageSizeChanged(QSize size)
{
    if (m_originalSize != size)
        setOriginalSize(size);
}

void QMLOstriaCamera::endWorker()
{
    if (!m_thread)
        return;
    m_worker->stop();
    m_thread->quit();
    m_thread->wait();
}

void QMLOstriaCamera::deleteWorker()
{
    endWorker();
    {
        const QMutexLocker lock(&m_busyMutex);
        m_worker.reset();
    }
    delete m_thread;
    m_thread = nullptr;
}

// The worker must have ended: it writes to the frame that may go here.
void QMLOstriaCamera::fitSurface()
{
    if (!m_surface)
        return;
    const QVideoSurfaceFormat present = m_surface->surfaceFormat();
    const bool fits = present.frameSize() == m_format.frameSize() &&
                      present.pixelFormat() == m_format.pixelFormat();
    if (fits && m_frame && m_frame->size() == m_size)
        return;
    m_frame.reset();
    if (m_surface->isActive())
        m_surface->stop();
    m_surface->start(m_format);
    m_buffer = new PictureBuffer(m_size);
    m_frame = std::make_unique<QVideoFrame>(m_buffer, m_size, QVideoFrame::Format_ARGB32);
}

void QMLOstriaCamera::restartGrabber(bool singleShot)
{
    deleteWorker();
    fitSurface();
    m_thread = new QThread(this);
    QMLOstriaCameraGrabber::Task task;
    task.fullImageSize = m_originalSize;
    task.size = m_size;
    task.interval = m_interval;
    task.camera = m_camera;
    task.buffer = m_buffer;
    {
        const QMutexLocker lock(&m_busyMutex);
        task.busy = m_busy;
        m_worker = std::make_unique<QMLOstriaCameraGrabber>(task, singleShot);
    }
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::started, m_worker.get(), &QMLOstriaCameraGrabber::doWork);
    connect(m_worker.get(), &QMLOstriaCameraGrabber::imageReady, this,
            &QMLOstriaCamera::onImageReady);
    connect(m_worker.get(), &QMLOstriaCameraGrabber::imageFailed, this,
            &QMLOstriaCamera::imageFailed);
    connect(m_worker.get(), &QMLOstriaCameraGrabber::imageSizeChanged, this,
            &QMLOstriaCamera::onFullImageSizeChanged);
    m_thread->start(QThread::InheritPriority);
}

} // namespace ColorCalibration
