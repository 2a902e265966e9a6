// SPDX-License-Identifier: Apache-2.0
// How a lens maps the plane of the chart onto the sensor.
#include "perspective.h"

#include "chartcolors.h"

#include <cmath>
#include <stdexcept>

namespace Cameras::Emulation {
namespace {

using Matrix = std::array<double, 9>;

constexpr double degree = 3.14159265358979323846 / 180.0;

// Lens to plane at distance 1, in image widths: a field of view of 23 degrees.
constexpr double workingDistance = 2.5;

Matrix product(const Matrix& a, const Matrix& b)
{
    Matrix c{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            for (std::size_t k = 0; k < 3; ++k)
                c[3 * row + column] += a[3 * row + k] * b[3 * k + column];
    return c;
}

Matrix inverse(const Matrix& m)
{
    const Matrix adjugate = {
        m[4] * m[8] - m[5] * m[7], m[2] * m[7] - m[1] * m[8], m[1] * m[5] - m[2] * m[4],
        m[5] * m[6] - m[3] * m[8], m[0] * m[8] - m[2] * m[6], m[2] * m[3] - m[0] * m[5],
        m[3] * m[7] - m[4] * m[6], m[1] * m[6] - m[0] * m[7], m[0] * m[4] - m[1] * m[3]};
    const double determinant = m[0] * adjugate[0] + m[1] * adjugate[3] + m[2] * adjugate[6];
    Matrix result{};
    for (std::size_t i = 0; i < 9; ++i)
        result[i] = adjugate[i] / determinant;
    return result;
}

Matrix orientation(const SceneSettings& settings)
{
    const double x = settings.tiltX * degree;
    const double y = settings.tiltY * degree;
    const double z = settings.rotation * degree;
    const Matrix aboutX = {1, 0, 0, 0, std::cos(x), -std::sin(x), 0, std::sin(x), std::cos(x)};
    const Matrix aboutY = {std::cos(y), 0, std::sin(y), 0, 1, 0, -std::sin(y), 0, std::cos(y)};
    const Matrix aboutZ = {std::cos(z), -std::sin(z), 0, std::sin(z), std::cos(z), 0, 0, 0, 1};
    return product(aboutZ, product(aboutY, aboutX));
}

} // namespace

Perspective::Perspective(const SceneSettings& settings, int width, int height)
{
    const Matrix turn = orientation(settings);
    const double cell = settings.chartWidth / chartColumns;
    const double left = -0.5 * chartColumns * cell;
    const double top = -0.5 * chartRows * cell;
    // Cells of the chart to positions before the lens, in image widths.
    const Matrix place = {turn[0] * cell,
                          turn[1] * cell,
                          turn[0] * left + turn[1] * top,
                          turn[3] * cell,
                          turn[4] * cell,
                          turn[3] * left + turn[4] * top,
                          turn[6] * cell,
                          turn[7] * cell,
                          turn[6] * left + turn[7] * top + workingDistance * settings.distance};
    const double focalLength = workingDistance * width;
    const Matrix lens = {focalLength, 0,           settings.chartCenterX * width,
                         0,           focalLength, settings.chartCenterY * height,
                         0,           0,           1};
    m_toSensor = product(lens, place);
    checkBeforeLens();
    m_toPlane = inverse(m_toSensor);
}

void Perspective::checkBeforeLens() const
{
    for (const double u : {-chartFrameWidth, chartColumns + chartFrameWidth})
        for (const double v : {-chartFrameWidth, chartRows + chartFrameWidth}) {
            const double depth = m_toSensor[6] * u + m_toSensor[7] * v + m_toSensor[8];
            if (depth < 0.02 * workingDistance)
                throw std::invalid_argument(
                    "The chart reaches behind the lens: make it smaller, farther or less tilted.");
        }
}

SensorPoint Perspective::toSensor(double u, double v) const
{
    const Matrix& m = m_toSensor;
    const double depth = m[6] * u + m[7] * v + m[8];
    return {(m[0] * u + m[1] * v + m[2]) / depth, (m[3] * u + m[4] * v + m[5]) / depth};
}

Perspective::PlanePoint Perspective::toPlane(double x, double y) const
{
    const Matrix& m = m_toPlane;
    const double reciprocalDepth = m[6] * x + m[7] * y + m[8];
    if (!(reciprocalDepth > 0.0))
        return {};
    return {(m[0] * x + m[1] * y + m[2]) / reciprocalDepth,
            (m[3] * x + m[4] * y + m[5]) / reciprocalDepth, true};
}

} // namespace Cameras::Emulation
