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

float distance(const QPoint& a, const QPoint& b)
{
    return static_cast<float>(
        std::sqrt(std::pow(double(a.x() - b.x()), 2) + std::pow(double(a.y() - b.y()), 2)));
}

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
                QVector<QPoint> points;
                std::vector<float> a;
                std::vector<float> b;
                for (int r = -1; r <= 1; ++r) {
                    for (int c = -1; c <= 1; ++c) {
                        const float px = roundf(float(p) * float(c) + float(x));
                        const float py = roundf(float(p) * float(r) + float(y));
                        points.append(truncated(px, py));
                        a.push_back(A(points.last().x(), points.last().y()));
                        b.push_back(B(points.last().x(), points.last().y()));
                    }
                }
                const float score = similarity(a, ratiosA) * similarity(b, ratiosB);
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
    const int row[9] = {0, 2, 2, 3, 3, 1, 1, 0, 2};
    const int column[9] = {1, 3, 1, 0, 1, 0, 5, 5, 5};
    float X[9];
    float Y[9];
    const auto store = [&](int slot, const QPoint& point) {
        X[slot] = float(point.x());
        Y[slot] = float(point.y());
    };
    const auto slot = [&](int k) {
        return truncated(X[k], Y[k]);
    };
    for (int k = 0; k < 9; ++k)
        store(k, block[k]);
    const float twoDiagonals = std::sqrt(2.0F) + std::sqrt(2.0F);

    const double r0 = 0.5 * distance(block[0], block[1]);
    store(0, seekPatchCenter(G, block[0], r0, 1, 1));
    store(1, seekPatchCenter(G, block[8], r0, 1, 1));
    const float p1 = distance(slot(0), slot(1)) / twoDiagonals;
    const int longRays = static_cast<int>(std::round(0.4 * p1));
    store(0, seekPatchCenter(G, slot(0), 0.5 * p1, 1, longRays));
    store(1, seekPatchCenter(G, slot(1), 0.5 * p1, 1, longRays));
    const float p2 = distance(slot(0), slot(1)) / twoDiagonals;
    const double R = 0.5 * p2;
    store(2, seekPatchCenter(G, block[6], R, 1, 1));

    dlib::matrix<float> cx;
    dlib::matrix<float> cy;
    for (int i = 3; i <= 8; ++i) {
        dlib::matrix<float> M(i, i < 5 ? 3 : 4);
        dlib::matrix<float> x(i, 1);
        dlib::matrix<float> y(i, 1);
        for (int k = 0; k < i; ++k) {
            M(k, 0) = 1;
            M(k, 1) = float(row[k]);
            M(k, 2) = float(column[k]);
            if (i >= 5)
                M(k, 3) = float(row[k] * column[k]);
            x(k) = X[k];
            y(k) = Y[k];
        }
        const dlib::matrix<float> W = dlib::pinv(M);
        cx = W * x;
        cy = W * y;
        dlib::matrix<float> q(1, cx.nr());
        q(0) = 1;
        q(1) = float(row[i]);
        q(2) = float(column[i]);
        if (i >= 5)
            q(3) = float(row[i] * column[i]);
        const QPoint predicted =
            truncated(dlib::matrix<float>(q * cx)(0), dlib::matrix<float>(q * cy)(0));
        store(i, seekPatchCenter(G, predicted, R, 1, 1));
    }

    QVector<QPoint> centers;
    for (int index = 0; index < 24; ++index) {
        const int r = index / 6;
        const int c = index % 6;
        dlib::matrix<float> q(1, 4);
        q = 1, float(r), float(c), float(r * c);
        centers.append(truncated(dlib::matrix<float>(q * cx)(0), dlib::matrix<float>(q * cy)(0)));
    }
    return centers;
}

} // namespace ColorCalibration::Obvious
