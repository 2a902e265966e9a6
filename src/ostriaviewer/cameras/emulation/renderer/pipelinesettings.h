// SPDX-License-Identifier: Apache-2.0
// What an emulated camera's features ask of its pixels.
#pragma once

#include "pixeltype.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Cameras::Emulation {

enum class GammaCurve : std::uint8_t {
    Off,  ///< linear
    User, ///< output = input^gamma, both on 0 to 1
    Srgb  ///< IEC 61966-2-1
};

enum class Demosaicing : std::uint8_t {
    Simple,     ///< bilinear
    HighQuality ///< gradient-corrected
};

/// Patterns that stand in for the sensor's 12-bit values; all later stages work on them.
enum class TestImage : std::uint8_t {
    Off,
    GrayRamp,       ///< one count more a column, from 0 to 4095 and again
    MovingGrayRamp, ///< the same, moved on by one column a frame
    ColorBars       ///< white, yellow, cyan, green, magenta, red, blue, black, at 75 percent
};

/// One camera's feature values as the renderer needs them. A default-constructed one is neutral:
/// linear, nothing corrected, the whole sensor. Values stand as the camera has rounded and limited
/// them. A plain value; reentrant.
struct PipelineSettings
{
    double exposureTime = 20000.0; ///< microseconds, not negative
    double gain = 0.0;             ///< analog, dB

    double blackLevel = 0.0; ///< added to the signal, in counts of 12 bits
    std::array<double, 3> balanceRatio = {1.0, 1.0, 1.0}; ///< red, green, blue; not negative

    Demosaicing demosaicing = Demosaicing::Simple;

    bool colorMatrixEnabled = false;
    /// Rows of the output: Gain00, Gain01, Gain02, Gain10, ...
    std::array<double, 9> colorMatrix = {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};

    bool sectorsEnabled = false;
    /// Red, yellow, green, cyan, blue, magenta.
    std::array<double, 6> sectorHue = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
    std::array<double, 6> sectorSaturation = {1.0, 1.0, 1.0, 1.0, 1.0, 1.0};

    double hue = 0.0;        ///< degrees, from red towards yellow
    double saturation = 1.0; ///< factor on the color difference, 0 is gray
    double brightness = 0.0; ///< -1 to 1, a share of full scale that is added
    double contrast = 0.0;   ///< -1 (flat) to 1 (doubled), about half of full scale

    bool lutEnabled = false;
    std::vector<std::uint16_t> lut; ///< if enabled 4096 entries of 0 to 4095

    GammaCurve gammaCurve = GammaCurve::Off;
    double gamma = 1.0; ///< exponent of GammaCurve::User, above 0

    TestImage testImage = TestImage::Off;

    /// Mono8, Mono12, and with a color sensor BayerRG8, BayerRG12, RGB8, BGR8, YUV422_8, BGRa8.
    /// Bayer formats carry the mosaic after black level and white balance, mono formats of a color
    /// sensor the luma (ITU-R BT.601) of the finished colors.
    Ostria::PixelType pixelFormat = Ostria::PixelType::RGB8;

    /// The region of the sensor that is delivered. A color sensor's offsets are even.
    int offsetX = 0;
    int offsetY = 0;
    int width = 0;  ///< 0: up to the sensor's right edge
    int height = 0; ///< 0: up to the sensor's lower edge
};

} // namespace Cameras::Emulation
