// SPDX-License-Identifier: Apache-2.0
// The emulated camera once more, pixel by pixel in double precision: slow and obvious.
#include "obviousrenderer.h"

#include "normaldeviates.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Cameras::Emulation {
namespace {

using Rgb = std::array<double, 3>;
constexpr double full = 65520.0;

/// 0 red, 1 green, 2 blue.
std::size_t filter(int x, int y)
{
    if (y % 2 == 0)
        return x % 2 == 0 ? 0 : 1;
    return x % 2 == 0 ? 1 : 2;
}

double clampToFull(double value)
{
    return std::min(std::max(value, 0.0), full);
}

/// \param h, s  hue and saturation at the primary and the secondary end of the sector
void shift(double& largest, double& middle, double& smallest, double sign, double hPrimary,
           double hSecondary, double sPrimary, double sSecondary)
{
    const double top = largest;
    const double d1 = largest - middle;
    const double d2 = middle - smallest;
    largest = top + sign * hSecondary * d2;
    middle = top - (sPrimary + sign * hPrimary) * d1 - sign * hSecondary * d2;
    smallest = top - (sPrimary - sign * hPrimary) * d1 - sSecondary * d2;
}

Rgb matrixTimes(const std::array<double, 9>& m, const Rgb& in)
{
    return {m[0] * in[0] + m[1] * in[1] + m[2] * in[2], m[3] * in[0] + m[4] * in[1] + m[5] * in[2],
            m[6] * in[0] + m[7] * in[1] + m[8] * in[2]};
}

Rgb hueSaturationBrightnessContrast(const PipelineSettings& s, const Rgb& in)
{
    const double luma = 0.299 * in[0] + 0.587 * in[1] + 0.114 * in[2];
    const double cb = (in[2] - luma) / 1.772;
    const double cr = (in[0] - luma) / 1.402;
    const double angle = s.hue * std::acos(-1.0) / 180.0;
    const double newCb = s.saturation * (std::cos(angle) * cb - std::sin(angle) * cr);
    const double newCr = s.saturation * (std::sin(angle) * cb + std::cos(angle) * cr);
    Rgb out = {luma + 1.402 * newCr, 0.0, luma + 1.772 * newCb};
    out[1] = (luma - 0.299 * out[0] - 0.114 * out[2]) / 0.587;
    for (double& channel : out)
        channel = (channel - full / 2) * (1 + s.contrast) + full / 2 + s.brightness * full;
    return out;
}

double tone(const PipelineSettings& s, double word)
{
    double value = word;
    if (s.lutEnabled)
        value =
            16.0 * s.lut[static_cast<std::size_t>(std::min(std::floor(value / 16 + 0.5), 4095.0))];
    value /= full;
    if (s.gammaCurve == GammaCurve::User)
        value = std::pow(value, s.gamma);
    else if (s.gammaCurve == GammaCurve::Srgb)
        value = value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
    return std::floor(value * full + 0.5);
}

Rgb finished(const PipelineSettings& s, Rgb color)
{
    const auto clampAll = [&color] {
        std::transform(color.begin(), color.end(), color.begin(), clampToFull);
    };
    if (s.colorMatrixEnabled)
        color = matrixTimes(s.colorMatrix, color);
    clampAll();
    if (s.sectorsEnabled)
        color = obviousSectors(s, color);
    clampAll();
    color = hueSaturationBrightnessContrast(s, color);
    clampAll();
    for (double& channel : color)
        channel = tone(s, std::floor(channel + 0.5));
    return color;
}

/// The mean, rounded half up, of the neighbours that have the wanted filter. At the border the
/// nearest pixel inside is taken.
Rgb interpolated(const std::vector<double>& mosaic, int width, int height, int atX, int atY)
{
    const int x = std::clamp(atX, 1, width - 2);
    const int y = std::clamp(atY, 1, height - 2);
    Rgb color{};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        double sum = 0.0;
        int count = 0;
        // Green at red or blue has four neighbours beside and above; the corners are red or blue.
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                if (filter(x + dx, y + dy) == channel &&
                    (filter(x, y) != channel || (dx == 0 && dy == 0))) {
                    sum += mosaic[static_cast<std::size_t>((y + dy) * width + x + dx)];
                    ++count;
                }
        color[channel] = std::floor(sum / count + 0.5);
    }
    return color;
}

} // namespace

