// SPDX-License-Identifier: Apache-2.0
// Whether four corners can be those of an upright chart.
#include "chartplausibility.h"

namespace ColorCalibration {

namespace {

bool isWithin(const QPoint& point, const QSize& size)
{
    return point.x() >= 0 && point.y() >= 0 && point.x() <= size.width() &&
           point.y() <= size.height();
}

} // namespace

bool isLowerLeftWithin(const QPoint& point, const QSize& size)
{
    return point.x() >= 0 && point.y() != 0 && point.x() <= size.width() &&
           point.y() <= size.height();
}

bool isPlausibleChart(const ColorCorrectionAutoChartFinderResult& corners, const QSize& size)
{
    return isWithin(corners.upperLeft, size) && isWithin(corners.upperRight, size) &&
           isWithin(corners.lowerRight, size) && isLowerLeftWithin(corners.lowerLeft, size) &&
           corners.upperLeft.x() < corners.upperRight.x() &&
           corners.upperLeft.y() < corners.lowerLeft.y() &&
           corners.upperRight.y() < corners.lowerRight.y() &&
           corners.lowerLeft.x() < corners.lowerRight.x();
}

} // namespace ColorCalibration
