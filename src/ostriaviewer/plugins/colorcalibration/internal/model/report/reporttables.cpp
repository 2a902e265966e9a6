// SPDX-License-Identifier: Apache-2.0
// The report's tables.
#include "reporttables.h"

#include "rgbtext.h"

#include <QObject>

#include <array>
#include <utility>

namespace ColorCalibration {
namespace {

using Label = std::pair<const char*, const char*>;

constexpr std::array<Label, 7> labels{
    Label{"DeltaE", QT_TRANSLATE_NOOP("QObject", "Delta E")},
    Label{"DeltaC", QT_TRANSLATE_NOOP("QObject", "Delta C")},
    Label{"Initial", QT_TRANSLATE_NOOP("QObject", "Original")},
    Label{"Target", QT_TRANSLATE_NOOP("QObject", "Target")},
    Label{"BlackLevel", QT_TRANSLATE_NOOP("QObject", "Black Level")},
    Label{"Original", QT_TRANSLATE_NOOP("QObject", "Original")},
    Label{"Calibrated", QT_TRANSLATE_NOOP("QObject", "Current")},
};

const QString tableStart = QStringLiteral("<table id=\"results\">");
const QString tableEnd = QStringLiteral("</table>");

QString headerCell(const QString& text)
{
    return QStringLiteral("<th>%1</th>").arg(text.toHtmlEscaped());
}

QString valueCell(const QJsonValue& value)
{
    return QStringLiteral("<td>%1</td>").arg(value.toVariant().toString().toHtmlEscaped());
}

void appendRow(QStringList& lines, const QString& firstCell, const QStringList& cells)
{
    lines << QStringLiteral("<tr>") << firstCell << cells << QStringLiteral("</tr>");
}

void appendBeforeAndAfter(QStringList& lines, const QString& key, const QJsonObject& object,
                          bool withHeader)
{
    const QString before = QStringLiteral("Original");
    const QString after = QStringLiteral("Calibrated");
    lines << tableStart;
    AppendTable(lines, key, object.value(before).toObject(), TranslateLabel(before), true);
    AppendTable(lines, key, object.value(after).toObject(), TranslateLabel(after), withHeader);
    lines << tableEnd;
}

} // namespace

QString TranslateLabel(const QString& key)
{
    for (const auto& [known, text] : labels) {
        if (key == QLatin1String(known))
            return QObject::tr(text);
    }
    return key;
}

void AppendTable(QStringList& lines, const QString& key, const QJsonObject& object,
                 const QString& label, bool withHeader)
{
    if (object.contains(QStringLiteral("Original")) &&
        object.contains(QStringLiteral("Calibrated"))) {
        appendBeforeAndAfter(lines, key, object, withHeader);
        return;
    }
    const int separator = key.indexOf(QLatin1Char('/'));
    if (separator >= 0) {
        AppendTable(lines, key.mid(separator + 1), object.value(key.left(separator)).toObject(),
                    label, withHeader);
        return;
    }
    const QJsonValue value = object.value(key);
    const QJsonObject columns =
        value.isObject() ? value.toObject() : QJsonObject{{key, value.toVariant().toString()}};
    QStringList names;
    QStringList values;
    for (auto column = columns.begin(); column != columns.end(); ++column) {
        names << headerCell(TranslateLabel(column.key()));
        values << valueCell(column.value());
    }
    if (withHeader)
        appendRow(lines, QStringLiteral("<th>&nbsp;</th>"), names);
    appendRow(lines, headerCell(label), values);
}

void AppendColorTable(QStringList& lines, const QJsonObject& results)
{
    const QJsonObject colors =
        ConvertColorsToRgb(results.value(QStringLiteral("PreciseColors")).toObject());
    lines << tableStart;
    bool isFirst = true;
    for (auto patch = colors.begin(); patch != colors.end(); ++patch) {
        AppendTable(lines, patch.key(), colors, TranslateLabel(patch.key()), isFirst);
        isFirst = false;
    }
    lines << tableEnd;
}

} // namespace ColorCalibration
