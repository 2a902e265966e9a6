// SPDX-License-Identifier: Apache-2.0
// The pixels inside a quadrilateral, row by row.
#include "polygonrows.h"

#include <QRect>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ColorCalibration {
namespace {

/// Where the edges of a closed quadrilateral cross a row. A pixel is inside if an odd number of
/// crossings lies at or left of it.
class RowCrossings
{
public:
    explicit RowCrossings(const QPolygon& closed)
    {
        for (int i = 1; i < closed.size(); ++i)
            addEdge(closed.at(i - 1), closed.at(i));
    }

    /// Sorts the crossings of row y. An even number, as the outline is closed.
    void moveTo(int y)
    {
        m_count = 0;
        for (int i = 0; i < m_edgeCount; ++i) {
            const Edge& edge = m_edges[static_cast<std::size_t>(i)];
            if (y >= edge.y1 && y < edge.y2)
                m_crossings[static_cast<std::size_t>(m_count++)] =
                    edge.x1 + ((edge.x2 - edge.x1) / (edge.y2 - edge.y1)) * (y - edge.y1);
        }
        std::sort(m_crossings.begin(), m_crossings.begin() + m_count);
    }

    int count() const { return m_count; }
    double at(int i) const { return m_crossings[static_cast<std::size_t>(i)]; }

private:
    struct Edge
    {
        double x1;
        double y1;
        double x2;
        double y2;
    };

    void addEdge(const QPoint& from, const QPoint& to)
    {
        if (from.y() == to.y())
            return;
        const bool down = from.y() < to.y();
        const QPoint& upper = down ? from : to;
        const QPoint& lower = down ? to : from;
        m_edges[static_cast<std::size_t>(m_edgeCount++)] = {
            static_cast<double>(upper.x()), static_cast<double>(upper.y()),
            static_cast<double>(lower.x()), static_cast<double>(lower.y())};
    }

    std::array<Edge, 4> m_edges{};
    std::array<double, 4> m_crossings{};
    int m_edgeCount = 0;
    int m_count = 0;
};

/// The first pixel at or right of a crossing, held within [first, end].
int firstPixelFrom(double crossing, int first, int end)
{
    const double pixel = std::ceil(crossing);
    if (!(pixel > first))
        return first;
    return pixel < end ? static_cast<int>(pixel) : end;
}

} // namespace

std::vector<PixelRun> pixelRunsInside(const TrapezoidPoints& quadrilateral, const QSize& imageSize)
{
    const QPolygon polygon = quadrilateral.toPolygon();
    const QRect bounds = polygon.boundingRect();
    const int firstX = std::max(bounds.left(), 0);
    const int endX = std::min(bounds.right(), imageSize.width());
    const int firstY = std::max(bounds.top(), 0);
    const int endY = std::min(bounds.bottom(), imageSize.height());

    std::vector<PixelRun> runs;
    if (firstX >= endX || firstY >= endY)
        return runs;
    runs.reserve(static_cast<std::size_t>(endY - firstY));
    RowCrossings row(polygon);
    for (int y = firstY; y < endY; ++y) {
        row.moveTo(y);
        for (int i = 0; i + 1 < row.count(); i += 2) {
            const int x = firstPixelFrom(row.at(i), firstX, endX);
            const int end = firstPixelFrom(row.at(i + 1), firstX, endX);
            if (x < end)
                runs.push_back({y, x, end - x});
        }
    }
    return runs;
}

} // namespace ColorCalibration
