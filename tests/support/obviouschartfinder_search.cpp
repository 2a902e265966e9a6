// SPDX-License-Identifier: Apache-2.0
// The chart finder pixel by pixel: the search for the anchor block and the walk over the patches.
#include "charttargets.h"
#include "obviouschartfinder.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ColorCalibration::Obvious {

namespace {

const QColor Red(1, 0, 0, 255);
const QColor Green(0, 1, 0, 255);
const QColor Blue(0, 0, 1, 255);

std::vector<float> targetRatios(int numerator, int denominator)
{
    const PatchColors targets = ChartTargets().TargetColors();
    std::vector<float> ratios;
    for (const int patch : {1, 2, 3, 7, 8, 9, 13, 14, 15})
        ratios.push_back(
            static_cast<float>(targets(patch, numerator) / targets(patch, denominator)));
    return ratios;
}

float sumOfSquares(const std::vector<float>& values)
{
    float sum = 0;
    for (const float value : values)
        sum += value * value;
    return sum;
}

float similarity(const std::vector<float>& sample, const std::vector<float>& ratios)
{
    float sum = 0;
    for (int i = 0; i < 9; ++i)
        sum += sample[i] * ratios[i];
    return sum / std::sqrt(sumOfSquares(sample) * sumOfSquares(ratios));
}

QPoint truncated(float x, float y)
{
    return {static_cast<int>(x), static_cast<int>(y)};
}

QVector<QPoint> samplePoints(int x, int y, int p)
{
    QVector<QPoint> points;
    for (int r = -1; r <= 1; ++r)
        for (int c = -1; c <= 1; ++c)
            points.append(truncated(roundf(float(p) * float(c) + float(x)),
                                    roundf(float(p) * float(r) + float(y))));
    return points;
}

std::vector<float> valuesAt(const dlib::matrix<float>& values, const QVector<QPoint>& points)
{
    std::vector<float> result;
    for (const QPoint& point : points)
        result.push_back(values(point.x(), point.y()));
    return result;
}

float distance(const QPoint& a, const QPoint& b)
{
    return static_cast<float>(
        std::sqrt(std::pow(double(a.x() - b.x()), 2) + std::pow(double(a.y() - b.y()), 2)));
}

const int Row[9] = {0, 2, 2, 3, 3, 1, 1, 0, 2};
const int Column[9] = {1, 3, 1, 0, 1, 0, 5, 5, 5};

/// The nine slots of the walk over the chart, and the model of the grid that was fitted last.
class Walk
{
public:
    explicit Walk(const QVector<QPoint>& block)
    {
        for (int k = 0; k < 9; ++k)
            store(k, block[k]);
    }

    void store(int k, const QPoint& point)
    {
        m_x[k] = float(point.x());
        m_y[k] = float(point.y());
    }

    QPoint slot(int k) const { return truncated(m_x[k], m_y[k]); }

    void fit(int count)
    {
        dlib::matrix<float> M(count, count < 5 ? 3 : 4);
        dlib::matrix<float> x(count, 1);
        dlib::matrix<float> y(count, 1);
        for (int k = 0; k < count; ++k) {
            dlib::set_rowm(M, k) = terms(Row[k], Column[k], M.nc());
            x(k) = m_x[k];
            y(k) = m_y[k];
        }
        const dlib::matrix<float> W = dlib::pinv(M);
        m_cx = W * x;
        m_cy = W * y;
    }

    QPoint predict(int row, int column) const
    {
        const dlib::matrix<float> q = terms(row, column, m_cx.nr());
        return truncated(dlib::matrix<float>(q * m_cx)(0), dlib::matrix<float>(q * m_cy)(0));
    }

private:
    static dlib::matrix<float> terms(int row, int column, long columns)
    {
        dlib::matrix<float> q(1, 4);
        q = 1, float(row), float(column), float(row * column);
        return dlib::colm(q, dlib::range(0, columns - 1));
    }

    float m_x[9] = {};
    float m_y[9] = {};
    dlib::matrix<float> m_cx;
    dlib::matrix<float> m_cy;
};

} // namespace

