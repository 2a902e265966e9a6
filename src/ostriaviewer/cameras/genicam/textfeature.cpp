// SPDX-License-Identifier: Apache-2.0
// Values of any kind of feature as text.
#include "textfeature_p.h"

#include "enumerationfeature_p.h"
#include "gerrorslot_p.h"
#include "numberfeature_p.h"

#include <arv.h>

#include "featuretexts_p.h"

namespace Cameras::GenICam {

namespace {

QByteArray stringBytes(const Feature& feature)
{
    feature.requireReadable();
    GErrorSlot error;
    const char* text = arv_gc_string_get_value(ARV_GC_STRING(feature.node()), error);
    feature.check(error);
    return text;
}

void setString(const Feature& feature, const QString& text)
{
    feature.requireWritable();
    // It would end there in the camera.
    if (text.contains(QChar(QChar::Null)))
        feature.fail(FeatureTexts::tr("the text has a NUL character"));
    const QByteArray bytes = text.toUtf8();
    GErrorSlot lengthError;
    const gint64 longest = arv_gc_string_get_max_length(ARV_GC_STRING(feature.node()), lengthError);
    feature.check(lengthError);
    // Aravis would cut it off, and say nothing.
    if (longest > 0 && bytes.size() > longest)
        feature.fail(FeatureTexts::tr("the text is longer than %1 bytes").arg(longest));
    GErrorSlot error;
    arv_gc_string_set_value(ARV_GC_STRING(feature.node()), bytes.constData(), error);
    feature.check(error);
}

void setIntegerText(const Feature& feature, const QString& text)
{
    bool isInteger = false;
    const qint64 value = text.toLongLong(&isInteger);
    if (!isInteger)
        feature.fail(FeatureTexts::tr("an integer is expected"));
    setInteger(feature, value, false);
}

void setFloatText(const Feature& feature, const QString& text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber)
        feature.fail(FeatureTexts::tr("a number is expected"));
    setFloat(feature, value);
}

void setBooleanText(const Feature& feature, const QString& text)
{
    const bool isTrue = text == QLatin1String("1");
    if (!isTrue && text != QLatin1String("0"))
        feature.fail(FeatureTexts::tr("0 or 1 is expected"));
    setBoolean(feature, isTrue, false);
}

} // namespace

bool hasText(const Feature& feature)
{
    return !feature.isEmpty() && feature.kind() != FeatureKind::Command &&
           feature.kind() != FeatureKind::Other;
}

QString featureText(const Feature& feature)
{
    switch (feature.kind()) {
    case FeatureKind::Integer:
        return QString::number(integerValue(feature));
    case FeatureKind::Float:
        return numberText(floatValue(feature));
    case FeatureKind::Boolean:
        return booleanValue(feature) ? QStringLiteral("1") : QStringLiteral("0");
    case FeatureKind::Enumeration:
        return enumerationValue(feature);
    case FeatureKind::Text:
        return QString::fromUtf8(stringBytes(feature));
    case FeatureKind::Command:
    case FeatureKind::Other:
        break;
    }
    feature.fail(FeatureTexts::tr("has no value"));
}

std::optional<QString> restorableText(const Feature& feature)
{
    if (feature.kind() != FeatureKind::Text)
        return featureText(feature);
    const QByteArray bytes = stringBytes(feature);
    const QString text = QString::fromUtf8(bytes);
    const bool isRestorable =
        text.toUtf8() == bytes && !bytes.contains('\n') && !bytes.contains('\r');
    return isRestorable ? std::optional(text) : std::nullopt;
}

void setFeatureText(const Feature& feature, const QString& text)
{
    switch (feature.kind()) {
    case FeatureKind::Integer:
        return setIntegerText(feature, text);
    case FeatureKind::Float:
        return setFloatText(feature, text);
    case FeatureKind::Boolean:
        return setBooleanText(feature, text);
    case FeatureKind::Enumeration:
        return setEnumeration(feature, text);
    case FeatureKind::Text:
        return setString(feature, text);
    case FeatureKind::Command:
    case FeatureKind::Other:
        break;
    }
    feature.fail(FeatureTexts::tr("has no value"));
}

} // namespace Cameras::GenICam
