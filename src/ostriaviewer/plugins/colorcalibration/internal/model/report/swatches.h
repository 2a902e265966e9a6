// SPDX-License-Identifier: Apache-2.0
// The colours of the report's first table, for the eye.
#pragma once

#include <QJsonObject>
#include <QStringList>

namespace ColorCalibration {

/// Style rules that give each row of the table of colours its colours, as the properties
/// "--initial", "--target" and "--current"; the style sheet paints them. Rules leave the table's
/// own text as programs expect it that read the report. Reentrant.
/// \param colors  "#rrggbb" by patch and kind
/// \param rows    the patches of the rows below the header, in their order; one that colors lacks
///                has no swatches
QStringList swatchRules(const QJsonObject& colors, const QStringList& rows);

} // namespace ColorCalibration
