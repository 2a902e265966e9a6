// SPDX-License-Identifier: Apache-2.0
// The report's tables.
#pragma once

#include <QJsonObject>
#include <QStringList>

namespace ColorCalibration {

/// A key of the results object in the words of the report and in the user's language; an unknown
/// key is its own word. Reentrant.
QString TranslateLabel(const QString& key);

/// Appends HTML. An object with the settings before and after becomes a table with a row for each;
/// any other becomes one row, with one column for each value, or one where the key stands for a
/// value itself. All texts are escaped. Reentrant.
/// \param key         of what is to be shown; parts joined by "/" lead deeper
/// \param object      the results object, or a part of it that has the key
/// \param label       first cell of the row
/// \param withHeader  puts a row with the columns' names before it; of a table with two rows, the
///                    first always has it, the second as asked
void AppendTable(QStringList& lines, const QString& key, const QJsonObject& object,
                 const QString& label, bool withHeader);

/// Appends the table of all patches as HTML, one row each. Reentrant.
/// \param results  the results object; of it "PreciseColors"
void AppendColorTable(QStringList& lines, const QJsonObject& results);

} // namespace ColorCalibration
