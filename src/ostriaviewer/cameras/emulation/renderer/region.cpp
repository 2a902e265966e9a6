// SPDX-License-Identifier: Apache-2.0
// The part of a sensor that a frame shows.
#include "region.h"

#include "requirement.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

// Even, and more than the two pixels that demosaicing looks at.
constexpr int margin = 4;

bool suits(PixelType type, const SensorModel& sensor)
{
    switch (type) {
    case PixelType::Mono8:
    case PixelType::Mono12:
        return true;
    case PixelType::BayerRG8:
    case PixelType::BayerRG12:
    case PixelType::RGB8:
    case PixelType::RGB16:
    case PixelType::BGR8:
    case PixelType::BGRa8:
    case PixelType::YUV422_8:
        return !sensor.mono;
    default:
        return false;
    }
}

void checkColors(const PipelineSettings& settings)
{
    for (const double ratio : settings.balanceRatio)
        requireRange("A balance ratio", ratio, 0.0, 1000.0);
    for (const double gain : settings.colorMatrix)
        requireRange("A gain of the color matrix", gain, -1000.0, 1000.0);
    for (const double hue : settings.sectorHue)
        requireRange("A sector's hue", hue, -1000.0, 1000.0);
    for (const double saturation : settings.sectorSaturation)
        requireRange("A sector's saturation", saturation, -1000.0, 1000.0);
    requireRange("The hue", settings.hue, -360.0, 360.0);
    requireRange("The saturation", settings.saturation, 0.0, 1000.0);
    requireRange("The brightness", settings.brightness, -1.0, 1.0);
    requireRange("The contrast", settings.contrast, -1.0, 1.0);
}

void checkLut(const std::vector<std::uint16_t>& lut)
{
    requireRange("The number of look-up table entries", static_cast<double>(lut.size()),
                 fullScale + 1, fullScale + 1);
    requireRange("The largest look-up table entry", *std::max_element(lut.begin(), lut.end()), 0,
                 fullScale);
}

void checkValues(const PipelineSettings& settings)
{
    requireRange("The exposure time", settings.exposureTime, 0.0, 1e10);
    requireRange("The gain", settings.gain, -100.0, 100.0);
    requireRange("The black level", settings.blackLevel, -fullScale, fullScale);
    checkColors(settings);
    if (settings.lutEnabled)
        checkLut(settings.lut);
    requireRange("The gamma", settings.gamma, 1e-3, 1e3);
}

} // namespace

Region checkedRegion(const PipelineSettings& settings, const SensorModel& sensor)
{
    checkValues(settings);
    if (!suits(settings.pixelFormat, sensor))
        throw std::invalid_argument(std::string("The sensor cannot deliver ") +
                                    Ostria::pixelTypeName(settings.pixelFormat) + ".");
    requireRange("The region's x offset", settings.offsetX, 0, sensor.width - 1);
    requireRange("The region's y offset", settings.offsetY, 0, sensor.height - 1);
    requireRange("The region's width", settings.width, 0, sensor.width - settings.offsetX);
    requireRange("The region's height", settings.height, 0, sensor.height - settings.offsetY);
    if (!sensor.mono && (settings.offsetX % 2 != 0 || settings.offsetY % 2 != 0))
        throw std::invalid_argument("A color sensor's region must begin at even offsets.");
    Region region{settings.offsetX, settings.offsetY, settings.width, settings.height};
    if (region.width == 0)
        region.width = sensor.width - region.x;
    if (region.height == 0)
        region.height = sensor.height - region.y;
    return region;
}

Region withMargin(const Region& region, const SensorModel& sensor)
{
    Region grown;
    grown.x = std::max(region.x - margin, 0);
    grown.y = std::max(region.y - margin, 0);
    grown.width = std::min(region.x + region.width + margin, sensor.width) - grown.x;
    grown.height = std::min(region.y + region.height + margin, sensor.height) - grown.y;
    return grown;
}

} // namespace Cameras::Emulation
