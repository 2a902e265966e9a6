// SPDX-License-Identifier: Apache-2.0
// The camera's exposure time on the scale of a slider.
#pragma once

#include "slideradapter.h"

namespace ColorCalibration {

/// The decimal logarithm of the exposure time in microseconds. Thread-bound: GUI thread.
class QMLExposureTime : public SliderAdapter
{
    Q_OBJECT

public:
    /// \param model  lent for the life of this object
    explicit QMLExposureTime(CalibrationInterface* model, QObject* parent = nullptr);

    /// Ends of the slider. They follow a read of value.
    double min() const override { return m_logMin; }
    double max() const override { return m_logMax; }
    double value() override;

    /// Every write of a positive number reaches the camera; others are ignored.
    void setValue(double value) override;

protected:
    bool readRange(double& min, double& value, double& max) override;
    bool write(double value) override;
    double moveTo(double value) const override;

private:
    double m_logMin = -1.0;
    double m_logMax = -1.0;
};

} // namespace ColorCalibration
