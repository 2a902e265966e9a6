// SPDX-License-Identifier: Apache-2.0
// Whole frames against physics, and against the slow and obvious version.
#include "renderer.h"

#include "chartcolors.h"
#include "obviousrenderer.h"
#include "testscenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace Cameras::Emulation {
namespace {

using Ostria::COstriaImage;
using Ostria::PixelType;

const std::vector<PixelType> colorFormats = {
    PixelType::Mono8, PixelType::Mono12, PixelType::BayerRG8, PixelType::BayerRG12,
    PixelType::RGB8,  PixelType::BGR8,   PixelType::YUV422_8, PixelType::BGRa8};

PipelineSettings as(PixelType format)
{
    PipelineSettings settings;
    settings.pixelFormat = format;
    return settings;
}

/// Small, but with everything that the default has.
SensorModel realisticSensor()
{
    SensorModel sensor;
    sensor.width = 192;
    sensor.height = 120;
    return sensor;
}

std::array<int, 3> pixel(const COstriaImage& image, int x, int y)
{
    const Ostria::PixelReading reading = image.readPixel(x, y);
    return {reading.red, reading.green, reading.blue};
}

bool samePixels(const COstriaImage& a, const COstriaImage& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size()) == 0;
}

void expectCrop(const COstriaImage& part, const COstriaImage& whole, int offsetX, int offsetY)
{
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            ASSERT_EQ(pixel(part, x, y), pixel(whole, offsetX + x, offsetY + y)) << x << ", " << y;
}

PipelineSettings everything()
{
    PipelineSettings settings;
    settings.gain = 1.5;
    settings.blackLevel = 20.0;
    settings.balanceRatio = {1.2, 1.0, 1.4};
    settings.colorMatrixEnabled = true;
    settings.colorMatrix = {1.4, -0.3, -0.1, -0.25, 1.45, -0.2, 0.0, -0.4, 1.4};
    settings.sectorsEnabled = true;
    settings.sectorHue = {0.05, -0.1, 0.08, 0.02, -0.06, 0.1};
    settings.sectorSaturation = {1.1, 0.95, 1.2, 1.05, 0.9, 1.15};
    settings.hue = 5.0;
    settings.saturation = 1.1;
    settings.brightness = 0.02;
    settings.contrast = 0.05;
    settings.lutEnabled = true;
    for (int i = 0; i <= fullScale; ++i)
        settings.lut.push_back(static_cast<std::uint16_t>(std::min(i + i / 16, fullScale)));
    settings.gammaCurve = GammaCurve::User;
    settings.gamma = 0.8;
    return settings;
}

TEST(Renderer, ShowsCountsAsTheyAreIfNeutral)
{
    SensorModel sensor = idealSensor(16, 8);
    Renderer renderer(sensor, uniformScene(0.25F, 0.5F, 0.75F));
    PipelineSettings settings = as(PixelType::BayerRG12);
    settings.exposureTime = 1000.0;
    const COstriaImage mosaic = renderer.render(settings, 0);
    EXPECT_EQ(pixel(mosaic, 0, 0), (std::array<int, 3>{1024, 0, 0}));
    EXPECT_EQ(pixel(mosaic, 1, 0), (std::array<int, 3>{0, 2048, 0}));
    EXPECT_EQ(pixel(mosaic, 3, 3), (std::array<int, 3>{0, 0, 3071}));
    settings.pixelFormat = PixelType::RGB8;
    EXPECT_EQ(pixel(renderer.render(settings, 0), 5, 5), (std::array<int, 3>{64, 128, 192}));
}

