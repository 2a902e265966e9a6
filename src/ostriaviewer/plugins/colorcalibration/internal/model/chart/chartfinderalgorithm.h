// SPDX-License-Identifier: Apache-2.0
// The steps by which the 24-patch chart is found in an image.
#pragma once

#include "dlibmatrix.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QVector>

namespace ColorCalibration {

/// A search for the chart's colour pattern by ratios that do not depend on the light's level: no
/// edges, no shapes. The chart must stand upright, its first patch upper left. Coordinates are
/// pixels of the image that an operation is given, x to the right, y downwards; colours are those
/// of QImage::pixelColor before premultiplication, and alpha plays no part. A null image is
/// allowed everywhere. Stateless and reentrant; nothing throws but std::bad_alloc.
class ChartFinderAlgorithm
{
public:
    /// Width to which an image is reduced (or enlarged) before the search.
    static constexpr int WorkingWidth = 640;

    /// Bytes that the reduced image and its smoothed copy may take together. A taller image is not
    /// searched: beyond 5.4 times its width with 32 bits a pixel, 3.4 times with 64, more with
    /// fewer.
    static constexpr qint64 MaxWorkingBytes = 15'500'000;

    /// The whole search. The image is neither copied nor changed.
    /// \return  the chart's outer corners in pixels of the image: upper left, upper right, lower
    ///          left, lower right. They may lie outside, and are somewhere if there is no chart.
    ///          All (0, 0) where findAnchorBlock finds nothing; empty where the image is too tall.
    QVector<QPoint> locateCorners(const QImage& image) const;

    /// Mean over 2 * radius + 1 samples along each column and then along each row.
    /// \param radius  taken as the nearest of 0 to 1000
    /// \return  an opaque image of QImage::Format_ARGB32
    QImage boxBlur(const QImage& image, int radius) const;

    /// Multiplies the channels on 0 to 255 with those of the mask on 0 to 1: (1, 0, 0) leaves red
    /// as it is and clears the others. Products above full scale become full scale.
    /// \param mask  an RGB colour
    /// \return  an opaque image of QImage::Format_ARGB32
    QImage keepChannel(const QColor& mask, const QImage& image) const;

    /// Sum of the three channels of each pixel of one image, divided by that of the other.
    /// \return  one row per x and one column per y; 1 where the denominator is 0. A single 0 if
    ///          the images differ in width, height or format.
    dlib::matrix<float> channelRatio(const QImage& numerator, const QImage& denominator) const;

    /// The nine patch centres of columns 1 to 3 in the chart's rows 0 to 2 that match best.
    /// \param image  smoothed
    /// \return  row by row; all (0, 0) where the image is too low or narrow to be searched,
    ///          or no place is in the least like the block, as on green alone
    QVector<QPoint> findAnchorBlock(const QImage& image) const;

    /// The centres of all patches, from the nine of the anchor block.
    /// \param image  smoothed
    /// \return  24 in chart order; empty if the block has not nine points
    QVector<QPoint> fitPatchCenters(const QImage& image, const QVector<QPoint>& block) const;

    /// Half a pitch beyond the centres of the four corner patches, each axis by itself.
    /// \return  upper left, upper right, lower left, lower right; empty unless there are 24 centres
    QVector<QPoint> outerCorners(const QVector<QPoint>& centers) const;

    /// Moves a point towards the side with more green, by at most a pixel per axis for each ray
    /// length from firstStep + 1 to round(radius).
    /// \param image   the green channel
    /// \param radius  taken as 32767 where it is larger
    /// \param sign    1; with -1 the point moves towards less green
    QPoint seekPatchCenter(const QImage& image, const QPoint& start, double radius, int sign,
                           int firstStep) const;

    /// Sum of green on 0 to 1 along a ray of length pixels, weighted by length at its start down
    /// to 1 at its end. Pixels outside the image count as 0.
    /// \param length  where both steps are 0, taken as 32767 if it is larger: such a ray never
    ///                leaves its pixel
    float weightedRaySum(const QImage& image, const QPoint& start, int stepY, int stepX,
                         int length) const;
};

} // namespace ColorCalibration
