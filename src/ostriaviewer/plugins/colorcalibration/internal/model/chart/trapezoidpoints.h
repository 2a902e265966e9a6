// SPDX-License-Identifier: Apache-2.0
// A quadrilateral in image pixels: the grid's outline, or one patch.
#pragma once

#include <QPoint>
#include <QPolygon>

namespace ColorCalibration {

/// Four corners in image pixels. A plain value that checks nothing: crossed, flat and far away
/// quadrilaterals are all allowed. Reentrant.
class TrapezoidPoints
{
public:
    /// The outline that stands where none was set: (0, 0), (2, 0), (0, 2), (2, 2).
    TrapezoidPoints() = default;
    TrapezoidPoints(const QPoint& upperLeft, const QPoint& upperRight, const QPoint& lowerLeft,
                    const QPoint& lowerRight);

    QPoint upperLeft() const { return m_upperLeft; }
    QPoint upperRight() const { return m_upperRight; }
    QPoint lowerLeft() const { return m_lowerLeft; }
    QPoint lowerRight() const { return m_lowerRight; }
    void setUpperLeft(const QPoint& point) { m_upperLeft = point; }
    void setUpperRight(const QPoint& point) { m_upperRight = point; }
    void setLowerLeft(const QPoint& point) { m_lowerLeft = point; }
    void setLowerRight(const QPoint& point) { m_lowerRight = point; }

    /// Five points: upper left, upper right, lower right, lower left, upper left.
    QPolygon toPolygon() const;

    bool operator==(const TrapezoidPoints& other) const;
    bool operator!=(const TrapezoidPoints& other) const { return !(*this == other); }

private:
    QPoint m_upperLeft{0, 0};
    QPoint m_upperRight{2, 0};
    QPoint m_lowerLeft{0, 2};
    QPoint m_lowerRight{2, 2};
};

} // namespace ColorCalibration
