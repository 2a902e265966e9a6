// SPDX-License-Identifier: Apache-2.0
// Small ways to write down colours and to compare them.
#pragma once

#include "charttargets.h"

#include <gtest/gtest.h>

#include <limits>

namespace ColorCalibration {

inline constexpr ChartTargets TestChart{};

inline constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double Infinity = std::numeric_limits<double>::infinity();

inline void setPatch(PatchColors& colors, int patch, double red, double green, double blue)
{
    colors(patch, 0) = red;
    colors(patch, 1) = green;
    colors(patch, 2) = blue;
}

inline Color makeColor(double red, double green, double blue)
{
    Color color;
    color = red, green, blue;
    return color;
}

inline PatchColors allPatches(double red, double green, double blue)
{
    PatchColors colors;
    for (int patch = 0; patch < PatchCount; ++patch) {
        setPatch(colors, patch, red, green, blue);
    }
    return colors;
}

inline PatchColors targetColors()
{
    return ChartTargets().TargetColors();
}

inline void expectPatch(const PatchColors& colors, int patch, const Color& expected,
                        double tolerance = 0.0)
{
    for (int channel = 0; channel < 3; ++channel) {
        EXPECT_NEAR(colors(patch, channel), expected(channel), tolerance)
            << "patch " << patch << " channel " << channel;
    }
}

inline void expectColors(const PatchColors& colors, const PatchColors& expected,
                         double tolerance = 0.0)
{
    for (int patch = 0; patch < PatchCount; ++patch) {
        expectPatch(colors, patch, dlib::rowm(expected, patch), tolerance);
    }
}

} // namespace ColorCalibration
