// SPDX-License-Identifier: Apache-2.0
// What the stand-ins do besides noting their calls.
#include "wizarddoubles.h"

#include <QImage>
#include <QVideoFrame>
#include <QVideoSurfaceFormat>

namespace {

QString flag(bool value)
{
    return value ? "true" : "false";
}

} // namespace

void ModelDouble::setActiveStep(int step)
{
    m_activeStep = step;
    m_log.note(QString("activeStep=%1").arg(step));
    emit activeStepChanged();
}

void ModelDouble::setHitRate(double hitRate)
{
    m_hitRate = hitRate;
    emit gray80PercentHitRateChanged();
}

bool ModelDouble::createSettingsBackup(bool intialImage)
{
    return m_log.note("createSettingsBackup(" + flag(intialImage) + ")");
}

bool ModelDouble::restoreSettingsBackup(bool intialImage)
{
    const bool restored = m_log.note("restoreSettingsBackup(" + flag(intialImage) + ")");
    if (!intialImage)
        m_backupOwed = !restored;
    return restored;
}

bool ModelDouble::loadSettings(const QString& path)
{
    return m_log.note("loadSettings(" + path + ")");
}

bool ModelDouble::storeDetectedExposureAndGain()
{
    return m_log.note("storeDetectedExposureAndGain()");
}

bool ModelDouble::restoreDetectedExposureAndGain()
{
    return m_log.note("restoreDetectedExposureAndGain()");
}

bool ModelDouble::applyInitialCameraImageAndPatchValues()
{
    return m_log.note("applyInitialCameraImageAndPatchValues()");
}

bool ModelDouble::applyInitialColorPatchValues()
{
    return m_log.note("applyInitialColorPatchValues()");
}

bool ModelDouble::executeCalibrationAndApply()
{
    if (!m_log.note("executeCalibrationAndApply()"))
        return false;
    emit calibrationFinished();
    return true;
}

bool ModelDouble::autoAdjustGray80PercentPatch()
{
    return m_log.note("autoAdjustGray80PercentPatch()");
}

bool ModelDouble::storeSettingsInUserSet(const QString& value, bool setAsDefault)
{
    return m_log.note(QString("storeSettingsInUserSet(%1,%2)").arg(value, flag(setAsDefault)));
}

void ModelDouble::grabOriginalImage()
{
    m_log.note("grabOriginalImage()");
    m_fetched = 1 - m_fetched;
    m_originalImageUrl = QString("image://cameraImageOriginal/0_%1").arg(m_fetched);
    emit originalImageUrlChanged();
}

void CameraDouble::setOriginalSize(const QSize& size)
{
    m_originalSize = size;
    emit originalSizeChanged();
}

void CameraDouble::show(const QColor& color)
{
    if (!m_surface)
        return;
    QImage image(m_size, QImage::Format_ARGB32);
    image.fill(color);
    if (!m_surface->isActive())
        m_surface->start(QVideoSurfaceFormat(m_size, QVideoFrame::Format_ARGB32));
    m_surface->present(QVideoFrame(image));
    emit imageChanged();
}

TrapezoidDouble::TrapezoidDouble(const QPoint& upperLeft, const QPoint& lowerRight)
    : m_upperLeft(upperLeft)
    , m_upperRight(lowerRight.x(), upperLeft.y())
    , m_lowerRight(lowerRight)
    , m_lowerLeft(upperLeft.x(), lowerRight.y())
    , m_center((upperLeft + lowerRight) / 2)
    , m_bottomCenter((upperLeft.x() + lowerRight.x()) / 2, lowerRight.y())
{}

QColor GridDouble::colorAtPoint(int x, int y)
{
    m_points << QPoint(x, y);
    return m_colorAtPoint;
}

void AdapterDouble::setValue(double value)
{
    m_value = value;
    m_log.note(QString("%1=%2").arg(m_name).arg(value, 0, 'f', 2));
}

QString AdapterDouble::takeLastError()
{
    const QString text = m_lastError;
    m_lastError.clear();
    return text;
}

void AdapterDouble::report(double value)
{
    m_value = value;
    emit signalValueChanged();
}

void AdapterDouble::refuse(const QString& text)
{
    m_lastError = text;
    emit lastErrorChanged();
}
