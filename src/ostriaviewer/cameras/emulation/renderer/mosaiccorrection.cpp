// SPDX-License-Identifier: Apache-2.0
// Black level and white balance, the stages before demosaicing.
#include "mosaiccorrection.h"

#include "sensor.h"

namespace Cameras::Emulation {

MosaicCorrection::MosaicCorrection(const PipelineSettings& settings, const SensorModel& sensor)
    : m_pedestal(static_cast<float>(sensor.pedestal))
    , m_stretch(static_cast<float>(wordFullScale / (fullScale - sensor.pedestal)))
    , m_blackLevel(static_cast<float>(wordsPerCount * settings.blackLevel))
    , m_ratio()
{
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x) {
            const auto channel = static_cast<std::size_t>(filterAt(x, y));
            m_ratio[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] =
                sensor.mono ? 1.0F : static_cast<float>(settings.balanceRatio[channel]);
        }
}

void MosaicCorrection::apply(const float* raw, int x, int y, int count, Word* words) const
{
    const std::array<float, 2>& ratio = m_ratio[static_cast<std::size_t>(y % 2)];
    const float first = ratio[static_cast<std::size_t>(x % 2)];
    const float second = ratio[static_cast<std::size_t>((x + 1) % 2)];
    constexpr auto largest = static_cast<float>(wordFullScale);
    for (int i = 0; i < count; ++i) {
        const float signal = (raw[i] - m_pedestal) * m_stretch + m_blackLevel;
        const float balanced = signal * (i % 2 == 0 ? first : second);
        const float positive = balanced > 0.0F ? balanced : 0.0F;
        const float clamped = positive < largest ? positive : largest;
        words[i] = roundedToWord(clamped);
    }
}

} // namespace Cameras::Emulation
