// SPDX-License-Identifier: Apache-2.0
// The stages between demosaicing and the tone curve.
#pragma once

#include "pipelinesettings.h"
#include "word.h"

#include <array>

namespace Cameras::Emulation {

/// A linear map of a color with an offset, clamped to 0 to full scale.
struct ColorMap
{
    std::array<float, 9> matrix; ///< rows of the output
    float offset;                ///< words
};

/// Color transformation matrix; hue and saturation by six sectors; hue, saturation, brightness and
/// contrast. Each that is neutral costs nothing. Immutable; reentrant.
class ColorStages
{
public:
    explicit ColorStages(const PipelineSettings& settings);

    bool isNeutral() const { return !m_useMatrix && !m_useSectors && !m_useAdjustment; }

    /// \param rgb  3 * count words, changed in place
    void apply(Word* rgb, int count) const;

    /// The same for gray pixels: brightness and contrast are all that can change them.
    void applyToMono(Word* values, int count) const;

private:
    struct Chunk;

    void adjustSectors(Chunk& chunk, int count) const;

    bool m_useMatrix;
    bool m_useSectors;
    bool m_useAdjustment;
    ColorMap m_matrix;
    ColorMap m_adjustment;
    float m_contrast;
    /// What one unit of red, yellow, green, cyan, blue or magenta in a color adds to red, green and
    /// blue beside the largest channel.
    std::array<std::array<float, 3>, 6> m_sectors;
};

} // namespace Cameras::Emulation
