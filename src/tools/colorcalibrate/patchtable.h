// SPDX-License-Identifier: Apache-2.0
// The table of the patches before and after.
#pragma once

#include "patchdeltas.h"

#include <QColor>
#include <QVector>

#include <iosfwd>

namespace ColorCalibrate {

/// What stands in the three columns of colours, 24 each.
struct PatchTableColors
{
    const char* firstTitle;
    const char* secondTitle;
    QVector<QColor> first;
    QVector<QColor> second;
    QVector<QColor> target;
};

/// Writes a row a patch, with Delta E and Delta C before and after, then means and largest values.
void writePatchTable(std::ostream& out, const PatchTableColors& colors, const Deltas& before,
                     const Deltas& after);

} // namespace ColorCalibrate
