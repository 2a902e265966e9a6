// SPDX-License-Identifier: Apache-2.0
// Brings a camera from any exposure time to one at which the chart can be seen.
#pragma once

#include "colorcorrectionmodel.h"

#include <QImage>
#include <QString>

namespace ColorCalibrate {

enum class Light { TooDark, Usable, TooBright };

/// What an image says of its exposure. Too bright is one that is saturated in large parts; too dark
/// one whose brightest parts hardly rise above black.
Light lightOf(const QImage& image);

/// What the gray patch says of it.
/// \param hitRate  in percent of the patch's goal
Light lightOf(double hitRate);

/// What the user can do; empty for light that can be used.
QString advice(Light light);

/// Steps of the exposure time in the direction that the light asks for. Thread-bound, as the
/// model's signals are.
class ExposureSearch
{
public:
    /// \param isAllowed  whether the exposure time may be changed at all
    ExposureSearch(ColorCalibration::ColorCorrectionModel& model, bool isAllowed)
        : m_model(model)
        , m_isAllowed(isAllowed)
    {}

    /// \return  whether another image is worth the while: the exposure time has been changed
    bool moveFrom(Light light);

private:
    ColorCalibration::ColorCorrectionModel& m_model;
    bool m_isAllowed;
    int m_stepsLeft = 20;
};

} // namespace ColorCalibrate
