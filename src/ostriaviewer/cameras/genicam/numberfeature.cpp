// SPDX-License-Identifier: Apache-2.0
// Values and limits of integer, float and boolean features.
#include "numberfeature_p.h"

#include "genicamexception.h"
#include "gerrorslot_p.h"

#include <arv.h>

#include "featuretexts_p.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Cameras::GenICam {

namespace {

ArvGcInteger* integerNode(const Feature& feature)
{
    return ARV_GC_INTEGER(feature.node());
}

ArvGcFloat* floatNode(const Feature& feature)
{
    return ARV_GC_FLOAT(feature.node());
}

/// What a question about a limit answers, or the fallback where the description has no limit.
template <class Value, class Node>
Value limit(const Feature& feature, Node* node, Value (*ask)(Node*, GError**), Value fallback)
{
    GErrorSlot error;
    const Value value = ask(node, error);
    if (error.meansNotDefined())
        return fallback;
    feature.check(error);
    return value;
}

template <class Value, class Text>
void checkRange(const Feature& feature, Value value, Value minimum, Value maximum,
                const Text& textOf)
{
    if (value < minimum)
        feature.fail(
            FeatureTexts::tr("%1 is below the minimum %2").arg(textOf(value), textOf(minimum)));
    if (value > maximum)
        feature.fail(
            FeatureTexts::tr("%1 is above the maximum %2").arg(textOf(value), textOf(maximum)));
}

QString integerText(qint64 value)
{
    return QString::number(value);
}

void checkIncrement(const Feature& feature, qint64 value)
{
    const qint64 increment = integerIncrement(feature);
    const qint64 minimum = integerMinimum(feature);
    // Without a minimum the steps go through 0.
    const qint64 start = minimum == std::numeric_limits<qint64>::min() ? 0 : minimum;
    const auto distance = value >= start
                              ? static_cast<quint64>(value) - static_cast<quint64>(start)
                              : static_cast<quint64>(start) - static_cast<quint64>(value);
    if (distance % static_cast<quint64>(increment) != 0)
        feature.fail(FeatureTexts::tr("%1 is not a multiple of %2 above %3")
                         .arg(value)
                         .arg(increment)
                         .arg(start));
}

void writeFloat(const Feature& feature, double value)
{
    GErrorSlot error;
    arv_gc_float_set_value(floatNode(feature), value, error);
    feature.check(error);
}

double readFloat(const Feature& feature)
{
    GErrorSlot error;
    const double value = arv_gc_float_get_value(floatNode(feature), error);
    feature.check(error);
    return value;
}

/// Moves an integer that Aravis truncated to the nearest. A value as far beyond the wish as the
/// one that was kept lies before it has its integer truncated to the next one exactly if that is
/// nearer; a little less far, so that rounding errors cannot make it two.
void roundToNearest(const Feature& feature, double value, double minimum, double maximum)
{
    const double truncated = readFloat(feature);
    const double mirrored = std::clamp(value + 0.9999 * (value - truncated), minimum, maximum);
    if (truncated == value || mirrored == value)
        return;
    try {
        writeFloat(feature, mirrored);
    } catch (const ::GenICam::RuntimeException&) {
        // The camera may take less than its description says. The wish itself it has taken.
        writeFloat(feature, value);
        return;
    }
    if (std::fabs(readFloat(feature) - value) > std::fabs(truncated - value))
        writeFloat(feature, value);
}

/// The limit itself in place of a value that lies outside by no more than single precision loses.
double withinResolution(double value, double minimum, double maximum)
{
    constexpr double resolution = std::numeric_limits<float>::epsilon();
    if (value < minimum && value >= minimum - std::fabs(minimum) * resolution)
        return minimum;
    if (value > maximum && value <= maximum + std::fabs(maximum) * resolution)
        return maximum;
    return value;
}

} // namespace

qint64 integerValue(const Feature& feature)
{
    feature.requireReadable();
    GErrorSlot error;
    const qint64 value = arv_gc_integer_get_value(integerNode(feature), error);
    feature.check(error);
    return value;
}

qint64 integerMinimum(const Feature& feature)
{
    return limit<gint64>(feature, integerNode(feature), arv_gc_integer_get_min,
                         std::numeric_limits<gint64>::min());
}

qint64 integerMaximum(const Feature& feature)
{
    return limit<gint64>(feature, integerNode(feature), arv_gc_integer_get_max,
                         std::numeric_limits<gint64>::max());
}

qint64 integerIncrement(const Feature& feature)
{
    return std::max<qint64>(limit<gint64>(feature, integerNode(feature), arv_gc_integer_get_inc, 1),
                            1);
}

void setInteger(const Feature& feature, qint64 value, bool verify)
{
    feature.requireWritable();
    checkRange(feature, value, integerMinimum(feature), integerMaximum(feature), integerText);
    checkIncrement(feature, value);
    GErrorSlot error;
    arv_gc_integer_set_value(integerNode(feature), value, error);
    feature.check(error);
    if (!verify)
        return;
    feature.requireThere();
    if (!feature.isReadable())
        return;
    const qint64 kept = integerValue(feature);
    if (kept != value)
        feature.fail(FeatureTexts::tr("the camera keeps %1 instead of %2").arg(kept).arg(value));
}

double floatValue(const Feature& feature)
{
    feature.requireReadable();
    return readFloat(feature);
}

double floatMinimum(const Feature& feature)
{
    return limit<double>(feature, floatNode(feature), arv_gc_float_get_min,
                         std::numeric_limits<double>::lowest());
}

double floatMaximum(const Feature& feature)
{
    return limit<double>(feature, floatNode(feature), arv_gc_float_get_max,
                         std::numeric_limits<double>::max());
}

void setFloat(const Feature& feature, double value)
{
    feature.requireWritable();
    if (!std::isfinite(value))
        feature.fail(FeatureTexts::tr("the value is not a finite number"));
    const double minimum = floatMinimum(feature);
    const double maximum = floatMaximum(feature);
    value = withinResolution(value, minimum, maximum);
    checkRange(feature, value, minimum, maximum, numberText);
    writeFloat(feature, value);
    if (ARV_IS_GC_INTEGER(feature.lastNode()) && feature.isReadable())
        roundToNearest(feature, value, minimum, maximum);
}

bool booleanValue(const Feature& feature)
{
    feature.requireReadable();
    GErrorSlot error;
    const bool value = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(feature.node()), error) != FALSE;
    feature.check(error);
    return value;
}

void setBoolean(const Feature& feature, bool value, bool verify)
{
    feature.requireWritable();
    GErrorSlot error;
    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(feature.node()), value ? TRUE : FALSE, error);
    feature.check(error);
    if (!verify)
        return;
    feature.requireThere();
    if (feature.isReadable() && booleanValue(feature) != value)
        feature.fail(FeatureTexts::tr("the camera keeps another value than %1")
                         .arg(value ? QStringLiteral("true") : QStringLiteral("false")));
}

QString numberText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace Cameras::GenICam
