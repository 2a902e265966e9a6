// SPDX-License-Identifier: Apache-2.0
// The chart as a thing to look at: what its surfaces reflect, and where.
#include "chartcolors.h"

namespace Cameras::Emulation {
namespace {

constexpr double patchShare = 0.86; // of a cell's width and height

} // namespace

const std::array<std::array<double, 3>, chartPatches>& chartColors()
{
    static constexpr std::array<std::array<double, 3>, chartPatches> colors = {{
        {44.138, 20.936, 14.471}, {144.92, 74.616, 55.685}, {26.445, 49.942, 84.531},
        {25.909, 37.971, 13.23},  {56.507, 55.02, 110.82},  {27.58, 131.14, 105.23},
        {190.57, 51.144, 7.1641}, {14.698, 26.806, 102.75}, {144.5, 21.469, 30.518},
        {28.316, 10.787, 36.46},  {88.1, 129.69, 12.609},   {202.61, 91.635, 5.2384},
        {4.3702, 12.8, 74.525},   {14.289, 76.536, 17.524}, {116.23, 7.7307, 10.421},
        {218.62, 144.69, 1.7558}, {136.07, 22.59, 78.425},  {9.5177, 62.971, 102.12},
        {232.76, 233.26, 227.91}, {147.89, 150.94, 151.31}, {90.528, 93.179, 93.746},
        {48.483, 48.92, 49.246},  {21.758, 22.664, 23.614}, {7.732, 7.9376, 8.3507},
    }};
    return colors;
}

Light chartFrameColor()
{
    return {0.0235F, 0.0243F, 0.0255F};
}

int chartSurface(double u, double v)
{
    const bool onChart = u >= -chartFrameWidth && u <= chartColumns + chartFrameWidth &&
                         v >= -chartFrameWidth && v <= chartRows + chartFrameWidth;
    if (!onChart)
        return besideChart;
    if (u < 0.0 || u >= chartColumns || v < 0.0 || v >= chartRows)
        return chartFrame;
    const int column = static_cast<int>(u);
    const int row = static_cast<int>(v);
    constexpr double gap = (1.0 - patchShare) / 2.0;
    const bool inPatch =
        u - column >= gap && u - column <= 1.0 - gap && v - row >= gap && v - row <= 1.0 - gap;
    return inPatch ? chartColumns * row + column : chartFrame;
}

} // namespace Cameras::Emulation
