// SPDX-License-Identifier: Apache-2.0
// From the grid's outline to the quadrilaterals of the patches.
#include "patchtrapezoids.h"

#include "patchcolors.h"

#include <QLineF>
#include <QPointF>

#include <algorithm>

namespace ColorCalibration {
namespace {

/// Nearly parallel lines cross far beyond what an integer holds; such a corner is kept at the
/// edge of what it holds.
double withinInteger(double coordinate)
{
    constexpr double limit = 2147483646.0;
    return std::max(-limit, std::min(coordinate, limit));
}

QPoint crossing(const QLineF& horizontal, const QLineF& vertical)
{
    QPointF point(0.0, 0.0);
    horizontal.intersects(vertical, &point);
    return QPointF(withinInteger(point.x()), withinInteger(point.y())).toPoint();
}

/// The outline's edges, and the lines that join opposite edges at equal shares.
class OutlineEdges
{
public:
    explicit OutlineEdges(const TrapezoidPoints& outline)
        : m_top(outline.upperLeft(), outline.upperRight())
        , m_left(outline.upperLeft(), outline.lowerLeft())
        , m_bottom(outline.lowerLeft(), outline.lowerRight())
        , m_right(outline.upperRight(), outline.lowerRight())
    {}

    QLineF vertical(double share) const { return {m_top.pointAt(share), m_bottom.pointAt(share)}; }
    QLineF horizontal(double share) const
    {
        return {m_left.pointAt(share), m_right.pointAt(share)};
    }

private:
    QLineF m_top;
    QLineF m_left;
    QLineF m_bottom;
    QLineF m_right;
};

} // namespace

QVector<TrapezoidPoints> computePatchTrapezoids(const TrapezoidPoints& outline,
                                                int patchAreaPercent)
{
    const OutlineEdges edges(outline);
    const double margin = (100.0 - patchAreaPercent) / 100.0 * 0.5;

    QVector<TrapezoidPoints> patches;
    patches.reserve(PatchCount);
    for (int row = 0; row < PatchRows; ++row) {
        const double s0 = row * 0.25;
        const double s1 = (row + 1) * 0.25;
        const double rowInset = (s1 - s0) * margin;
        const QLineF top = edges.horizontal(s0 + rowInset);
        const QLineF bottom = edges.horizontal(s1 - rowInset);
        for (int column = 0; column < PatchColumns; ++column) {
            const double t0 = column / 6.0;
            const double t1 = (column + 1) / 6.0;
            const double columnInset = (t1 - t0) * margin;
            const QLineF left = edges.vertical(t0 + columnInset);
            const QLineF right = edges.vertical(t1 - columnInset);
            patches.append({crossing(top, left), crossing(top, right), crossing(bottom, left),
                            crossing(bottom, right)});
        }
    }
    return patches;
}

} // namespace ColorCalibration
