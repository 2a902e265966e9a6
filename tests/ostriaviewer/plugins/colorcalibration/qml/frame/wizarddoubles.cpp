// SPDX-License-Identifier: Apache-2.0
// What the stand-ins do besides noting their calls.
#include "wizarddoubles.h"

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
    return m_log.note("restoreSettingsBackup(" + flag(intialImage) + ")");
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
    return m_log.note("executeCalibrationAndApply()");
}

bool ModelDouble::autoAdjustGray80PercentPatch()
{
    return m_log.note("autoAdjustGray80PercentPatch()");
}

void CameraDouble::setOriginalSize(const QSize& size)
{
    m_originalSize = size;
    emit originalSizeChanged();
}

TrapezoidDouble::TrapezoidDouble(const QPoint& upperLeft, const QPoint& lowerRight)
    : m_upperLeft(upperLeft)
    , m_upperRight(lowerRight.x(), upperLeft.y())
    , m_lowerRight(lowerRight)
    , m_lowerLeft(upperLeft.x(), lowerRight.y())
    , m_center((upperLeft + lowerRight) / 2)
    , m_bottomCenter((upperLeft.x() + lowerRight.x()) / 2, lowerRight.y())
{}

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
