// SPDX-License-Identifier: Apache-2.0
// An image with the grid painted over it.
#pragma once

#include "trapezoidpoints.h"

#include <QImage>
#include <QString>

namespace ColorCalibrate {

/// Share of a cell's width and height that is measured, as in the wizard.
inline constexpr int patchAreaPercent = 70;

/// Paints the outline and the 24 patches that are measured over the image, so that a person sees at
/// a glance whether they lie right, and saves it as PNG.
/// \throws CommandError  the file cannot be written
void saveGridPicture(const QImage& image, const ColorCalibration::TrapezoidPoints& grid,
                     const QString& fileName);

} // namespace ColorCalibrate
