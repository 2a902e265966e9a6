// SPDX-License-Identifier: Apache-2.0
// What stands before an emulated camera, as linear light.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Cameras::Emulation {

/// Red, green, blue in linear light with the primaries of sRGB; 1 is a perfect white under a light
/// of level 1.
using Light = std::array<float, 3>;

/// An image of linear light, three values a pixel, rows from top to bottom.
struct LightImage
{
    int width = 0;
    int height = 0;
    std::vector<float> rgb;

    /// The pixel's three values. No bounds are checked.
    const float* at(int x, int y) const
    {
        return rgb.data() + 3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                                 static_cast<std::size_t>(x));
    }
};

/// A position on the sensor. Pixel (0, 0) reaches from 0 to 1, so its centre lies at 0.5.
struct SensorPoint
{
    double x = 0.0;
    double y = 0.0;
};

/// The outline of the chart's 6 by 4 cells, without the frame around them.
struct ChartCorners
{
    SensorPoint upperLeft;
    SensorPoint upperRight;
    SensorPoint lowerLeft;
    SensorPoint lowerRight;
};

/// Where the chart lies and what light falls on the scene.
struct SceneSettings
{
    double chartCenterX = 0.5; ///< share of the image's width
    double chartCenterY = 0.5; ///< share of the image's height
    double chartWidth = 0.72;  ///< of the 6 cells, share of the image's width, seen from distance 1
    double distance = 1.0;     ///< factor on the working distance; above 0
    double rotation = 1.2;     ///< degrees, clockwise in the image
    double tiltX = -3.0;       ///< degrees about the chart's horizontal axis, -75 to 75
    double tiltY = 4.0;        ///< degrees about the chart's vertical axis, -75 to 75

    double lightLevel = 1.0;                               ///< not negative
    std::array<double, 3> illuminant = {0.80, 1.00, 0.62}; ///< cast; red, green, blue
    double lightGradient = 0.02; ///< the light's loss from the centre to the right edge, -1 to 1

    std::array<double, 3> background = {0.243, 0.200, 0.169}; ///< the table's reflectance
    double backgroundTexture = 0.04; ///< its grain, share of the reflectance, 0 to 1
};

/// A scene: the chart on a table, or an image of the user's. Immutable; reentrant.
class Scene
{
public:
    /// The chart on a table.
    /// \throws std::invalid_argument  a setting is out of its range or not finite
    explicit Scene(const SceneSettings& settings = SceneSettings());

    /// A scene that looks like an image. It fills the sensor whatever its shape; of the settings,
    /// those of the light apply.
    /// \param reflectance  linear, with at least one pixel and finite values
    /// \throws std::invalid_argument  as above, or the image is empty or of the wrong size
    explicit Scene(LightImage reflectance, const SceneSettings& settings = SceneSettings());

    /// An 8-bit sRGB image made linear (IEC 61966-2-1).
    /// \param rgb     red, green, blue; rows of `stride` bytes
    /// \param stride  at least 3 * width
    /// \throws std::invalid_argument  no pixels, or a stride that is too short
    static LightImage fromSrgb8(int width, int height, const std::uint8_t* rgb, std::size_t stride);

    const SceneSettings& settings() const { return m_settings; }

    /// The light on a sensor of this size, the illuminant's cast and gradient included. Edges are
    /// antialiased: a pixel has the mean of the light on its area.
    /// \throws std::invalid_argument  a size below 1
    LightImage project(int width, int height) const;

    /// Where the chart comes to lie on a sensor of this size; nothing for a scene from an image.
    std::optional<ChartCorners> chartCorners(int width, int height) const;

private:
    SceneSettings m_settings;
    LightImage m_reflectance;
};

} // namespace Cameras::Emulation
