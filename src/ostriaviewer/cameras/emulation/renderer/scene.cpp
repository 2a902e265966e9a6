// SPDX-License-Identifier: Apache-2.0
// What stands before an emulated camera, as linear light.
#include "scene.h"

#include "chartcolors.h"
#include "perspective.h"
#include "requirement.h"
#include "resample.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace Cameras::Emulation {
namespace {

void check(const SceneSettings& settings)
{
    requireRange("The chart's centre x", settings.chartCenterX, -10.0, 10.0);
    requireRange("The chart's centre y", settings.chartCenterY, -10.0, 10.0);
    requireRange("The chart's width", settings.chartWidth, 0.01, 10.0);
    requireRange("The distance", settings.distance, 0.1, 100.0);
    requireRange("The rotation", settings.rotation, -360.0, 360.0);
    requireRange("The tilt about the horizontal axis", settings.tiltX, -75.0, 75.0);
    requireRange("The tilt about the vertical axis", settings.tiltY, -75.0, 75.0);
    requireRange("The light level", settings.lightLevel, 0.0, 1e6);
    for (const double channel : settings.illuminant)
        requireRange("The illuminant", channel, 0.0, 1e6);
    requireRange("The light gradient", settings.lightGradient, -1.0, 1.0);
    for (const double channel : settings.background)
        requireRange("The background", channel, 0.0, 1e6);
    requireRange("The background's texture", settings.backgroundTexture, 0.0, 1.0);
}

void checkSize(int width, int height)
{
    requireRange("The width", width, 1, 65536);
    requireRange("The height", height, 1, 65536);
}

/// The chart on its table, seen through a lens.
class ChartView
{
public:
    ChartView(const SceneSettings& settings, int width, int height)
        : m_settings(settings)
        , m_perspective(settings, width, height)
    {
        for (std::size_t patch = 0; patch < chartColors().size(); ++patch)
            for (std::size_t c = 0; c < 3; ++c)
                m_surfaces[patch][c] = static_cast<float>(chartColors()[patch][c] / 255.0);
        m_surfaces[chartFrame] = chartFrameColor();
    }

    int surfaceAt(double x, double y) const
    {
        const Perspective::PlanePoint point = m_perspective.toPlane(x, y);
        return point.visible ? chartSurface(point.u, point.v) : besideChart;
    }

    Light lightAt(double x, double y) const
    {
        const Perspective::PlanePoint point = m_perspective.toPlane(x, y);
        const int surface = point.visible ? chartSurface(point.u, point.v) : besideChart;
        if (surface != besideChart)
            return m_surfaces[static_cast<std::size_t>(surface)];
        const double grain = 1.0 + m_settings.backgroundTexture * woodGrain(point.u, point.v);
        Light light{};
        for (std::size_t c = 0; c < 3; ++c)
            light[c] = static_cast<float>(m_settings.background[c] * grain);
        return light;
    }

    /// The mean over the pixel with the upper left corner (x, y).
    Light meanLight(int x, int y) const
    {
        constexpr int samples = 8;
        Light sum{};
        for (int j = 0; j < samples; ++j)
            for (int i = 0; i < samples; ++i) {
                const Light light = lightAt(x + (i + 0.5) / samples, y + (j + 0.5) / samples);
                for (std::size_t c = 0; c < 3; ++c)
                    sum[c] += light[c] / float(samples * samples);
            }
        return sum;
    }

private:
    static double woodGrain(double u, double v)
    {
        return std::sin(9.0 * v + 2.0 * std::sin(0.7 * u) + 1.3 * std::sin(1.9 * u + 0.4 * v));
    }