QVector<QPoint> findAnchorBlock(const QImage& image)
{
    const int w = image.width();
    const int h = image.height();
    const double P = std::min(w / 6.0, h * 0.25);
    const double m = std::max(20.0, P * 0.125);
    const double n = std::ceil(std::log(P / m) / -std::log(0.75));
    const dlib::matrix<float> A = channelRatio(keepChannel(Red, image), keepChannel(Green, image));
    const dlib::matrix<float> B = channelRatio(keepChannel(Blue, image), keepChannel(Green, image));
    const std::vector<float> ratiosA = targetRatios(0, 1);
    const std::vector<float> ratiosB = targetRatios(2, 1);
    float bestScore = 1.1754944e-38F;
    QVector<QPoint> best(9);
    for (int s = 0; s < n; ++s) {
        const int p = static_cast<int>(std::round(std::pow(0.75, s) * P));
        const int q = static_cast<int>(std::round(p / 3));
        const int e = static_cast<int>(std::round(1.5 * p));
        for (int x = 2 * p; x < w - 2 * p; x += q) {
            for (int y = e; y < h - e; y += q) {
                const QVector<QPoint> points = samplePoints(x, y, p);
                const float score = similarity(valuesAt(A, points), ratiosA) *
                                    similarity(valuesAt(B, points), ratiosB);
                if (score > bestScore) {
                    bestScore = score;
                    best = points;
                }
            }
        }
    }
    return best;
}

float weightedRaySum(const QImage& image, QPoint start, int stepY, int stepX, int length)
{
    float sum = 0;
    for (int i = 0; i < length; ++i) {
        const QPoint point = start + i * QPoint(stepX, stepY);
        if (image.valid(point))
            sum = static_cast<float>(sum + image.pixelColor(point).greenF() * (length - i));
    }
    return sum;
}

QPoint seekPatchCenter(const QImage& image, QPoint start, double radius, int sign, int firstStep)
{
    QPoint point = start;
    for (int k = firstStep + 1; k <= std::round(radius); ++k) {
        const float l = weightedRaySum(image, point, 0, -1, k);
        const float r = weightedRaySum(image, point, 0, 1, k);
        if (l != r)
            point.rx() += float(sign) * l > float(sign) * r ? -1 : 1;
        const float u = weightedRaySum(image, point, -1, 0, k);
        const float d = weightedRaySum(image, point, 1, 0, k);
        if (u != d)
            point.ry() += float(sign) * u > float(sign) * d ? -1 : 1;
    }
    return point;
}

QVector<QPoint> fitPatchCenters(const QImage& image, const QVector<QPoint>& block)
{
    const QImage G = keepChannel(Green, image);
    const float twoDiagonals = std::sqrt(2.0F) + std::sqrt(2.0F);
    Walk walk(block);

    const double r0 = 0.5 * distance(block[0], block[1]);
    walk.store(0, seekPatchCenter(G, block[0], r0, 1, 1));
    walk.store(1, seekPatchCenter(G, block[8], r0, 1, 1));
    const float p1 = distance(walk.slot(0), walk.slot(1)) / twoDiagonals;
    const int longRays = static_cast<int>(std::round(0.4 * p1));
    walk.store(0, seekPatchCenter(G, walk.slot(0), 0.5 * p1, 1, longRays));
    walk.store(1, seekPatchCenter(G, walk.slot(1), 0.5 * p1, 1, longRays));
    const float p2 = distance(walk.slot(0), walk.slot(1)) / twoDiagonals;
    const double R = 0.5 * p2;
    walk.store(2, seekPatchCenter(G, block[6], R, 1, 1));
    for (int i = 3; i <= 8; ++i) {
        walk.fit(i);
        walk.store(i, seekPatchCenter(G, walk.predict(Row[i], Column[i]), R, 1, 1));
    }

    QVector<QPoint> centers;
    for (int index = 0; index < 24; ++index)
        centers.append(walk.predict(index / 6, index % 6));
    return centers;
}

} // namespace ColorCalibration::Obvious
