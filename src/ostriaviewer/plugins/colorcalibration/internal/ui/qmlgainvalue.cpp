// SPDX-License-Identifier: Apache-2.0
// The camera's gain on the scale of a slider.
#include "qmlgainvalue.h"

#include "calibrationinterface.h"

#include <QCoreApplication>

#include <cmath>

namespace ColorCalibration {
namespace {

constexpr int quietMs = 10;
constexpr double smallestWrite = 1e-6;
constexpr double smallestMove = 0.003;

} // namespace

QMLGainvalue::QMLGainvalue(CalibrationInterface* model, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_quiet(new QTimer(this))
{
    m_quiet->setSingleShot(true);
    m_quiet->setInterval(quietMs);
}

double QMLGainvalue::value() const
{
    if (m_rawValue < 0.0)
        return -1.0;
    const double range = m_rawMax - m_rawMin;
    return range == 0.0 ? 0.0 : (m_rawValue - m_rawMin) / range;
}

QString QMLGainvalue::takeLastError()
{
    QString text;
    text.swap(m_lastError);
    return text;
}

bool QMLGainvalue::initialize()
{
    double min = -1.0;
    double value = -1.0;
    double max = -1.0;
    if (!m_model->GetGainRange(min, value, max))
        return false;
    m_rawMin = min;
    m_rawValue = value;
    m_rawMax = max;
    if (!m_model->SetGain(m_rawValue))
        return false;
    emit signalValueChanged();
    return true;
}

void QMLGainvalue::setValue(double value)
{
    if (!(value >= 0.0))
        return;
    const double gain = (m_rawMax - m_rawMin) * value + m_rawMin;
    if (!(std::abs(m_rawValue - gain) > smallestWrite))
        return;
    m_rawValue = gain;
    m_quiet->stop();
    m_quiet->start();
    if (!m_model->SetGain(gain)) {
        m_lastError = QCoreApplication::translate("QMLGainvalue", "Couldn't set gain value!<br>");
        emit lastErrorChanged();
    }
}

void QMLGainvalue::reset()
{
    m_rawMin = -1.0;
    m_rawMax = -1.0;
    m_rawValue = -1.0;
}

void QMLGainvalue::onChangedValue(double value)
{
    if (value == m_rawValue)
        return;
    const double range = m_rawMax - m_rawMin;
    const bool moves = range != 0.0 && std::abs(m_rawValue - value) / range > smallestMove;
    m_rawValue = value;
    if (moves && !m_quiet->isActive()) {
        m_quiet->start();
        emit signalValueChanged();
    }
}

} // namespace ColorCalibration
