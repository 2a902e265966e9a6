// SPDX-License-Identifier: Apache-2.0
// Draws a 24-patch chart on a table as a camera would see it, with a truth to compare with.
#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>

#include <array>

namespace ChartScene {

/// Linear light, red, green, blue, on 0 to 255 like the chart's target colours.
using LinearColor = std::array<double, 3>;

/// Upper left, upper right, lower left, lower right, in pixels.
using Corners = std::array<QPointF, 4>;

enum class Table { Plain, Wood };

struct Scene
{
    QSize size{1280, 960};
    Corners corners;                          ///< of the 6 by 4 cells; a cell is a pitch wide
    double gap = 0.12;                        ///< dark share of a pitch between two patches
    double border = 0.2;                      ///< dark frame around the cells, in pitches
    LinearColor frame{4.0, 4.0, 4.0};         ///< what the frame and the gaps look like
    LinearColor background{45.0, 45.0, 45.0}; ///< the table's mean colour
    Table table = Table::Plain;
    double light = 1.0;              ///< 1 shows the chart as its targets say
    LinearColor cast{1.0, 1.0, 1.0}; ///< factor of the light on each channel
    double noise = 0.0;              ///< standard deviation in levels of the 8-bit image
    unsigned seed = 1;               ///< of the noise
};

/// The corners of a chart with square cells that a pinhole camera sees.
struct Placement
{
    QPointF center;        ///< of the chart, pixels
    double width = 0.0;    ///< of six cells seen straight on, pixels
    double turn = 0.0;     ///< in the image plane, degrees, clockwise
    double tiltX = 0.0;    ///< around the chart's horizontal axis, degrees
    double tiltY = 0.0;    ///< around its vertical axis, degrees
    double distance = 3.0; ///< of the camera, in chart widths
};
Corners cornersOf(const Placement& placement);

/// sRGB-encoded, QImage::Format_RGB32, edges smoothed by 2 by 2 samples a pixel. The same scene
/// gives the same pixels on every machine that shares the mathematical library.
QImage render(const Scene& scene);

} // namespace ChartScene
