// SPDX-License-Identifier: Apache-2.0
// The measurement of a patch as one would tell it: ask every pixel, sort, take the middle.
#pragma once

#include "ostriaimage.h"
#include "trapezoidpoints.h"

#include <QColor>
#include <QPoint>

#include <vector>

/// The pixels of the image inside a patch, top to bottom and left to right.
std::vector<QPoint> obviousPixelsInside(const ColorCalibration::TrapezoidPoints& patch, int width,
                                        int height);

bool obviousMeasurePatch(const ColorCalibration::TrapezoidPoints& patch,
                         const Ostria::COstriaImage& image, int divisor, QColor& out);
