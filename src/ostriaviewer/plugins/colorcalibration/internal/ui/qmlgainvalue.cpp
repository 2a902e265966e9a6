// SPDX-License-Identifier: Apache-2.0
// The camera's gain on the scale of a slider.
#include "qmlgainvalue.h"

#include "calibrationinterface.h"

#include <QCoreApplication>

#include <cmath>

namespace ColorCalibration {
namespace {

constexpr double smallestWrite = 1e-6;

} // namespace

QMLGainvalue::QMLGainvalue(CalibrationInterface* model, QObject* parent)
    : SliderAdapter(model, parent)
{}

double QMLGainvalue::value()
{
    if (rawValue() < 0.0)
        return -1.0;
    const double range = rawMax() - rawMin();
    return range == 0.0 ? 0.0 : (rawValue() - rawMin()) / range;
}

void QMLGainvalue::setValue(double value)
{
    if (!(value >= 0.0))
        return;
    const double gain = (rawMax() - rawMin()) * value + rawMin();
    if (std::abs(rawValue() - gain) > smallestWrite)
        writeRaw(gain, QCoreApplication::translate("QMLGainvalue", "Couldn't set gain value!<br>"));
}

bool QMLGainvalue::readRange(double& min, double& value, double& max)
{
    return model().GetGainRange(min, value, max);
}

bool QMLGainvalue::write(double value)
{
    return model().SetGain(value);
}

double QMLGainvalue::moveTo(double value) const
{
    const double range = rawMax() - rawMin();
    return range == 0.0 ? 0.0 : std::abs(rawValue() - value) / range;
}

} // namespace ColorCalibration