TEST(Renderer, IsLinearInTheExposureWithoutItsPedestal)
{
    SensorModel sensor = idealSensor(16, 8);
    sensor.pedestal = 64.0;
    Renderer renderer(sensor, uniformScene(0.5F, 0.5F, 0.5F));
    PipelineSettings settings = as(PixelType::Mono12);
    for (const double exposure : {0.0, 200.0, 400.0, 800.0, 1600.0}) {
        settings.exposureTime = exposure;
        // A count of the sensor is 4095 / 4031 behind it; rounding happens before and after.
        EXPECT_NEAR(pixel(renderer.render(settings, 0), 8, 4)[0], 0.5 * exposure / 1000 * 4095,
                    1.02);
    }
}

TEST(Renderer, SaturatesAtFullScaleInEveryFormat)
{
    Renderer renderer(realisticSensor(), uniformScene(1, 1, 1));
    for (const PixelType format : colorFormats) {
        PipelineSettings settings = as(format);
        settings.exposureTime = 1e6;
        const COstriaImage image = renderer.render(settings, 0);
        const Ostria::PixelReading reading = image.readPixel(10, 11);
        const int full = (1 << reading.bitDepth) - 1;
        EXPECT_EQ(std::max({reading.red, reading.green, reading.blue}), full)
            << Ostria::pixelTypeName(format);
    }
}

TEST(Renderer, DeliversTheTypeAndSizeThatAreAskedFor)
{
    Renderer renderer(realisticSensor(), Scene());
    for (const PixelType format : colorFormats) {
        PipelineSettings settings = as(format);
        const COstriaImage whole = renderer.render(settings, 0);
        EXPECT_EQ(whole.pixelType(), format);
        EXPECT_EQ(whole.width(), 192);
        EXPECT_EQ(whole.height(), 120);
        EXPECT_EQ(whole.paddingX(), 0U);
        settings.width = 64;
        settings.height = 33;
        EXPECT_EQ(renderer.render(settings, 0).width(), 64);
        EXPECT_EQ(renderer.render(settings, 0).height(), 33);
    }
}

TEST(Renderer, DependsOnItsArgumentsAlone)
{
    Renderer first(realisticSensor(), Scene());
    Renderer second(realisticSensor(), Scene());
    for (const PixelType format : colorFormats) {
        PipelineSettings settings = everything();
        settings.pixelFormat = format;
        const COstriaImage image = first.render(settings, 3);
        EXPECT_TRUE(samePixels(image, second.render(settings, 3)));
        EXPECT_FALSE(samePixels(image, first.render(settings, 4)));
        second.render(PipelineSettings(), 9);
        EXPECT_TRUE(samePixels(image, second.render(settings, 3)));
    }
}

TEST(Renderer, DoesNotTouchFramesThatItHasDelivered)
{
    Renderer renderer(realisticSensor(), Scene());
    const COstriaImage frame = renderer.render(PipelineSettings(), 0);
    const std::vector<std::uint8_t> bytes(frame.data(), frame.data() + frame.size());
    renderer.render(PipelineSettings(), 1);
    EXPECT_EQ(std::memcmp(bytes.data(), frame.data(), frame.size()), 0);
}

TEST(Renderer, ShowsTheSamePixelsInARegion)
{
    Renderer renderer(realisticSensor(), Scene());
    for (const Demosaicing demosaicing : {Demosaicing::Simple, Demosaicing::HighQuality})
        for (const PixelType format : colorFormats) {
            PipelineSettings settings = everything();
            settings.demosaicing = demosaicing;
            settings.pixelFormat = format;
            const COstriaImage whole = renderer.render(settings, 5);
            const int region[][4] = {{0, 0, 2, 1},    {2, 4, 50, 31},   {6, 0, 100, 120},
                                     {0, 8, 192, 20}, {190, 118, 2, 2}, {190, 118, 0, 0}};
            for (const auto& [x, y, width, height] : region) {
                settings.offsetX = x;
                settings.offsetY = y;
                settings.width = width;
                settings.height = height;
                expectCrop(renderer.render(settings, 5), whole, x, y);
            }
        }
}

