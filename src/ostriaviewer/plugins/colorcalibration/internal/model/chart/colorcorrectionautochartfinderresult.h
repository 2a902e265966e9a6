// SPDX-License-Identifier: Apache-2.0
// What the automatic chart finder answers.
#pragma once

#include <QMetaType>
#include <QPoint>

namespace ColorCalibration {

/// The chart's outer corners in pixels of the image that was searched. A plain value, known to
/// Qt's meta-type system, so that it can travel in signals. Reentrant.
struct ColorCorrectionAutoChartFinderResult
{
    QPoint upperLeft;
    QPoint upperRight;
    QPoint lowerLeft;
    QPoint lowerRight;

    /// The corners form a plausible, upright quadrilateral inside the image. It does not mean that
    /// what was found is a chart. Corners that fail are kept.
    bool valid = false;

    bool operator==(const ColorCorrectionAutoChartFinderResult& other) const
    {
        return upperLeft == other.upperLeft && upperRight == other.upperRight &&
               lowerLeft == other.lowerLeft && lowerRight == other.lowerRight &&
               valid == other.valid;
    }
};

} // namespace ColorCalibration

Q_DECLARE_METATYPE(ColorCalibration::ColorCorrectionAutoChartFinderResult)
