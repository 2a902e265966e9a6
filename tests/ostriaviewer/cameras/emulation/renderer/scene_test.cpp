// SPDX-License-Identifier: Apache-2.0
// Scenes as they fall on the sensor.
#include "scene.h"

#include "chartcolors.h"
#include "testscenes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace Cameras::Emulation {
namespace {

/// The chart straight before the lens: cells of 100 pixels, corners at (100, 100) to (700, 500).
SceneSettings straight()
{
    SceneSettings settings = evenLight();
    settings.chartWidth = 0.75;
    settings.rotation = settings.tiltX = settings.tiltY = 0.0;
    return settings;
}

void expectPoint(const SensorPoint& point, double x, double y)
{
    EXPECT_NEAR(point.x, x, 1e-6);
    EXPECT_NEAR(point.y, y, 1e-6);
}

void expectLight(const LightImage& image, int x, int y, const std::array<double, 3>& expected)
{
    for (std::size_t c = 0; c < 3; ++c)
        EXPECT_NEAR(image.at(x, y)[c], expected[c], 1e-5) << x << ", " << y << ", " << c;
}

std::array<double, 3> patch(std::size_t index)
{
    std::array<double, 3> light = chartColors()[index];
    for (double& channel : light)
        channel /= 255.0;
    return light;
}

TEST(Scene, ShowsTheChartWhereItWasPut)
{
    const ChartCorners corners = *Scene(straight()).chartCorners(800, 600);
    expectPoint(corners.upperLeft, 100, 100);
    expectPoint(corners.upperRight, 700, 100);
    expectPoint(corners.lowerLeft, 100, 500);
    expectPoint(corners.lowerRight, 700, 500);
}

TEST(Scene, ShowsEveryPatchInItsCell)
{
    const LightImage image = Scene(straight()).project(800, 600);
    for (int i = 0; i < 24; ++i) {
        const int left = 100 + 100 * (i % 6);
        const int top = 100 + 100 * (i / 6);
        for (const int offset : {8, 50, 91})
            expectLight(image, left + offset, top + 100 - offset,
                        patch(static_cast<std::size_t>(i)));
        const Light frame = chartFrameColor();
        expectLight(image, left + 3, top + 50, {frame[0], frame[1], frame[2]});
    }
    expectLight(image, 10, 10, {0.243, 0.200, 0.169});
    expectLight(image, 100 - 14, 300, {0.0235, 0.0243, 0.0255});
    expectLight(image, 100 - 17, 300, {0.243, 0.200, 0.169});
}

TEST(Scene, GivesAnEdgePixelTheMeanOfItsArea)
{
    SceneSettings settings = straight();
    settings.chartCenterX = 0.5 + 0.25 / 800.0; // patches begin at 107.25
    const LightImage image = Scene(settings).project(800, 600);
    const std::array<double, 3> inside = patch(6);
    const Light frame = chartFrameColor();
    expectLight(image, 107, 250,
                {0.25 * frame[0] + 0.75 * inside[0], 0.25 * frame[1] + 0.75 * inside[1],
                 0.25 * frame[2] + 0.75 * inside[2]});
    expectLight(image, 106, 250, {frame[0], frame[1], frame[2]});
    expectLight(image, 108, 250, inside);
}

TEST(Scene, HalvesTheChartAtTwiceTheDistance)
{
    SceneSettings settings = straight();
    settings.distance = 2.0;
    const ChartCorners corners = *Scene(settings).chartCorners(800, 600);
    expectPoint(corners.upperLeft, 250, 200);
    expectPoint(corners.lowerRight, 550, 400);
}

TEST(Scene, TurnsTheChartClockwise)
{
    SceneSettings settings = straight();
    settings.rotation = 90.0;
    const ChartCorners corners = *Scene(settings).chartCorners(800, 600);
    expectPoint(corners.upperLeft, 600, 0);
    expectPoint(corners.upperRight, 600, 600);
    expectPoint(corners.lowerLeft, 200, 0);
}

TEST(Scene, ShowsTheFarSideOfATiltedChartSmaller)
{
    SceneSettings settings = straight();
    settings.tiltY = 30.0;
    const ChartCorners corners = *Scene(settings).chartCorners(800, 600);
    // Half the chart is 300 pixels, the lens 2000 away: the right edge comes 150 nearer.
    const double near = 2000.0 / (2000.0 - 150.0);
    const double far = 2000.0 / (2000.0 + 150.0);
    const double half = 300.0 * std::cos(30.0 * 3.14159265358979 / 180.0);
    expectPoint(corners.upperRight, 400 + near * half, 300 - near * 200);
    expectPoint(corners.lowerLeft, 400 - far * half, 300 + far * 200);
}

TEST(Scene, IsLitByTheIlluminant)
{
    SceneSettings settings = straight();
    settings.lightLevel = 2.0;
    settings.illuminant = {0.5, 1.0, 0.25};
    settings.lightGradient = 0.1;
    const LightImage image = Scene(settings).project(800, 600);
    const std::array<double, 3> white = patch(18);
    // Pixel 150 has its centre at 150.5, which is 0.62375 of the half width left of the middle.
    const double level = 2.0 * (1.0 + 0.1 * 0.62375);
    expectLight(image, 150, 450,
                {level * 0.5 * white[0], level * white[1], level * 0.25 * white[2]});
}

TEST(Scene, KeepsTheTextureWithinItsAmplitude)
{
    SceneSettings settings = straight();
    settings.backgroundTexture = 0.1;
    const LightImage image = Scene(settings).project(800, 600);
    float lowest = 1.0F;
    float highest = 0.0F;
    for (int y = 0; y < 600; ++y) {
        lowest = std::min(lowest, image.at(20, y)[1]);
        highest = std::max(highest, image.at(20, y)[1]);
    }
    EXPECT_GE(lowest, 0.2F * 0.899F);
    EXPECT_LE(highest, 0.2F * 1.101F);
    EXPECT_GT(highest - lowest, 0.2F * 0.1F);
}

TEST(Scene, ShowsAnImageOfTheUser)
{
    const LightImage source{2, 2, {1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1}};
    const Scene scene(source, evenLight());
    EXPECT_FALSE(scene.chartCorners(8, 8).has_value());
    const LightImage same = scene.project(2, 2);
    EXPECT_EQ(same.rgb, source.rgb);
    const LightImage larger = scene.project(8, 4);
    expectLight(larger, 3, 1, {1, 0, 0});
    expectLight(larger, 4, 1, {0, 1, 0});
    expectLight(larger, 3, 2, {0, 0, 1});
    const LightImage odd = scene.project(3, 1);
    expectLight(odd, 0, 0, {0.5, 0, 0.5});
    expectLight(odd, 1, 0, {0.5, 0.5, 0.5});
    const LightImage smaller = scene.project(1, 1);
    expectLight(smaller, 0, 0, {0.5, 0.5, 0.5});
}

TEST(Scene, MakesSrgbLinear)
{
    // Half of full sRGB is 21.4 percent of the light; 10 lies on the straight part.
    const std::vector<std::uint8_t> rgb = {0, 255, 10, 128, 188, 64, 99, 99, 1, 2, 3, 4, 5, 6};
    const LightImage image = Scene::fromSrgb8(2, 1, rgb.data(), 8);
    EXPECT_EQ(image.rgb.size(), 6U);
    expectLight(image, 0, 0, {0.0, 1.0, 10.0 / 255.0 / 12.92});
    expectLight(image, 1, 0, {0.215861, 0.502886, 0.051269});
    const LightImage rows = Scene::fromSrgb8(1, 2, rgb.data(), 4);
    expectLight(rows, 0, 1, {0.502886, 0.051269, 0.124772});
}

template <typename Change>
void expectRefused(Change change)
{
    SceneSettings settings;
    change(settings);
    EXPECT_THROW(Scene{settings}, std::invalid_argument);
    EXPECT_NO_THROW(Scene{SceneSettings()});
}

TEST(Scene, RefusesSettingsThatCannotBe)
{
    expectRefused([](SceneSettings& s) { s.chartCenterX = notANumber; });
    expectRefused([](SceneSettings& s) { s.chartCenterY = infinity; });
    expectRefused([](SceneSettings& s) { s.chartWidth = 0.0; });
    expectRefused([](SceneSettings& s) { s.distance = 0.0; });
    expectRefused([](SceneSettings& s) { s.tiltX = 90.0; });
    expectRefused([](SceneSettings& s) { s.tiltY = -90.0; });
    expectRefused([](SceneSettings& s) { s.rotation = notANumber; });
    expectRefused([](SceneSettings& s) { s.lightLevel = -1.0; });
    expectRefused([](SceneSettings& s) { s.illuminant[1] = infinity; });
    expectRefused([](SceneSettings& s) { s.lightGradient = 2.0; });
    expectRefused([](SceneSettings& s) { s.background[2] = -0.1; });
    expectRefused([](SceneSettings& s) { s.backgroundTexture = 2.0; });
}

TEST(Scene, RefusesAChartBehindTheLens)
{
    expectRefused([](SceneSettings& s) {
        s.chartWidth = 2.0;
        s.distance = 0.3;
        s.tiltY = 70.0;
    });
}

TEST(Scene, RefusesImagesWithoutPixels)
{
    const std::vector<std::uint8_t> bytes(12);
    EXPECT_THROW(Scene(LightImage(), evenLight()), std::invalid_argument);
    EXPECT_THROW(Scene(LightImage{2, 2, {1, 1, 1}}), std::invalid_argument);
    EXPECT_THROW(Scene(LightImage{1, 1, {1, 1, NAN}}), std::invalid_argument);
    EXPECT_THROW(Scene(LightImage{1, 1, {1, -1, 1}}), std::invalid_argument);
    EXPECT_THROW(Scene::fromSrgb8(0, 2, bytes.data(), 6), std::invalid_argument);
    EXPECT_THROW(Scene::fromSrgb8(2, -1, bytes.data(), 6), std::invalid_argument);
    EXPECT_THROW(Scene::fromSrgb8(2, 2, nullptr, 6), std::invalid_argument);
    EXPECT_THROW(Scene::fromSrgb8(2, 2, bytes.data(), 5), std::invalid_argument);
    EXPECT_THROW(Scene().project(0, 5), std::invalid_argument);
}

} // namespace
} // namespace Cameras::Emulation
