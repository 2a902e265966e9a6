// SPDX-License-Identifier: Apache-2.0
// Walks from the anchor block over the chart and fits the grid of patch centres.
#include "patchgridfit.h"

#include "anchorsearch.h"
#include "patchcolors.h"
#include "patchseeker.h"
#include "truncate.h"

#include <array>
#include <cmath>

namespace ColorCalibration {

namespace {

constexpr int SlotCount = 9;

/// Models of this many points and more are bilinear.
constexpr int BilinearFrom = 5;

struct Cell
{
    int row;
    int column;
};

/// The first three span the anchor block, the others reach out to the chart's far corners.
constexpr std::array<Cell, SlotCount> FitOrder{
    {{0, 1}, {2, 3}, {2, 1}, {3, 0}, {3, 1}, {1, 0}, {1, 5}, {0, 5}, {2, 5}}};

using FloatMatrix = dlib::matrix<float>;
using FloatColumn = dlib::matrix<float, 0, 1>;

float term(const Cell& cell, long index)
{
    switch (index) {
    case 0:
        return 1.0F;
    case 1:
        return float(cell.row);
    case 2:
        return float(cell.column);
    default:
        return float(cell.row) * float(cell.column);
    }
}

double distance(const QPoint& a, const QPoint& b)
{
    const double dx = double(a.x()) - b.x();
    const double dy = double(a.y()) - b.y();
    return std::sqrt(dx * dx + dy * dy);
}

/// Patch pitch from two points that are two patches apart in both axes.
float diagonalPitch(const QPoint& a, const QPoint& b)
{
    return static_cast<float>(distance(a, b)) / (std::sqrt(2.0F) + std::sqrt(2.0F));
}

/// Image coordinates as a polynomial in row and column.
class GridModel
{
public:
    /// Least squares over the first count points of the fit order.
    GridModel(const std::array<QPoint, SlotCount>& points, int count)
    {
        FloatMatrix design(count, count < BilinearFrom ? 3 : 4);
        FloatColumn x(count);
        FloatColumn y(count);
        for (int k = 0; k < count; ++k) {
            for (long c = 0; c < design.nc(); ++c)
                design(k, c) = term(FitOrder[std::size_t(k)], c);
            x(k) = float(points[std::size_t(k)].x());
            y(k) = float(points[std::size_t(k)].y());
        }
        const FloatMatrix inverse = dlib::pinv(design);
        m_x = inverse * x;
        m_y = inverse * y;
    }

    QPoint at(const Cell& cell) const
    {
        return {truncateToInt(evaluate(m_x, cell)), truncateToInt(evaluate(m_y, cell))};
    }

private:
    static float evaluate(const FloatColumn& coefficients, const Cell& cell)
    {
        float sum = 0.0F;
        for (long i = 0; i < coefficients.size(); ++i)
            sum += term(cell, i) * coefficients(i);
        return sum;
    }

    FloatColumn m_x;
    FloatColumn m_y;
};

} // namespace

QVector<QPoint> fitPatchCenters(const RgbBytes& image, const QVector<QPoint>& block)
{
    if (block.size() != AnchorPatchCount)
        return {};
    const GreenOfBytes green(image);
    const auto seek = [&green](const QPoint& start, double radius, int firstStep) {
        return seekPatchCenter(green, start, radius, 1, firstStep);
    };
    std::array<QPoint, SlotCount> points;
    const double coarse = 0.5 * static_cast<float>(distance(block[0], block[1]));
    points[0] = seek(block[0], coarse, 1);
    points[1] = seek(block[8], coarse, 1);

    // Once more with the longer rays alone.
    const float pitch = diagonalPitch(points[0], points[1]);
    const int longRays = truncateToInt(std::round(0.4 * pitch));
    points[0] = seek(points[0], 0.5 * pitch, longRays);
    points[1] = seek(points[1], 0.5 * pitch, longRays);

    const double radius = 0.5 * diagonalPitch(points[0], points[1]);
    points[2] = seek(block[6], radius, 1);
    // The last slot is not sought: no model is fitted behind it, so it would change nothing.
    for (int i = 3; i < SlotCount - 1; ++i)
        points[std::size_t(i)] = seek(GridModel(points, i).at(FitOrder[std::size_t(i)]), radius, 1);

    const GridModel model(points, SlotCount - 1);
    QVector<QPoint> centers;
    centers.reserve(PatchCount);
    for (int patch = 0; patch < PatchCount; ++patch)
        centers.append(model.at({patch / PatchColumns, patch % PatchColumns}));
    return centers;
}

} // namespace ColorCalibration
