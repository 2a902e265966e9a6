// SPDX-License-Identifier: Apache-2.0
// Fake cameras that look at a chart, and a calibration that sees a gray patch alone.
#pragma once

#include "calibrationinterface.h"
#include "charttargets.h"
#include "fullcamera.h"

#include <algorithm>
#include <cmath>

inline void setRow(ColorCalibration::PatchColors& colors, int patch, double red, double green,
                   double blue)
{
    colors(patch, 0) = red;
    colors(patch, 1) = green;
    colors(patch, 2) = blue;
}

/// An image of 120 x 80 pixels whose inner four fifths show the 24 colours, 0 to 255.
inline Ostria::COstriaImage makeChart(const ColorCalibration::PatchColors& colors)
{
    constexpr int width = 120;
    constexpr int height = 80;
    return makeRgb16(width, height, [&colors](int x, int y) {
        const int column = std::clamp((x - width / 10) * 6 / (width * 8 / 10), 0, 5);
        const int row = std::clamp((y - height / 10) * 4 / (height * 8 / 10), 0, 3);
        Rgb16 pixel{};
        for (int channel = 0; channel < 3; ++channel)
            pixel[static_cast<std::size_t>(channel)] = static_cast<std::uint16_t>(
                std::clamp(colors(row * 6 + column, channel), 0.0, 255.0) * 256.0);
        return pixel;
    });
}

/// The chart's target colours with crosstalk between the channels and a cast.
inline ColorCalibration::PatchColors castColors()
{
    dlib::matrix<double, 3, 3> mix;
    mix = 0.60, 0.15, 0.05, 0.10, 0.75, 0.10, 0.02, 0.15, 0.50;
    return ColorCalibration::ChartTargets().TargetColors() * dlib::trans(mix);
}

/// The camera shows a chart whatever its settings are.
inline void showChart(FakeCamera& camera, const ColorCalibration::PatchColors& colors)
{
    camera.nextImage = [colors] {
        return makeChart(colors);
    };
}
