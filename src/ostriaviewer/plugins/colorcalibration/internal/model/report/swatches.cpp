// SPDX-License-Identifier: Apache-2.0
// The colours of the report's first table, for the eye.
#include "swatches.h"

#include <QColor>

namespace ColorCalibration {
namespace {

/// One declaration, or nothing where there is no colour.
QString declaration(const char* property, const QString& text)
{
    const QColor color(text);
    if (!color.isValid())
        return {};
    return QStringLiteral("--%1:%2;").arg(QLatin1String(property), color.name());
}

} // namespace

QStringList swatchRules(const QJsonObject& colors, const QStringList& rows)
{
    QStringList rules;
    // Rows count from 1, and the header is the first.
    int row = 2;
    for (const QString& patch : rows) {
        const QJsonObject kinds = colors.value(patch).toObject();
        rules.append(
            QStringLiteral("table:first-of-type tr:nth-child(%1){%2}")
                .arg(row++)
                .arg(declaration("initial", kinds.value(QStringLiteral("Initial")).toString()) +
                     declaration("target", kinds.value(QStringLiteral("Target")).toString()) +
                     declaration("current", kinds.value(QStringLiteral("Current")).toString())));
    }
    return rules;
}

} // namespace ColorCalibration
