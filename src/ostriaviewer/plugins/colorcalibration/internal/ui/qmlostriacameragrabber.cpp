// SPDX-License-Identifier: Apache-2.0
// The worker behind the live image.
#include "qmlostriacameragrabber.h"

#include "livepictures.h"
#include "logging.h"
#include "picturebuffer.h"

#include <QMutexLocker>
#include <QtConcurrent>

#include <chrono>

namespace ColorCalibration {
namespace {

constexpr qint64 overdueMs = 1000;
constexpr int indicatorPaceMs = 40;

void logStep(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(
        QStringLiteral("ostria.viewer.plugins.colorCalibration.ostriaCamera"));
    Core::Logging::createLogEntry(Core::Logging::Debug, category, text);
}

} // namespace

QMLOstriaCameraGrabber::QMLOstriaCameraGrabber(const Task& task, bool singleShot)
    : m_task(task)
    , m_singleShot(singleShot)
    , m_continuous(!singleShot)
    , m_busy(task.busy)
{}

QMLOstriaCameraGrabber::~QMLOstriaCameraGrabber() = default;

void QMLOstriaCameraGrabber::stop()
{
    const std::lock_guard<std::mutex> lock(m_wakeMutex);
    m_singleShot = false;
    m_continuous = false;
    m_wake.notify_all();
}

void QMLOstriaCameraGrabber::setBusy(bool busy)
{
    const QMutexLocker lock(&m_busyMutex);
    m_busy = busy;
}

bool QMLOstriaCameraGrabber::isBusy()
{
    const QMutexLocker lock(&m_busyMutex);
    return m_busy;
}

bool QMLOstriaCameraGrabber::isWanted() const
{
    return m_singleShot || m_continuous;
}

void QMLOstriaCameraGrabber::doWork()
{
    if (m_task.size.width() < 1 || m_task.size.height() < 1) {
        logStep(QStringLiteral("Invalid Image size"));
        emit stopped();
        return;
    }
    m_logo.load(QStringLiteral(":/ColCal/tavrin-logo.png"));
    m_indicator.load(QStringLiteral(":/ColCal/busyindicator.png"));
    logStep(QStringLiteral("Grab loop started..."));
    runLoop();
    if (m_task.camera)
        m_task.camera->StopGrabbing();
    logStep(QStringLiteral("Grab loop stopped..."));
    emit stopped();
}

void QMLOstriaCameraGrabber::runLoop()
{
    if (!m_task.buffer || !m_task.camera)
        return;
    m_lastFrame = m_task.buffer->picture();
    m_timer.start();
    while (isWanted()) {
        poll();
        pause();
    }
    // The grab uses this worker and the camera; both may be gone once the loop has ended.
    m_grab.waitForFinished();
}

void QMLOstriaCameraGrabber::poll()
{
    if (m_needGrab)
        beginGrab();
    if (!m_needGrab && hasGrabEnded())
        deliver();
    if (!m_needGrab && m_timer.elapsed() > overdueMs)
        deliverIndicator();
    if (m_singleShot && m_needGrab && !m_failed)
        m_singleShot = false;
}

void QMLOstriaCameraGrabber::beginGrab()
{
    {
        const std::lock_guard<std::mutex> lock(m_wakeMutex);
        m_grabEnded = false;
    }
    // A thread of the pool may still be on its way out of the grab before.
    m_grab.waitForFinished();
    m_grab = QtConcurrent::run([this, triggered = m_singleShot.load()] { grab(triggered); });
    if (!isBusy())
        m_timer.restart();
    m_needGrab = false;
}

void QMLOstriaCameraGrabber::grab(bool triggered)
{
    QImage image;
    bool succeeded = false;
    try {
        succeeded = m_task.camera->GrabImage(image, triggered);
    } catch (...) {
        logStep(QStringLiteral("Grab raised an exception"));
    }
    const std::lock_guard<std::mutex> lock(m_wakeMutex);
    m_grabbed = image;
    m_grabSucceeded = succeeded;
    m_grabEnded = true;
    m_wake.notify_all();
}

bool QMLOstriaCameraGrabber::hasGrabEnded()
{
    const std::lock_guard<std::mutex> lock(m_wakeMutex);
    return m_grabEnded;
}

void QMLOstriaCameraGrabber::deliver()
{
    logStep(QStringLiteral("Grab took %1 ms").arg(m_timer.elapsed()));
    QImage grabbed;
    {
        const std::lock_guard<std::mutex> lock(m_wakeMutex);
        if (m_grabSucceeded)
            grabbed.swap(m_grabbed);
    }
    if (grabbed.isNull())
        deliverLogo();
    else
        deliverImage(grabbed);
    m_needGrab = true;
}

void QMLOstriaCameraGrabber::deliverImage(const QImage& grabbed)
{
    logStep(QStringLiteral("Grab success, delivery of camera frame"));
    if (grabbed.size() != m_task.fullImageSize) {
        m_task.fullImageSize = grabbed.size();
        emit imageSizeChanged(grabbed.size());
    }
    m_lastFrame = cameraPicture(grabbed, m_task.size);
    m_task.buffer->setPicture(m_lastFrame);
    emit imageReady(true);
    m_failed = false;
}

void QMLOstriaCameraGrabber::deliverLogo()
{
    logStep(QStringLiteral("Grab failed, delivery of Tavrin logo"));
    m_lastFrame = failurePicture(m_logo, m_task.size);
    m_task.buffer->setPicture(m_lastFrame);
    emit imageReady(false);
    emit imageFailed();
    m_failed = true;
}

void QMLOstriaCameraGrabber::deliverIndicator()
{
    m_task.buffer->setPicture(
        overduePicture(m_lastFrame, m_indicator, indicatorAngle(m_timer.elapsed())));
    emit imageReady(false);
}

// Ends early when there is something to do: an image that waits is shown at once, and nobody who
// stops the loop waits for a pause. The indicator keeps its pace.
void QMLOstriaCameraGrabber::pause()
{
    const bool overdue = m_timer.elapsed() >= overdueMs;
    const std::chrono::milliseconds pace(overdue ? indicatorPaceMs : m_task.interval);
    std::unique_lock<std::mutex> lock(m_wakeMutex);
    m_wake.wait_for(lock, pace, [this, overdue] {
        return !isWanted() || (!overdue && !m_needGrab && m_grabEnded);
    });
}

} // namespace ColorCalibration
