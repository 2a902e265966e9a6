// SPDX-License-Identifier: Apache-2.0
// Finds the 24-patch chart in an image.
#include "colorcorrectionautochartfinder.h"

#include "chartplausibility.h"

namespace ColorCalibration {

ColorCorrectionAutoChartFinder::ColorCorrectionAutoChartFinder(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<ColorCorrectionAutoChartFinderResult>();
}

// By value: a shared copy, so that the caller may assign to its own image during the search.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
ColorCorrectionAutoChartFinderResult ColorCorrectionAutoChartFinder::findChart(QImage image)
{
    ColorCorrectionAutoChartFinderResult result;
    const QVector<QPoint> corners = m_algorithm.locateCorners(image);
    if (corners.size() == 4) {
        result = {corners[0], corners[1], corners[2], corners[3], false};
        result.valid = isPlausibleChart(result, image.size());
    }
    emit autoChartFinderFinished(result);
    return result;
}

} // namespace ColorCalibration
