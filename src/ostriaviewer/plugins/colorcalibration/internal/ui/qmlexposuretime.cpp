// SPDX-License-Identifier: Apache-2.0
// The camera's exposure time on the scale of a slider.
#include "qmlexposuretime.h"

#include "calibrationinterface.h"

#include <QCoreApplication>

#include <cmath>

namespace ColorCalibration {
namespace {

constexpr double smallestWrite = 1e-6;

} // namespace

QMLExposureTime::QMLExposureTime(CalibrationInterface* model, QObject* parent)
    : SliderAdapter(model, parent)
{}

double QMLExposureTime::value()
{
    if (!(rawValue() > 0.0))
        return -1.0;
    const double logMin = rawMin() > 1.0 ? std::log10(rawMin()) : 0.0;
    if (m_logMin != logMin) {
        m_logMin = logMin;
        emit signalMinChanged();
    }
    const double logMax = std::log10(rawMax());
    if (m_logMax != logMax) {
        m_logMax = logMax;
        emit signalMaxChanged();
    }
    return std::log10(rawValue());
}

void QMLExposureTime::setValue(double value)
{
    if (!(value > 0.0))
        return;
    keepRaw(value);
    const double exposure = std::pow(10.0, value);
    // A slider's value is never the power of ten of itself, so every write reaches the camera.
    if (std::abs(value - exposure) > smallestWrite)
        writeRaw(exposure,
                 QCoreApplication::translate("QMLExposureTime", "Couldn't set exposureTime!<br>"));
}

bool QMLExposureTime::readRange(double& min, double& value, double& max)
{
    return model().GetExposureTimeRange(min, value, max);
}

bool QMLExposureTime::write(double value)
{
    return model().SetExposureTime(value);
}

// The division belongs to the old value alone: changes of long times count for more.
double QMLExposureTime::moveTo(double value) const
{
    return std::abs(std::log10(value) -
                    std::log10(rawValue()) / (std::log10(rawMax()) - std::log10(rawMin())));
}

} // namespace ColorCalibration