TEST(Renderer, ShowsTheChartsColorsThroughLensLightAndFilters)
{
    SensorModel sensor = realisticSensor();
    sensor.noiseEnabled = false;
    sensor.vignettingEnabled = false;
    sensor.nonLinearityEnabled = false;
    SceneSettings light;
    light.lightGradient = 0.0;
    const Scene scene(light);
    Renderer renderer(sensor, scene);
    const ChartCorners corners = *scene.chartCorners(sensor.width, sensor.height);
    PipelineSettings settings = as(PixelType::BayerRG12);
    const COstriaImage image = renderer.render(settings, 0);
    const double scale = 4095.0 / 255.0 * settings.exposureTime / sensor.fullScaleExposure;
    for (int patch = 0; patch < 24; ++patch) {
        // Bilinear between the corners is near enough to the middle of a patch.
        const double u = (patch % 6 + 0.5) / 6.0;
        const double v = (patch / 6 + 0.5) / 4.0;
        const auto between = [u, v](double ul, double ur, double ll, double lr) {
            return (1 - v) * ((1 - u) * ul + u * ur) + v * ((1 - u) * ll + u * lr);
        };
        const int x = static_cast<int>(between(corners.upperLeft.x, corners.upperRight.x,
                                               corners.lowerLeft.x, corners.lowerRight.x)) /
                      2 * 2;
        const int y = static_cast<int>(between(corners.upperLeft.y, corners.upperRight.y,
                                               corners.lowerLeft.y, corners.lowerRight.y)) /
                      2 * 2;
        for (std::size_t c = 0; c < 3; ++c) {
            double expected = 0.0;
            for (std::size_t in = 0; in < 3; ++in)
                expected += sensor.crosstalk[3 * c + in] * light.illuminant[in] *
                            chartColors()[static_cast<std::size_t>(patch)][in];
            const int shift = c == 0 ? 0 : 1;
            EXPECT_NEAR(pixel(image, x + shift, y + (c == 2 ? 1 : 0))[c], scale * expected, 1.02)
                << "patch " << patch << " channel " << c;
        }
    }
}

TEST(Renderer, ExposesTheGrayPatchAtAbout150ByDefault)
{
    Renderer renderer{SensorModel(), Scene()};
    const COstriaImage image = renderer.render(PipelineSettings(), 0);
    const ChartCorners c = *Scene().chartCorners(renderer.sensor().width, renderer.sensor().height);
    const auto patchAt = [&](double u, double v) {
        const double x = c.lowerLeft.x + u * (c.lowerRight.x - c.lowerLeft.x) +
                         v * (c.upperLeft.x - c.lowerLeft.x);
        const double y = c.lowerLeft.y + u * (c.lowerRight.y - c.lowerLeft.y) +
                         v * (c.upperLeft.y - c.lowerLeft.y);
        return pixel(image, static_cast<int>(x), static_cast<int>(y));
    };
    EXPECT_NEAR(patchAt(1.5 / 6, 0.5 / 4)[1], 150, 5);
    const std::array<int, 3> white = patchAt(0.5 / 6, 0.5 / 4);
    EXPECT_LT(*std::max_element(white.begin(), white.end()), 245);
    EXPECT_GT(white[1], 220);
}

TEST(Renderer, GivesAMonoSensorLuminanceAlone)
{
    SensorModel sensor = idealSensor(16, 8);
    sensor.mono = true;
    Renderer renderer(sensor, uniformScene(0.2F, 0.4F, 0.8F));
    PipelineSettings settings = as(PixelType::Mono12);
    settings.exposureTime = 1000.0;
    const int luminance =
        static_cast<int>(4095 * (0.2126 * 0.2 + 0.7152 * 0.4 + 0.0722 * 0.8) + 0.5);
    settings.balanceRatio = {3, 3, 3};
    settings.saturation = 0.0;
    EXPECT_EQ(pixel(renderer.render(settings, 0), 3, 3)[0], luminance);
    settings.gammaCurve = GammaCurve::User;
    settings.gamma = 0.5;
    EXPECT_NEAR(pixel(renderer.render(settings, 0), 3, 3)[0], std::sqrt(luminance * 4095.0), 0.6);
    settings.offsetX = 3;
    EXPECT_EQ(renderer.render(settings, 0).width(), 13);
}

