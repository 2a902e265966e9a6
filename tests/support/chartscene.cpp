// SPDX-License-Identifier: Apache-2.0
// Draws a 24-patch chart on a table as a camera would see it.
#include "chartscene.h"

#include "charttargets.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace ChartScene {

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr int SamplesPerAxis = 2;

double radians(double degrees)
{
    return degrees * Pi / 180.0;
}

/// IEC 61966-2-1, from 0 to 1 to 0 to 255, in steps of 1 / 65535.
double encoded(double linear)
{
    static const std::vector<double> table = [] {
        std::vector<double> levels(65536);
        for (std::size_t i = 0; i < levels.size(); ++i) {
            const double value = double(i) / 65535.0;
            levels[i] = 255.0 * (value <= 0.0031308 ? 12.92 * value
                                                    : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055);
        }
        return levels;
    }();
    return table[static_cast<std::size_t>(std::lround(std::clamp(linear, 0.0, 1.0) * 65535.0))];
}

/// The colours of a scene in chart coordinates, where a cell is 1 by 1.
class Paint
{
public:
    explicit Paint(const Scene& scene)
        : m_scene(scene)
        , m_targets(ColorCalibration::ChartTargets().TargetColors())
    {}

    LinearColor at(const QPointF& chart, const QPointF& pixel) const
    {
        const double outside = std::max({-chart.x(), chart.x() - ColorCalibration::PatchColumns,
                                         -chart.y(), chart.y() - ColorCalibration::PatchRows});
        if (outside > m_scene.border)
            return table(pixel);
        if (outside >= 0.0 || isGap(chart.x()) || isGap(chart.y()))
            return m_scene.frame;
        const int patch = int(chart.y()) * ColorCalibration::PatchColumns + int(chart.x());
        return {m_targets(patch, 0), m_targets(patch, 1), m_targets(patch, 2)};
    }

private:
    bool isGap(double coordinate) const
    {
        return std::abs(coordinate - std::floor(coordinate) - 0.5) > 0.5 - m_scene.gap / 2.0;
    }

    LinearColor table(const QPointF& pixel) const
    {
        LinearColor color = m_scene.background;
        if (m_scene.table == Table::Wood) {
            const double x = pixel.x() / m_scene.size.width();
            const double y = pixel.y() / m_scene.size.width();
            const double grain = std::sin(140.0 * y + 6.0 * std::sin(5.0 * x + 9.0 * y)) +
                                 0.5 * std::sin(377.0 * y + 3.0 * std::sin(11.0 * x));
            for (double& channel : color)
                channel *= 1.0 + 0.18 * grain;
        }
        return color;
    }

    const Scene& m_scene;
    ColorCalibration::PatchColors m_targets;
};

/// Nearly normal, with a standard deviation of 1: four bytes of one random number added up.
class Noise
{
public:
    explicit Noise(unsigned seed)
        : m_generator(seed)
    {}

    double next()
    {
        const std::uint_fast32_t bits = m_generator();
        const auto sum = double((bits & 255U) + (bits >> 8U & 255U) + (bits >> 16U & 255U) +
                                (bits >> 24U & 255U));
        return (sum - 510.0) / std::sqrt(4.0 * 65535.0 / 12.0);
    }

private:
    std::mt19937 m_generator;
};

QTransform chartFromImage(const Corners& corners)
{
    const QPolygonF cells({{0, 0},
                           {ColorCalibration::PatchColumns, 0},
                           {ColorCalibration::PatchColumns, ColorCalibration::PatchRows},
                           {0, ColorCalibration::PatchRows}});
    const QPolygonF image({corners[0], corners[1], corners[3], corners[2]});
    QTransform transform;
    QTransform::quadToQuad(image, cells, transform);
    return transform;
}

/// The mean over the pixel, in the light of the scene, still linear.
LinearColor pixelColor(const Scene& scene, const Paint& paint, const QTransform& toChart, int x,
                       int y)
{
    LinearColor mean{};
    for (int i = 0; i < SamplesPerAxis * SamplesPerAxis; ++i) {
        const int column = i % SamplesPerAxis;
        const int row = i / SamplesPerAxis;
        const QPointF point(x + (column + 0.5) / SamplesPerAxis, y + (row + 0.5) / SamplesPerAxis);
        const LinearColor color = paint.at(toChart.map(point), point);
        for (std::size_t c = 0; c < mean.size(); ++c)
            mean[c] += color[c] * scene.light * scene.cast[c];
    }
    for (double& channel : mean)
        channel /= SamplesPerAxis * SamplesPerAxis;
    return mean;
}

} // namespace

Corners cornersOf(const Placement& placement)
{
    const double turn = radians(placement.turn);
    const double tiltX = radians(placement.tiltX);
    const double tiltY = radians(placement.tiltY);
    Corners corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const double x = i % 2 == 0 ? -0.5 : 0.5;
        const double y = i < 2 ? -1.0 / 3.0 : 1.0 / 3.0;
        const double depth =
            placement.distance + y * std::sin(tiltX) + x * std::cos(tiltX) * std::sin(tiltY);
        const double scale = placement.width * placement.distance / depth;
        const double seenX = x * std::cos(tiltY) * scale;
        const double seenY = (y * std::cos(tiltX) - x * std::sin(tiltX) * std::sin(tiltY)) * scale;
        corners[i] = placement.center + QPointF(seenX * std::cos(turn) - seenY * std::sin(turn),
                                                seenX * std::sin(turn) + seenY * std::cos(turn));
    }
    return corners;
}

QImage render(const Scene& scene)
{
    const QTransform toChart = chartFromImage(scene.corners);
    const Paint paint(scene);
    Noise noise(scene.seed);
    QImage image(scene.size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const LinearColor color = pixelColor(scene, paint, toChart, x, y);
            std::array<int, 3> levels{};
            for (std::size_t c = 0; c < levels.size(); ++c) {
                const double level = encoded(color[c] / 255.0) +
                                     (scene.noise > 0.0 ? scene.noise * noise.next() : 0.0);
                levels[c] = std::clamp(static_cast<int>(std::lround(level)), 0, 255);
            }
            line[x] = qRgb(levels[0], levels[1], levels[2]);
        }
    }
    return image;
}

} // namespace ChartScene
