// SPDX-License-Identifier: Apache-2.0
// A quadrilateral in image pixels.
#include "trapezoidpoints.h"

namespace ColorCalibration {

TrapezoidPoints::TrapezoidPoints(const QPoint& upperLeft, const QPoint& upperRight,
                                 const QPoint& lowerLeft, const QPoint& lowerRight)
    : m_upperLeft(upperLeft)
    , m_upperRight(upperRight)
    , m_lowerLeft(lowerLeft)
    , m_lowerRight(lowerRight)
{}

QPolygon TrapezoidPoints::toPolygon() const
{
    return QPolygon({m_upperLeft, m_upperRight, m_lowerRight, m_lowerLeft, m_upperLeft});
}

bool TrapezoidPoints::operator==(const TrapezoidPoints& other) const
{
    return m_upperLeft == other.m_upperLeft && m_upperRight == other.m_upperRight &&
           m_lowerLeft == other.m_lowerLeft && m_lowerRight == other.m_lowerRight;
}

} // namespace ColorCalibration
