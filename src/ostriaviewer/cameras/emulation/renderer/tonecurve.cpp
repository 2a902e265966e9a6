// SPDX-License-Identifier: Apache-2.0
// Look-up table and gamma, the last stages on a channel's value.
#include "tonecurve.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Cameras::Emulation {
namespace {

/// IEC 61966-2-1, both on 0 to 1.
double linearToSrgb(double value)
{
    return value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
}

double curved(GammaCurve curve, double gamma, double value)
{
    if (curve == GammaCurve::User)
        return std::pow(value, gamma);
    return curve == GammaCurve::Srgb ? linearToSrgb(value) : value;
}

std::vector<std::uint16_t> lutOf(const PipelineSettings& settings)
{
    return settings.lutEnabled ? settings.lut : std::vector<std::uint16_t>();
}

} // namespace

ToneCurve::ToneCurve(const PipelineSettings& settings)
    : m_lut(lutOf(settings))
    , m_curve(settings.gammaCurve)
    , m_gamma(settings.gamma)
{
    const bool linear = m_curve == GammaCurve::Off || (m_curve == GammaCurve::User && m_gamma == 1);
    if (m_lut.empty() && linear)
        return;
    m_table.resize(wordFullScale + 1);
    for (int word = 0; word <= wordFullScale; ++word) {
        int input = word;
        if (!m_lut.empty()) {
            const int count = std::min((word + wordsPerCount / 2) / wordsPerCount, fullScale);
            input = wordsPerCount * m_lut[static_cast<std::size_t>(count)];
        }
        const double output = curved(m_curve, m_gamma, static_cast<double>(input) / wordFullScale);
        m_table[static_cast<std::size_t>(word)] =
            static_cast<Word>(std::clamp(output, 0.0, 1.0) * wordFullScale + 0.5);
    }
}

bool ToneCurve::isFor(const PipelineSettings& settings) const
{
    const bool sameLut = settings.lutEnabled ? m_lut == settings.lut : m_lut.empty();
    return sameLut && m_curve == settings.gammaCurve && m_gamma == settings.gamma;
}

void ToneCurve::apply(Word* values, int count) const
{
    if (!isNeutral())
        std::transform(values, values + count, values,
                       [this](Word value) { return m_table[value]; });
}

} // namespace Cameras::Emulation
