// SPDX-License-Identifier: Apache-2.0
// Colours as people read them.
#include "rgbtext.h"

#include <QJsonValue>

namespace ColorCalibration {

QString HexToRgbText(const QString& text)
{
    if (!text.contains(QLatin1Char('#')))
        return text;
    const unsigned int value = QString(text).remove(QLatin1Char('#')).toUInt(nullptr, 16);
    return QStringLiteral("R: %1 G: %2 B: %3")
        .arg(value >> 16 & 0xff)
        .arg(value >> 8 & 0xff)
        .arg(value & 0xff);
}

QJsonObject ConvertColorsToRgb(const QJsonObject& object)
{
    QJsonObject converted = object;
    for (QJsonValueRef value : converted) {
        if (value.isObject())
            value = ConvertColorsToRgb(value.toObject());
        else if (value.isString())
            value = HexToRgbText(value.toString());
    }
    return converted;
}

} // namespace ColorCalibration
