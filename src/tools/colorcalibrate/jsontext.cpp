// SPDX-License-Identifier: Apache-2.0
// JSON text whose numbers come back exactly.
#include "jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <cmath>

namespace ColorCalibrate {
namespace {

QByteArray numberText(double value)
{
    if (std::isnan(value))
        return QByteArrayLiteral("\"nan\"");
    if (std::isinf(value))
        return value > 0 ? QByteArrayLiteral("\"inf\"") : QByteArrayLiteral("\"-inf\"");
    return QByteArray::number(value, 'g', 17);
}

/// Qt's own writer knows how to escape; it writes whole arrays only.
QByteArray stringText(const QString& value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray arrayText(const QJsonArray& array)
{
    QByteArray text;
    for (const QJsonValue& element : array)
        text += (text.isEmpty() ? "" : ", ") + toJsonText(element);
    return "[" + text + "]";
}

QByteArray objectText(const QJsonObject& object)
{
    QByteArray text;
    for (auto member = object.begin(); member != object.end(); ++member)
        text += (text.isEmpty() ? "" : ", ") + stringText(member.key()) + ": " +
                toJsonText(member.value());
    return "{" + text + "}";
}

} // namespace

QByteArray toJsonText(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QByteArrayLiteral("true") : QByteArrayLiteral("false");
    case QJsonValue::Double:
        return numberText(value.toDouble());
    case QJsonValue::String:
        return stringText(value.toString());
    case QJsonValue::Array:
        return arrayText(value.toArray());
    case QJsonValue::Object:
        return objectText(value.toObject());
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return QByteArrayLiteral("null");
}

} // namespace ColorCalibrate
