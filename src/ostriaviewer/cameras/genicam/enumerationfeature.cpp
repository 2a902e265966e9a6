// SPDX-License-Identifier: Apache-2.0
// Values and entries of enumeration features.
#include "enumerationfeature_p.h"

#include "gerrorslot_p.h"
#include "nodeproperties_p.h"
#include "shown_p.h"

#include <arv.h>

#include "featuretexts_p.h"

namespace Cameras::GenICam {

namespace {

QString nameOf(ArvGcEnumEntry* entry)
{
    return QString::fromUtf8(arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(entry)));
}

qint64 numberOf(const Feature& feature, ArvGcEnumEntry* entry)
{
    GErrorSlot error;
    const qint64 number = arv_gc_enum_entry_get_value(entry, error);
    feature.check(error);
    return number;
}

bool isImplemented(ArvGcEnumEntry* entry)
{
    GErrorSlot error;
    return arv_gc_feature_node_is_implemented(ARV_GC_FEATURE_NODE(entry), error) && !error.isSet();
}

bool isAvailable(ArvGcEnumEntry* entry)
{
    GErrorSlot error;
    return arv_gc_feature_node_is_available(ARV_GC_FEATURE_NODE(entry), error) && !error.isSet();
}

} // namespace

QString enumerationValue(const Feature& feature)
{
    feature.requireReadable();
    GErrorSlot error;
    const qint64 number =
        arv_gc_enumeration_get_int_value(ARV_GC_ENUMERATION(feature.node()), error);
    feature.check(error);
    for (ArvGcEnumEntry* entry : enumerationEntries(feature.node()))
        if (numberOf(feature, entry) == number)
            return nameOf(entry);
    feature.fail(FeatureTexts::tr("the camera answers %1, which is no entry").arg(number));
}

QVector<FeatureEntry> enumerationEntryList(const Feature& feature)
{
    feature.requireThere();
    QVector<FeatureEntry> result;
    for (ArvGcEnumEntry* entry : enumerationEntries(feature.node())) {
        if (!isImplemented(entry))
            continue;
        const QString name = nameOf(entry);
        const QString displayName =
            QString::fromUtf8(arv_gc_feature_node_get_display_name(ARV_GC_FEATURE_NODE(entry)));
        result.append({name, displayName.isEmpty() ? name : displayName, isAvailable(entry)});
    }
    return result;
}

void setEnumeration(const Feature& feature, const QString& entry)
{
    feature.requireWritable();
    for (ArvGcEnumEntry* candidate : enumerationEntries(feature.node())) {
        if (nameOf(candidate) != entry || !isImplemented(candidate))
            continue;
        if (!isAvailable(candidate))
            feature.fail(FeatureTexts::tr("%1 is not available with the camera's present settings")
                             .arg(entry));
        GErrorSlot error;
        arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(feature.node()),
                                         numberOf(feature, candidate), error);
        feature.check(error);
        return;
    }
    feature.fail(FeatureTexts::tr("there is no entry \"%1\"").arg(shown(QStringRef(&entry))));
}

} // namespace Cameras::GenICam
