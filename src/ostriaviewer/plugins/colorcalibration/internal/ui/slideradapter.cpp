// SPDX-License-Identifier: Apache-2.0
// What the adapters of both sliders of the brightness page have in common.
#include "slideradapter.h"

namespace ColorCalibration {
namespace {

constexpr int quietMs = 10;
constexpr double smallestMove = 0.003;

} // namespace

SliderAdapter::SliderAdapter(CalibrationInterface* model, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_quiet(new QTimer(this))
{
    m_quiet->setSingleShot(true);
    m_quiet->setInterval(quietMs);
}

QString SliderAdapter::takeLastError()
{
    QString text;
    text.swap(m_lastError);
    return text;
}

bool SliderAdapter::initialize()
{
    double min = -1.0;
    double value = -1.0;
    double max = -1.0;
    if (!readRange(min, value, max))
        return false;
    m_rawMin = min;
    m_rawValue = value;
    m_rawMax = max;
    if (!write(m_rawValue))
        return false;
    emit signalValueChanged();
    return true;
}

void SliderAdapter::writeRaw(double value, const QString& failure)
{
    m_rawValue = value;
    m_quiet->stop();
    m_quiet->start();
    if (!write(value)) {
        m_lastError = failure;
        emit lastErrorChanged();
    }
}

void SliderAdapter::reset()
{
    m_rawMin = -1.0;
    m_rawMax = -1.0;
    m_rawValue = -1.0;
}

void SliderAdapter::onChangedValue(double value)
{
    if (value == m_rawValue)
        return;
    const double move = moveTo(value);
    m_rawValue = value;
    if (move > smallestMove && !m_quiet->isActive()) {
        m_quiet->start();
        emit signalValueChanged();
    }
}

} // namespace ColorCalibration
