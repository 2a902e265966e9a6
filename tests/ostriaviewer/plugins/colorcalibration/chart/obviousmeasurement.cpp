// SPDX-License-Identifier: Apache-2.0
// The measurement of a patch as one would tell it: ask every pixel, sort, take the middle.
#include "obviousmeasurement.h"

#include <QPolygon>
#include <QRect>

#include <algorithm>

std::vector<QPoint> obviousPixelsInside(const ColorCalibration::TrapezoidPoints& patch, int width,
                                        int height)
{
    const QPolygon polygon({patch.upperLeft(), patch.upperRight(), patch.lowerRight(),
                            patch.lowerLeft(), patch.upperLeft()});
    const QRect bounds = polygon.boundingRect();
    std::vector<QPoint> pixels;
    for (int y = bounds.top(); y < bounds.bottom(); ++y)
        for (int x = bounds.left(); x < bounds.right(); ++x)
            if (x >= 0 && y >= 0 && x < width && y < height &&
                polygon.containsPoint(QPoint(x, y), Qt::OddEvenFill))
                pixels.emplace_back(x, y);
    return pixels;
}

bool obviousMeasurePatch(const ColorCalibration::TrapezoidPoints& patch,
                         const Ostria::COstriaImage& image, int divisor, QColor& out)
{
    std::vector<Ostria::PixelReading> readings;
    for (const QPoint& pixel : obviousPixelsInside(patch, image.width(), image.height()))
        readings.push_back(image.readPixel(pixel.x(), pixel.y()));
    if (readings.size() < 24)
        return false;
    const auto brightness = [](const Ostria::PixelReading& pixel) {
        return std::max({pixel.red, pixel.green, pixel.blue});
    };
    std::stable_sort(readings.begin(), readings.end(), [&](const auto& left, const auto& right) {
        return brightness(left) < brightness(right);
    });
    const Ostria::PixelReading& median = readings[readings.size() / 2];
    out.setRedF(median.red / static_cast<double>(divisor));
    out.setGreenF(median.green / static_cast<double>(divisor));
    out.setBlueF(median.blue / static_cast<double>(divisor));
    return true;
}
