// SPDX-License-Identifier: Apache-2.0
// The colours of all patches, and how far they lie from their targets.
#pragma once

#include <QColor>
#include <QJsonObject>
#include <QVector>

namespace ColorCalibration {

/// The two parts of the results object that tell of colours, each with "Patch01" to "Patch24".
struct PatchResults
{
    QJsonObject colors;        ///< colours as "#rrggbb", differences with four digits
    QJsonObject preciseColors; ///< colours as "R: 0.0000 ...", differences with six digits
};

/// Each patch has "Initial", "Target", "Current" and, of current and target, "DeltaE" and "DeltaC"
/// (CIEDE2000, and the same without lightness). Reentrant.
/// \param initial, target, current  as a screen shows them, in chart order
/// \return  the patches that current has; a colour that another list lacks is "N/A"
PatchResults patchResults(const QVector<QColor>& initial, const QVector<QColor>& target,
                          const QVector<QColor>& current);

} // namespace ColorCalibration