Rgb obviousSectors(const PipelineSettings& settings, const Rgb& color)
{
    const std::array<double, 6>& h = settings.sectorHue;
    const std::array<double, 6>& s = settings.sectorSaturation;
    double r = color[0];
    double g = color[1];
    double b = color[2];
    if (r >= g && g >= b)
        shift(r, g, b, 1, h[0], h[1], s[0], s[1]);
    else if (g >= r && r >= b)
        shift(g, r, b, -1, h[2], h[1], s[2], s[1]);
    else if (g >= b && b >= r)
        shift(g, b, r, 1, h[2], h[3], s[2], s[3]);
    else if (b >= g && g >= r)
        shift(b, g, r, -1, h[4], h[3], s[4], s[3]);
    else if (b >= r && r >= g)
        shift(b, r, g, 1, h[4], h[5], s[4], s[5]);
    else
        shift(r, b, g, -1, h[0], h[5], s[0], s[5]);
    return {r, g, b};
}

ObviousRenderer::ObviousRenderer(const SensorModel& sensor, LightImage light)
    : m_sensor(sensor)
    , m_light(std::move(light))
{}

double ObviousRenderer::raw(const PipelineSettings& settings, std::uint64_t frame, int x,
                            int y) const
{
    const SensorModel& s = m_sensor;
    const float* light = m_light.at(x, y);
    const std::size_t channel = filter(x, y);
    double seen = 0.0;
    for (std::size_t c = 0; c < 3; ++c)
        seen += (s.mono ? std::array<double, 3>{0.2126, 0.7152, 0.0722}[c]
                        : s.crosstalk[3 * channel + c]) *
                double(light[c]);
    const double dx = x + 0.5 - s.width / 2.0;
    const double dy = y + 0.5 - s.height / 2.0;
    const double corner = (s.width * s.width + s.height * s.height) / 4.0;
    if (s.vignettingEnabled)
        seen *= 1 - s.vignetting * (dx * dx + dy * dy) / corner;
    seen *= settings.exposureTime / s.fullScaleExposure;
    if (s.nonLinearityEnabled)
        seen -= seen * s.nonLinearity[s.mono ? 0 : channel] * std::min(seen, 1.0);
    double electrons = std::min(seen * (4095 - s.pedestal) / s.conversionGain, s.fullWell);
    if (s.noiseEnabled) {
        float deviate = 0.0F;
        normalDeviates(s.noiseSeed, frame, x, y, 1, &deviate);
        electrons += std::sqrt(electrons + s.readNoise * s.readNoise) * double(deviate);
    }
    const double counts =
        s.pedestal + electrons * s.conversionGain * std::pow(10.0, settings.gain / 20);
    const double clipped = std::min(std::max(counts, 0.0), 4095.0);
    return s.roundingEnabled ? std::floor(clipped + 0.5) : clipped;
}

std::vector<double> ObviousRenderer::mosaic(const PipelineSettings& settings,
                                            std::uint64_t frame) const
{
    std::vector<double> words;
    for (int y = 0; y < m_sensor.height; ++y)
        for (int x = 0; x < m_sensor.width; ++x) {
            const double signal = (raw(settings, frame, x, y) - m_sensor.pedestal) * 4095 /
                                      (4095 - m_sensor.pedestal) +
                                  settings.blackLevel;
            const double ratio = m_sensor.mono ? 1.0 : settings.balanceRatio[filter(x, y)];
            words.push_back(std::floor(clampToFull(16 * signal * ratio) + 0.5));
        }
    return words;
}

std::vector<double> ObviousRenderer::colors(const PipelineSettings& settings,
                                            std::uint64_t frame) const
{
    const std::vector<double> words = mosaic(settings, frame);
    std::vector<double> result;
    for (int y = 0; y < m_sensor.height; ++y)
        for (int x = 0; x < m_sensor.width; ++x) {
            const Rgb color =
                m_sensor.mono
                    ? finished(settings, {words[static_cast<std::size_t>(y * m_sensor.width + x)],
                                          words[static_cast<std::size_t>(y * m_sensor.width + x)],
                                          words[static_cast<std::size_t>(y * m_sensor.width + x)]})
                    : finished(settings,
                               interpolated(words, m_sensor.width, m_sensor.height, x, y));
            result.insert(result.end(), color.begin(), color.end());
        }
    return result;
}

} // namespace Cameras::Emulation
