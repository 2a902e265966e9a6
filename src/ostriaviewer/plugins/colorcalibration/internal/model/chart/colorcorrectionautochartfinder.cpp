// SPDX-License-Identifier: Apache-2.0
// Finds the 24-patch chart in an image.
#include "colorcorrectionautochartfinder.h"

#include <utility>

namespace ColorCalibration {

namespace {

bool isWithin(const QPoint& point, const QSize& size)
{
    return point.x() >= 0 && point.y() >= 0 && point.x() <= size.width() &&
           point.y() <= size.height();
}

/// The lower left corner's y is held against 0 alone: a negative one falls at the order below.
bool isLowerLeftWithin(const QPoint& point, const QSize& size)
{
    return point.x() >= 0 && point.y() != 0 && point.x() <= size.width() &&
           point.y() <= size.height();
}

bool isPlausible(const ColorCorrectionAutoChartFinderResult& corners, const QSize& size)
{
    return isWithin(corners.upperLeft, size) && isWithin(corners.upperRight, size) &&
           isWithin(corners.lowerRight, size) && isLowerLeftWithin(corners.lowerLeft, size) &&
           corners.upperLeft.x() < corners.upperRight.x() &&
           corners.upperLeft.y() < corners.lowerLeft.y() &&
           corners.upperRight.y() < corners.lowerRight.y() &&
           corners.lowerLeft.x() < corners.lowerRight.x();
}

} // namespace

ColorCorrectionAutoChartFinder::ColorCorrectionAutoChartFinder(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<ColorCorrectionAutoChartFinderResult>();
}

ColorCorrectionAutoChartFinderResult ColorCorrectionAutoChartFinder::findChart(QImage image)
{
    ColorCorrectionAutoChartFinderResult result;
    const QVector<QPoint> corners = m_algorithm.locateCorners(image);
    if (corners.size() == 4) {
        result = {corners[0], corners[1], corners[2], corners[3], false};
        result.valid = isPlausible(result, image.size());
    }
    emit autoChartFinderFinished(result);
    return result;
}

} // namespace ColorCalibration
