// SPDX-License-Identifier: Apache-2.0
// The camera's exposure time on the scale of a slider.
#include "qmlexposuretime.h"

#include "calibrationinterface.h"

#include <QCoreApplication>

#include <cmath>

namespace ColorCalibration {
namespace {

constexpr int quietMs = 10;
constexpr double smallestWrite = 1e-6;
constexpr double smallestMove = 0.003;

} // namespace

QMLExposureTime::QMLExposureTime(CalibrationInterface* model, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_quiet(new QTimer(this))
{
    m_quiet->setSingleShot(true);
    m_quiet->setInterval(quietMs);
}

double QMLExposureTime::value()
{
    if (!(m_rawValue > 0.0))
        return -1.0;
    const double logMin = m_rawMin > 1.0 ? std::log10(m_rawMin) : 0.0;
    if (m_logMin != logMin) {
        m_logMin = logMin;
        emit signalMinChanged();
    }
    const double logMax = std::log10(m_rawMax);
    if (m_logMax != logMax) {
        m_logMax = logMax;
        emit signalMaxChanged();
    }
    return std::log10(m_rawValue);
}

QString QMLExposureTime::takeLastError()
{
    QString text;
    text.swap(m_lastError);
    return text;
}

bool QMLExposureTime::initialize()
{
    double min = -1.0;
    double value = -1.0;
    double max = -1.0;
    if (!m_model->GetExposureTimeRange(min, value, max))
        return false;
    m_rawMin = min;
    m_rawValue = value;
    m_rawMax = max;
    if (!m_model->SetExposureTime(m_rawValue))
        return false;
    emit signalValueChanged();
    return true;
}

void QMLExposureTime::setValue(double value)
{
    if (!(value > 0.0))
        return;
    m_rawValue = value;
    const double exposure = std::pow(10.0, value);
    // A slider's value is never the power of ten of itself, so every write reaches the camera.
    if (!(std::abs(value - exposure) > smallestWrite))
        return;
    m_rawValue = exposure;
    m_quiet->stop();
    m_quiet->start();
    if (!m_model->SetExposureTime(exposure)) {
        m_lastError =
            QCoreApplication::translate("QMLExposureTime", "Couldn't set exposureTime!<br>");
        emit lastErrorChanged();
    }
}

void QMLExposureTime::reset()
{
    m_rawMin = -1.0;
    m_rawMax = -1.0;
    m_rawValue = -1.0;
}

void QMLExposureTime::onChangedValue(double value)
{
    if (value == m_rawValue)
        return;
    const double old = m_rawValue;
    m_rawValue = value;
    // The division belongs to the old value alone: changes of long times count for more.
    const double move = std::abs(std::log10(value) -
                                 std::log10(old) / (std::log10(m_rawMax) - std::log10(m_rawMin)));
    if (move > smallestMove && !m_quiet->isActive()) {
        m_quiet->start();
        emit signalValueChanged();
    }
}

} // namespace ColorCalibration
