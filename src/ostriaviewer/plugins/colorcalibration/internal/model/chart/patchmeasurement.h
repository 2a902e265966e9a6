// SPDX-License-Identifier: Apache-2.0
// From the pixels inside a patch to its colour.
#pragma once

#include "ostriaimage.h"
#include "trapezoidpoints.h"

#include <QColor>

namespace ColorCalibration {

/// Fewer pixels than this do not make a colour.
inline constexpr int MinimumPatchPixels = 24;

/// Measures one patch: the median pixel by its largest channel, taken whole.
///
/// The pixels are those of pixelRunsInside. Sorted stably by their largest channel, top to bottom
/// and left to right among equals, the one at index n / 2 is the colour, so that an image has one
/// answer on every machine. Reentrant.
/// \param patch    corners in image pixels; what lies outside the image does not count
/// \param image    camera image at its own bit depth
/// \param divisor  2^bitDepth of the image; a saturated channel thus measures just below 1
/// \param out      red, green, blue over divisor, which QColor rounds to steps of 1/65535; left
///                 alone on failure
/// \return  false with fewer than MinimumPatchPixels pixels
bool measurePatch(const TrapezoidPoints& patch, const Ostria::COstriaImage& image, int divisor,
                  QColor& out);

} // namespace ColorCalibration
