// SPDX-License-Identifier: Apache-2.0
// The stages between demosaicing and the tone curve.
#include "colorstages.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Cameras::Emulation {
namespace {

constexpr int chunkLength = 256;
constexpr double degree = 3.14159265358979323846 / 180.0;

float smaller(float a, float b)
{
    return a < b ? a : b;
}

float larger(float a, float b)
{
    return a > b ? a : b;
}

float clamped(float value)
{
    return smaller(larger(value, 0.0F), static_cast<float>(wordFullScale));
}

std::array<float, 9> toFloat(const std::array<double, 9>& matrix)
{
    std::array<float, 9> result{};
    std::transform(matrix.begin(), matrix.end(), result.begin(),
                   [](double value) { return static_cast<float>(value); });
    return result;
}

/// Turns the color difference (Cb, Cr of ITU-R BT.601) by hue, scales it by saturation, and scales
/// all about half of full scale by the contrast.
std::array<double, 9> adjustmentMatrix(const PipelineSettings& settings)
{
    constexpr std::array<double, 3> luma = {0.299, 0.587, 0.114};
    constexpr double cbScale = 1.772;
    constexpr double crScale = 1.402;
    const double keep = settings.saturation * std::cos(settings.hue * degree);
    const double turn = settings.saturation * std::sin(settings.hue * degree);
    std::array<double, 9> matrix{};
    for (std::size_t in = 0; in < 3; ++in) {
        const double cb = ((in == 2 ? 1.0 : 0.0) - luma[in]) / cbScale;
        const double cr = ((in == 0 ? 1.0 : 0.0) - luma[in]) / crScale;
        const double red = luma[in] + crScale * (turn * cb + keep * cr);
        const double blue = luma[in] + cbScale * (keep * cb - turn * cr);
        matrix[in] = red;
        matrix[3 + in] = (luma[in] - luma[0] * red - luma[2] * blue) / luma[1];
        matrix[6 + in] = blue;
    }
    for (double& gain : matrix)
        gain *= 1.0 + settings.contrast;
    return matrix;
}

// A color is its largest channel for all three, less what its primary (how far the largest stands
// above the middle) and its secondary (the middle above the smallest) take away. Following the
// circle red, green, blue, every primary acts like red and every secondary like yellow.
std::array<std::array<float, 3>, 6> sectorEffects(const PipelineSettings& settings)
{
    std::array<std::array<float, 3>, 6> effects{};
    for (std::size_t turn = 0; turn < 3; ++turn) {
        const std::size_t next = (turn + 1) % 3;
        const std::size_t last = (turn + 2) % 3;
        const double hue = settings.sectorHue[2 * turn];
        const double saturation = settings.sectorSaturation[2 * turn];
        effects[2 * turn][next] = static_cast<float>(-(saturation + hue));
        effects[2 * turn][last] = static_cast<float>(-(saturation - hue));

        const double secondaryHue = settings.sectorHue[2 * turn + 1];
        effects[2 * turn + 1][turn] = static_cast<float>(secondaryHue);
        effects[2 * turn + 1][next] = static_cast<float>(-secondaryHue);
        effects[2 * turn + 1][last] = static_cast<float>(-settings.sectorSaturation[2 * turn + 1]);
    }
    return effects;
}

bool isNeutralAdjustment(const PipelineSettings& settings)
{
    return settings.hue == 0.0 && settings.saturation == 1.0 && settings.brightness == 0.0 &&
           settings.contrast == 0.0;
}

} // namespace

// Planes instead of triples, so that the compiler can work on several pixels at once.
struct ColorStages::Chunk
{
    float red[chunkLength];
    float green[chunkLength];
    float blue[chunkLength];

    void load(const Word* rgb, int count)
    {
        for (int i = 0; i < count; ++i) {
            red[i] = rgb[3 * i];
            green[i] = rgb[3 * i + 1];
            blue[i] = rgb[3 * i + 2];
        }
    }

    void store(Word* rgb, int count) const
    {
        for (int i = 0; i < count; ++i) {
            rgb[3 * i] = roundedToWord(red[i]);
            rgb[3 * i + 1] = roundedToWord(green[i]);
            rgb[3 * i + 2] = roundedToWord(blue[i]);
        }
    }

    void map(const ColorMap& with, int count)
    {
        const std::array<float, 9> m = with.matrix;
        const float offset = with.offset;
        for (int i = 0; i < count; ++i) {
            const float r = red[i];
            const float g = green[i];
            const float b = blue[i];
            red[i] = clamped(m[0] * r + m[1] * g + m[2] * b + offset);
            green[i] = clamped(m[3] * r + m[4] * g + m[5] * b + offset);
            blue[i] = clamped(m[6] * r + m[7] * g + m[8] * b + offset);
        }
    }
};

ColorStages::ColorStages(const PipelineSettings& settings)
    : m_useMatrix(settings.colorMatrixEnabled &&
                  settings.colorMatrix != PipelineSettings().colorMatrix)
    , m_useSectors(settings.sectorsEnabled &&
                   (settings.sectorHue != PipelineSettings().sectorHue ||
                    settings.sectorSaturation != PipelineSettings().sectorSaturation))
    , m_useAdjustment(!isNeutralAdjustment(settings))
    , m_matrix{toFloat(settings.colorMatrix), 0.0F}
    , m_adjustment{toFloat(adjustmentMatrix(settings)),
                   static_cast<float>(wordFullScale *
                                      (settings.brightness - settings.contrast / 2.0))}
    , m_contrast(static_cast<float>(1.0 + settings.contrast))
    , m_sectors(sectorEffects(settings))
{}

void ColorStages::adjustSectors(Chunk& chunk, int count) const
{
    const std::array<std::array<float, 3>, 6> e = m_sectors;
    for (int i = 0; i < count; ++i) {
        const float r = chunk.red[i];
        const float g = chunk.green[i];
        const float b = chunk.blue[i];
        const float largest = larger(r, larger(g, b));
        const float primary[3] = {larger(r - larger(g, b), 0.0F), larger(g - larger(b, r), 0.0F),
                                  larger(b - larger(r, g), 0.0F)};
        const float secondary[3] = {larger(smaller(r, g) - b, 0.0F),
                                    larger(smaller(g, b) - r, 0.0F),
                                    larger(smaller(b, r) - g, 0.0F)};
        const auto channel = [&](std::size_t c) {
            return clamped(largest + primary[0] * e[0][c] + secondary[0] * e[1][c] +
                           primary[1] * e[2][c] + secondary[1] * e[3][c] + primary[2] * e[4][c] +
                           secondary[2] * e[5][c]);
        };
        chunk.red[i] = channel(0);
        chunk.green[i] = channel(1);
        chunk.blue[i] = channel(2);
    }
}

void ColorStages::apply(Word* rgb, int count) const
{
    Chunk chunk;
    for (int begin = 0; begin < count; begin += chunkLength, rgb += 3 * chunkLength) {
        const int length = std::min(chunkLength, count - begin);
        chunk.load(rgb, length);
        if (m_useMatrix)
            chunk.map(m_matrix, length);
        if (m_useSectors)
            adjustSectors(chunk, length);
        if (m_useAdjustment)
            chunk.map(m_adjustment, length);
        chunk.store(rgb, length);
    }
}

void ColorStages::applyToMono(Word* values, int count) const
{
    if (!m_useAdjustment)
        return;
    for (int i = 0; i < count; ++i) {
        const float adjusted = clamped(m_contrast * values[i] + m_adjustment.offset);
        values[i] = roundedToWord(adjusted);
    }
}

} // namespace Cameras::Emulation
