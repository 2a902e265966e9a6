// SPDX-License-Identifier: Apache-2.0
// Between the colours of a list and the engine's matrix.
#pragma once

#include "patchcolors.h"

#include <QColor>
#include <QVector>

namespace ColorCalibration {

/// \param list         colours in chart order, channels 0 to 1; more than 24 are not read
/// \param fromDisplay  the colours carry the sRGB curve, which is taken off
/// \return  0 to 255; rows for which the list has no colour are zero
PatchColors toPatchColors(const QVector<QColor>& list, bool fromDisplay);

/// \param matrix     0 to 255
/// \param toDisplay  the colours are linear and get the sRGB curve
/// \return  24 opaque colours in chart order, channels 0 to 1
QVector<QColor> toQColors(const PatchColors& matrix, bool toDisplay);

} // namespace ColorCalibration