    const SceneSettings& m_settings;
    Perspective m_perspective;
    std::array<Light, chartFrame + 1> m_surfaces{};
};

/// Pixels whose four corners see one and the same surface take the light of their centre.
LightImage projectChart(const SceneSettings& settings, int width, int height)
{
    const ChartView view(settings, width, height);
    LightImage image{width, height, {}};
    image.rgb.reserve(3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    std::vector<int> above(static_cast<std::size_t>(width) + 1);
    std::vector<int> below(above.size());
    for (int x = 0; x <= width; ++x)
        below[static_cast<std::size_t>(x)] = view.surfaceAt(x, 0);
    for (int y = 0; y < height; ++y) {
        above.swap(below);
        for (int x = 0; x <= width; ++x)
            below[static_cast<std::size_t>(x)] = view.surfaceAt(x, y + 1);
        for (int x = 0; x < width; ++x) {
            const auto i = static_cast<std::size_t>(x);
            const bool uniform =
                above[i] == above[i + 1] && above[i] == below[i] && above[i] == below[i + 1];
            const Light light = uniform ? view.lightAt(x + 0.5, y + 0.5) : view.meanLight(x, y);
            image.rgb.insert(image.rgb.end(), light.begin(), light.end());
        }
    }
    return image;
}

void illuminate(const SceneSettings& settings, LightImage& image)
{
    std::vector<float> factors;
    for (int x = 0; x < image.width; ++x) {
        const double fromCenter = (2.0 * x + 1.0) / image.width - 1.0;
        const double level = settings.lightLevel * (1.0 - settings.lightGradient * fromCenter);
        for (const double channel : settings.illuminant)
            factors.push_back(static_cast<float>(level * channel));
    }
    for (auto row = image.rgb.begin(); row != image.rgb.end();
         row += static_cast<std::ptrdiff_t>(factors.size()))
        std::transform(factors.begin(), factors.end(), row, row, std::multiplies<>());
}

double srgbToLinear(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

} // namespace

Scene::Scene(const SceneSettings& settings)
    : m_settings(settings)
{
    check(settings);
    // Refuses a chart that no sensor could see.
    static_cast<void>(Perspective(settings, 1, 1));
}

Scene::Scene(LightImage reflectance, const SceneSettings& settings)
    : m_settings(settings)
    , m_reflectance(std::move(reflectance))
{
    check(settings);
    checkSize(m_reflectance.width, m_reflectance.height);
    const auto pixels = static_cast<std::size_t>(m_reflectance.width) *
                        static_cast<std::size_t>(m_reflectance.height);
    if (m_reflectance.rgb.size() != 3 * pixels)
        throw std::invalid_argument("The scene's image has not three values for each pixel.");
    for (const float value : m_reflectance.rgb)
        requireRange("A value of the scene's image", value, 0.0, 1e6);
}

LightImage Scene::fromSrgb8(int width, int height, const std::uint8_t* rgb, std::size_t stride)
{
    checkSize(width, height);
    const std::size_t values = 3 * static_cast<std::size_t>(width);
    if (!rgb || stride < values)
        throw std::invalid_argument("The image has no pixels, or its rows are too short.");
    std::array<float, 256> linear{};
    for (std::size_t value = 0; value < linear.size(); ++value)
        linear[value] = static_cast<float>(srgbToLinear(static_cast<double>(value) / 255.0));

    LightImage image{width, height, {}};
    image.rgb.reserve(values * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y, rgb += stride)
        std::transform(rgb, rgb + values, std::back_inserter(image.rgb),
                       [&linear](std::uint8_t value) { return linear[value]; });
    return image;
}

LightImage Scene::project(int width, int height) const
{
    checkSize(width, height);
    LightImage image = m_reflectance.rgb.empty() ? projectChart(m_settings, width, height)
                                                 : resampled(m_reflectance, width, height);
    illuminate(m_settings, image);
    return image;
}

std::optional<ChartCorners> Scene::chartCorners(int width, int height) const
{
    if (!m_reflectance.rgb.empty())
        return std::nullopt;
    const Perspective perspective(m_settings, width, height);
    return ChartCorners{perspective.toSensor(0, 0), perspective.toSensor(chartColumns, 0),
                        perspective.toSensor(0, chartRows),
                        perspective.toSensor(chartColumns, chartRows)};
}

} // namespace Cameras::Emulation
