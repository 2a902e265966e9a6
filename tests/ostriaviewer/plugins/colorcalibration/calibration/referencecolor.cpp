// SPDX-License-Identifier: Apache-2.0
// Plain colour formulas in long double.
#include "referencecolor.h"

#include <cmath>

namespace Reference {

namespace {

constexpr Real Pi = 3.14159265358979323846264338327950288L;

Real radians(Real degrees)
{
    return degrees * Pi / 180;
}

Real labFunction(Real t)
{
    return t > 0.008856L ? std::cbrt(t) : (903.3L * t + 16) / 116;
}

Real hueInDegrees(Real a, Real b)
{
    if (a == 0 && b == 0) {
        return 0;
    }
    const Real degrees = std::atan2(b, a) * 180 / Pi;
    return degrees >= 0 ? degrees : degrees + 360;
}

Real meanHue(Real h1, Real h2, bool oneIsGray)
{
    if (oneIsGray) {
        return h1 + h2;
    }
    if (std::fabs(h1 - h2) <= 180) {
        return (h1 + h2) / 2;
    }
    return h1 + h2 < 360 ? (h1 + h2 + 360) / 2 : (h1 + h2 - 360) / 2;
}

Real hueDifference(Real h1, Real h2, bool oneIsGray)
{
    if (oneIsGray) {
        return 0;
    }
    const Real difference = h2 - h1;
    if (difference > 180) {
        return difference - 360;
    }
    return difference < -180 ? difference + 360 : difference;
}

} // namespace

Colors fromPatchColors(const ColorCalibration::PatchColors& colors)
{
    Colors result;
    for (long row = 0; row < colors.nr(); ++row) {
        result[row] = {colors(row, 0), colors(row, 1), colors(row, 2)};
    }
    return result;
}

Vector labOfLinearRgb(const Vector& rgb)
{
    const Real r = rgb[0] / 255;
    const Real g = rgb[1] / 255;
    const Real b = rgb[2] / 255;
    const Real x = 0.4124564L * r + 0.3575761L * g + 0.1804375L * b;
    const Real y = 0.2126729L * r + 0.7151522L * g + 0.0721750L * b;
    const Real z = 0.0193339L * r + 0.1191920L * g + 0.9503041L * b;
    const Real fx = labFunction(x / 0.95047L);
    const Real fy = labFunction(y);
    const Real fz = labFunction(z / 1.08883L);
    return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

Real ciede2000(const Vector& lab1, const Vector& lab2)
{
    const Real meanC = (std::hypot(lab1[1], lab1[2]) + std::hypot(lab2[1], lab2[2])) / 2;
    const Real twentyFive7 = std::pow(25.0L, 7.0L);
    const Real meanC7 = std::pow(meanC, 7.0L);
    const Real g = (1 - std::sqrt(meanC7 / (meanC7 + twentyFive7))) / 2;
    const Real a1 = (1 + g) * lab1[1];
    const Real a2 = (1 + g) * lab2[1];
    const Real c1 = std::hypot(a1, lab1[2]);
    const Real c2 = std::hypot(a2, lab2[2]);
    const Real h1 = hueInDegrees(a1, lab1[2]);
    const Real h2 = hueInDegrees(a2, lab2[2]);
    const bool oneIsGray = c1 * c2 == 0;

    const Real deltaL = lab2[0] - lab1[0];
    const Real deltaC = c2 - c1;
    const Real deltaH =
        2 * std::sqrt(c1 * c2) * std::sin(radians(hueDifference(h1, h2, oneIsGray) / 2));

    const Real l = (lab1[0] + lab2[0]) / 2;
    const Real c = (c1 + c2) / 2;
    const Real h = meanHue(h1, h2, oneIsGray);
    const Real t = 1 - 0.17L * std::cos(radians(h - 30)) + 0.24L * std::cos(radians(2 * h)) +
                   0.32L * std::cos(radians(3 * h + 6)) - 0.20L * std::cos(radians(4 * h - 63));
    const Real deltaTheta = 30 * std::exp(-std::pow((h - 275) / 25, 2.0L));
    const Real c7 = std::pow(c, 7.0L);
    const Real rc = 2 * std::sqrt(c7 / (c7 + twentyFive7));
    const Real sl = 1 + 0.015L * (l - 50) * (l - 50) / std::sqrt(20 + (l - 50) * (l - 50));
    const Real sc = 1 + 0.045L * c;
    const Real sh = 1 + 0.015L * c * t;
    const Real rt = -std::sin(radians(2 * deltaTheta)) * rc;
    return std::sqrt(std::pow(deltaL / sl, 2.0L) + std::pow(deltaC / sc, 2.0L) +
                     std::pow(deltaH / sh, 2.0L) + rt * (deltaC / sc) * (deltaH / sh));
}

} // namespace Reference
