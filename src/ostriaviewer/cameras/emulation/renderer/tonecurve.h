// SPDX-License-Identifier: Apache-2.0
// Look-up table and gamma, the last stages on a channel's value.
#pragma once

#include "pipelinesettings.h"
#include "word.h"

#include <vector>

namespace Cameras::Emulation {

/// The camera's look-up table and its gamma as one table. The look-up table works on 12 bits: its
/// input is rounded to a count. Immutable; reentrant.
class ToneCurve
{
public:
    /// Neutral.
    ToneCurve() = default;

    explicit ToneCurve(const PipelineSettings& settings);

    /// Whether this is the curve of these settings.
    bool isFor(const PipelineSettings& settings) const;

    bool isNeutral() const { return m_table.empty(); }

    /// \param values  0 to full scale, changed in place
    void apply(Word* values, int count) const;

private:
    std::vector<std::uint16_t> m_lut; // empty: off
    GammaCurve m_curve = GammaCurve::Off;
    double m_gamma = 1.0;
    std::vector<Word> m_table; // empty: neutral
};

} // namespace Cameras::Emulation
