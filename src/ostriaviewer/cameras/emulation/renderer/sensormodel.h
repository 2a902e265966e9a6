// SPDX-License-Identifier: Apache-2.0
// The properties of an emulated sensor and its lens.
#pragma once

#include <array>
#include <cstdint>

namespace Cameras::Emulation {

/// The largest value of the sensor's converter.
constexpr int fullScale = 4095;

/// A 12-bit sensor behind a lens. The default is a good color camera. A plain value; reentrant.
///
/// Light of 1 in all channels reaches the converter's full scale after `fullScaleExposure` at a
/// gain of 0 dB.
struct SensorModel
{
    int width = 1920;  ///< at least 8, even
    int height = 1200; ///< at least 8, even
    bool mono = false; ///< no color filters: sees the light's luminance (ITU-R BT.709)

    double fullScaleExposure = 18200.0; ///< microseconds

    /// Rows: what red, green and blue pixels see of red, green and blue light. Not negative.
    std::array<double, 9> crosstalk = {0.78, 0.17, 0.05, 0.20, 0.66, 0.14, 0.04, 0.24, 0.72};

    /// Share of the signal that is lost at full scale, growing in proportion to the signal; for
    /// the red, green and blue pixels, or the first for a mono sensor. 0 to 0.5.
    std::array<double, 3> nonLinearity = {0.006, 0.008, 0.004};

    double vignetting = 0.03; ///< share of the light that is lost in the corners, 0 to 1

    double fullWell = 192000.0;    ///< electrons
    double conversionGain = 0.022; ///< counts an electron at 0 dB, above 0
    double readNoise = 7.0;        ///< electrons, standard deviation
    double pedestal = 64.0;        ///< counts that the sensor adds, 0 to 2047; whole
    std::uint64_t noiseSeed = 1;

    // Off for analysis, one at a time.
    bool noiseEnabled = true;
    bool roundingEnabled = true; ///< off: the converter keeps fractions of a count (to 1/16)
    bool nonLinearityEnabled = true;
    bool vignettingEnabled = true;
};

} // namespace Cameras::Emulation
