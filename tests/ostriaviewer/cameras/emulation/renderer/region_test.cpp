// SPDX-License-Identifier: Apache-2.0
// Which settings a sensor takes.
#include "region.h"

#include "testscenes.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

void expectRegion(const Region& region, int x, int y, int width, int height)
{
    EXPECT_EQ(region.x, x);
    EXPECT_EQ(region.y, y);
    EXPECT_EQ(region.width, width);
    EXPECT_EQ(region.height, height);
}

TEST(Region, IsTheWholeSensorUnlessSettingsSayMore)
{
    const SensorModel sensor = idealSensor(16, 8);
    PipelineSettings settings;
    expectRegion(checkedRegion(settings, sensor), 0, 0, 16, 8);
    settings.offsetX = 6;
    settings.offsetY = 2;
    settings.height = 3;
    expectRegion(checkedRegion(settings, sensor), 6, 2, 10, 3);
}

TEST(Region, GrowsByAnEvenMarginWithinTheSensor)
{
    const SensorModel sensor = idealSensor(64, 32);
    expectRegion(withMargin({20, 10, 8, 6}, sensor), 16, 6, 16, 14);
    expectRegion(withMargin({62, 0, 2, 32}, sensor), 58, 0, 6, 32);
}

template <typename Change>
void expectRefused(const SensorModel& sensor, Change change)
{
    PipelineSettings settings;
    settings.pixelFormat = sensor.mono ? PixelType::Mono8 : PixelType::RGB8;
    EXPECT_NO_THROW(static_cast<void>(checkedRegion(settings, sensor)));
    change(settings);
    EXPECT_THROW(static_cast<void>(checkedRegion(settings, sensor)), std::invalid_argument);
}

TEST(Region, RefusesRegionsThatLeaveTheSensor)
{
    const SensorModel sensor = idealSensor(16, 8);
    expectRefused(sensor, [](PipelineSettings& s) { s.offsetX = 16; });
    expectRefused(sensor, [](PipelineSettings& s) { s.offsetX = -2; });
    expectRefused(sensor, [](PipelineSettings& s) { s.offsetX = 1; });
    expectRefused(sensor, [](PipelineSettings& s) { s.offsetY = 3; });
    expectRefused(sensor, [](PipelineSettings& s) { s.width = 17; });
    expectRefused(sensor, [](PipelineSettings& s) { s.height = -1; });
    expectRefused(sensor, [](PipelineSettings& s) {
        s.offsetX = 8;
        s.width = 2147483647;
    });
}

TEST(Region, RefusesFormatsThatTheSensorHasNot)
{
    const SensorModel color = idealSensor(16, 8);
    for (const PixelType type :
         {PixelType::Undefined, PixelType::Mono16, PixelType::BayerBG8, static_cast<PixelType>(77)})
        expectRefused(color, [type](PipelineSettings& s) { s.pixelFormat = type; });
    SensorModel mono = color;
    mono.mono = true;
    for (const PixelType type :
         {PixelType::RGB8, PixelType::RGB16, PixelType::BayerRG8, PixelType::YUV422_8})
        expectRefused(mono, [type](PipelineSettings& s) { s.pixelFormat = type; });
}

TEST(Region, RefusesValuesOutOfTheirRange)
{
    const SensorModel sensor = idealSensor(16, 8);
    for (const double bad : {notANumber, infinity, -infinity, -1e30, 1e30}) {
        expectRefused(sensor, [bad](PipelineSettings& s) { s.exposureTime = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.gain = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.blackLevel = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.balanceRatio[1] = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.colorMatrix[8] = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.sectorHue[5] = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.sectorSaturation[0] = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.hue = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.saturation = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.brightness = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.contrast = bad; });
        expectRefused(sensor, [bad](PipelineSettings& s) { s.gamma = bad; });
    }
    expectRefused(sensor, [](PipelineSettings& s) { s.lutEnabled = true; });
    expectRefused(sensor, [](PipelineSettings& s) {
        s.lutEnabled = true;
        s.lut.assign(4096, 4096);
    });
}

} // namespace
} // namespace Cameras::Emulation
