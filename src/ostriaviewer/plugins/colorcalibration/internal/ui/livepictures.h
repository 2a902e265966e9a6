// SPDX-License-Identifier: Apache-2.0
// The pictures that the live image shows.
#pragma once

#include <QImage>
#include <QSize>

namespace ColorCalibration {

/// The camera's image stretched to the size, Format_ARGB32. Nearest neighbor: a picture that stands
/// for a moment need not be smooth.
QImage cameraPicture(const QImage& image, const QSize& size);

/// The logo at its own size in the middle of white, Format_ARGB32.
QImage failurePicture(const QImage& logo, const QSize& size);

/// Angle of the busy indicator in degrees, 0 to 359: one turn in 1.5 s.
int indicatorAngle(qint64 elapsedMs);

/// The picture with the busy indicator over it, turned clockwise, at three tenths of its size, in
/// the middle of the lower half.
QImage overduePicture(const QImage& picture, const QImage& indicator, int angle);

} // namespace ColorCalibration
