// SPDX-License-Identifier: Apache-2.0
// The camera's gain on the scale of a slider.
#pragma once

#include "slideradapter.h"

namespace ColorCalibration {

/// The gain between its limits, 0 to 1. Thread-bound: GUI thread.
class QMLGainvalue : public SliderAdapter
{
    Q_OBJECT

public:
    /// \param model  lent for the life of this object
    explicit QMLGainvalue(CalibrationInterface* model, QObject* parent = nullptr);

    /// Limits of the gain itself, in the model's unit.
    double min() const override { return rawMin(); }
    double max() const override { return rawMax(); }

    /// 0 where both limits are equal.
    double value() override;

    /// \param value  0 to 1; a negative one is ignored
    void setValue(double value) override;

protected:
    bool readRange(double& min, double& value, double& max) override;
    bool write(double value) override;
    double moveTo(double value) const override;
};

} // namespace ColorCalibration
