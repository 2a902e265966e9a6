// SPDX-License-Identifier: Apache-2.0
// Centres a point on a patch: it climbs towards the side with more green until both sides balance.
#pragma once

#include "rgbbytes.h"
#include "truncate.h"

#include <QImage>
#include <QPoint>

#include <cmath>

namespace ColorCalibration {

/// No seek makes more steps than this.
inline constexpr int MaxSeekRadius = 32767;

/// No ray that stays on its pixel is longer than this.
inline constexpr int MaxRestingLength = 32767;

/// Green of an image of bytes, 0 to 1. The image is lent.
class GreenOfBytes
{
public:
    explicit GreenOfBytes(const RgbBytes& image);

    int width() const { return m_image.width; }
    int height() const { return m_image.height; }
    double operator()(int x, int y) const { return m_fractions[m_image.pixel(x, y)[1]]; }

private:
    const RgbBytes& m_image;
    const double* m_fractions;
};

/// Green of a QImage of any format, 0 to 1, as QColor::greenF tells it. The image is lent.
class GreenOfImage
{
public:
    explicit GreenOfImage(const QImage& image)
        : m_image(image)
    {}

    int width() const { return m_image.width(); }
    int height() const { return m_image.height(); }
    double operator()(int x, int y) const;

private:
    const QImage& m_image;
};

/// The steps of a ray for which one coordinate lies within 0 to size - 1.
struct RaySpan
{
    qint64 first = 0;
    qint64 end = 0; ///< one beyond the last step
};
RaySpan raySpan(int start, int step, int size, int length);

/// Sum over i below length of green at start + i * (stepX, stepY), times the weight length - i,
/// rounded to float after each term. Pixels outside the image count as 0 and cost nothing.
/// \param length  taken as MaxRestingLength where both steps are 0 and it is larger
template <typename Green>
float weightedRaySum(const Green& green, QPoint start, int stepY, int stepX, int length)
{
    if (stepX == 0 && stepY == 0)
        length = qMin(length, MaxRestingLength);
    const RaySpan spanX = raySpan(start.x(), stepX, green.width(), length);
    const RaySpan spanY = raySpan(start.y(), stepY, green.height(), length);
    const qint64 end = qMin(spanX.end, spanY.end);
    float sum = 0.0F;
    for (qint64 i = qMax(spanX.first, spanY.first); i < end; ++i) {
        const int x = static_cast<int>(start.x() + i * stepX);
        const int y = static_cast<int>(start.y() + i * stepY);
        sum = static_cast<float>(double(sum) + green(x, y) * double(length - i));
    }
    return sum;
}

/// Moves start by at most a pixel per axis for each ray length from firstStep + 1 to
/// round(radius).
/// \param radius  taken as MaxSeekRadius where it is larger
/// \param sign  1 climbs towards more green, -1 away from it
template <typename Green>
QPoint seekPatchCenter(const Green& green, QPoint start, double radius, int sign, int firstStep)
{
    const qint64 last = qMin(truncateToInt(std::round(radius)), MaxSeekRadius);
    QPoint point = start;
    const auto climb = [sign](float before, float after, int position) {
        if (before == after)
            return position;
        return float(sign) * before > float(sign) * after ? position - 1 : position + 1;
    };
    for (qint64 k = qMax<qint64>(qint64(firstStep) + 1, 1); k <= last; ++k) {
        const int length = static_cast<int>(k);
        point.setX(climb(weightedRaySum(green, point, 0, -1, length),
                         weightedRaySum(green, point, 0, 1, length), point.x()));
        point.setY(climb(weightedRaySum(green, point, -1, 0, length),
                         weightedRaySum(green, point, 1, 0, length), point.y()));
    }
    return point;
}

} // namespace ColorCalibration
