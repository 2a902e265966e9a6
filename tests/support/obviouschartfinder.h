// SPDX-License-Identifier: Apache-2.0
// The chart finder pixel by pixel, in the plainest words: what the fast one is held against.
#pragma once

#include "colorcorrectionautochartfinderresult.h"
#include "dlibmatrix.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QVector>

/// Each operation does what the one of the same name in ChartFinderAlgorithm does, through
/// QImage::pixelColor, QImage::setPixelColor and QColor alone. Slow on purpose, and without any
/// limit on memory. Reentrant.
namespace ColorCalibration::Obvious {

/// The reduced image that the search works on; null for a null image.
QImage reduce(const QImage& image);

QImage boxBlur(const QImage& image, int radius);
QImage keepChannel(const QColor& mask, const QImage& image);
dlib::matrix<float> channelRatio(const QImage& numerator, const QImage& denominator);
QVector<QPoint> findAnchorBlock(const QImage& image);
QVector<QPoint> fitPatchCenters(const QImage& image, const QVector<QPoint>& block);
QVector<QPoint> outerCorners(const QVector<QPoint>& centers);
QPoint seekPatchCenter(const QImage& image, QPoint start, double radius, int sign, int firstStep);
float weightedRaySum(const QImage& image, QPoint start, int stepY, int stepX, int length);

/// From pixels of the reduced image to those of the image.
QVector<QPoint> scaleUp(const QImage& image, QVector<QPoint> corners);

/// The four corners with the answer whether they are plausible.
ColorCorrectionAutoChartFinderResult judge(const QImage& image, const QVector<QPoint>& corners);

ColorCorrectionAutoChartFinderResult findChart(const QImage& image);

} // namespace ColorCalibration::Obvious
