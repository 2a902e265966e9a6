// SPDX-License-Identifier: Apache-2.0
// Writes the nine gains of the color transformation.
#pragma once

#include "iparametercollection.h"
#include "patchcolors.h"

namespace ColorCalibration {

/// Brings a color matrix into a camera, whose gains stand behind a selector. Not thread-safe.
class ColorMatrixWriter
{
public:
    explicit ColorMatrixWriter(Core::ParameterCollection::IParameterCollection& parameters);

    /// Writes the elements off the diagonal; each diagonal element becomes 1 minus the two others
    /// of its row as the camera has rounded them, so that grays stay gray. Refusals by the camera
    /// are logged and passed over, readings that fail are thrown.
    void write(const ColorMatrix& matrix) const;

    /// Whether the camera has no such gains at all.
    bool isMissing() const { return m_selector->isEmpty() || m_value->isEmpty(); }

private:
    void writeRow(const ColorMatrix& matrix, int row) const;

    /// \return  what the camera has made of it
    double writeGain(int row, int column, double gain) const;

    Core::ParameterCollection::EnumerationParameterPtr m_selector;
    Core::ParameterCollection::FloatParameterPtr m_value;
};

} // namespace ColorCalibration