TEST(Renderer, ChangesTheScene)
{
    Renderer renderer(idealSensor(16, 8), Scene());
    renderer.setScene(uniformScene(0.5F, 0.5F, 0.5F));
    PipelineSettings settings;
    settings.exposureTime = 1000.0;
    EXPECT_EQ(pixel(renderer.render(settings, 0), 3, 3), (std::array<int, 3>{128, 128, 128}));
}

TEST(Renderer, PassesTestImagesThroughTheStages)
{
    Renderer renderer(realisticSensor(), Scene());
    PipelineSettings settings = as(PixelType::BayerRG12);
    settings.testImage = TestImage::GrayRamp;
    settings.balanceRatio = {2.0, 1.0, 1.0};
    const COstriaImage image = renderer.render(settings, 0);
    EXPECT_EQ(pixel(image, 100, 0)[0], 200);
    EXPECT_EQ(pixel(image, 101, 0)[1], 101);
}

TEST(Renderer, AgreesWithTheObviousVersion)
{
    const SensorModel sensor = realisticSensor();
    const Scene scene;
    Renderer renderer(sensor, scene);
    const ObviousRenderer obvious(sensor, scene.project(sensor.width, sensor.height));
    PipelineSettings srgb;
    srgb.gammaCurve = GammaCurve::Srgb;
    for (const PipelineSettings& settings : {PipelineSettings(), srgb, everything()}) {
        const std::vector<double> expected = obvious.colors(settings, 11);
        const COstriaImage image = renderer.render(settings, 11);
        for (int y = 0; y < sensor.height; ++y)
            for (int x = 0; x < sensor.width; ++x)
                for (std::size_t c = 0; c < 3; ++c) {
                    const auto index = static_cast<std::size_t>(y * sensor.width + x);
                    const double byte =
                        std::min(std::floor(expected[3 * index + c] / 256 + 0.5), 255.0);
                    ASSERT_NEAR(pixel(image, x, y)[c], byte, 1.0) << x << ", " << y << ", " << c;
                }
    }
}

TEST(Renderer, AgreesWithTheObviousVersionOfTheMosaic)
{
    SensorModel sensor = realisticSensor();
    const Scene scene;
    for (const bool mono : {false, true}) {
        sensor.mono = mono;
        Renderer renderer(sensor, scene);
        const ObviousRenderer obvious(sensor, scene.project(sensor.width, sensor.height));
        const PipelineSettings settings = as(mono ? PixelType::Mono12 : PixelType::BayerRG12);
        const std::vector<double> expected = obvious.mosaic(settings, 2);
        const COstriaImage image = renderer.render(settings, 2);
        for (int y = 0; y < sensor.height; ++y)
            for (int x = 0; x < sensor.width; ++x) {
                const std::array<int, 3> rgb = pixel(image, x, y);
                const double counts =
                    std::floor(expected[static_cast<std::size_t>(y * sensor.width + x)] / 16 + 0.5);
                ASSERT_NEAR(*std::max_element(rgb.begin(), rgb.end()), counts, 1.02)
                    << x << ", " << y;
            }
    }
}

TEST(Renderer, RefusesWhatItCannotRender)
{
    Renderer renderer(idealSensor(16, 8), Scene());
    PipelineSettings settings = as(PixelType::YUV422_8);
    settings.width = 5; // pixels come in pairs
    EXPECT_THROW(renderer.render(settings, 0), std::invalid_argument);
    settings.width = 17;
    EXPECT_THROW(renderer.render(settings, 0), std::invalid_argument);
    settings.width = 6;
    EXPECT_NO_THROW(renderer.render(settings, 0));
}

} // namespace
} // namespace Cameras::Emulation
