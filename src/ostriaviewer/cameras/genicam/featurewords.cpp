// SPDX-License-Identifier: Apache-2.0
// What a description tells people about features.
// GLib names a member "signals", which Qt takes for its own: first comes GLib.
#include <arv.h>

#include "featurewords_p.h"
#include "nodemap_p.h"
#include "nodeproperties_p.h"

#include <QSet>

namespace Cameras::GenICam {

using Core::ParameterCollection::FeatureCategory;

namespace {

QString nameOf(ArvGcFeatureNode* node)
{
    return QString::fromUtf8(arv_gc_feature_node_get_name(node));
}

/// \param seen  categories that were read already: those that contain each other must not keep us
///              for ever
FeatureCategory readCategory(NodeMapPrivate& map, ArvGcFeatureNode* node, QSet<QString>& seen)
{
    FeatureCategory category;
    category.name = nameOf(node);
    seen.insert(category.name);
    category.displayName = QString::fromUtf8(arv_gc_feature_node_get_display_name(node));
    if (category.displayName.isEmpty())
        category.displayName = category.name;
    for (ArvGcFeatureNode* child : categoryNodes(node)) {
        if (!ARV_IS_GC_CATEGORY(child)) {
            if (!Feature::find(map, nameOf(child)).isEmpty())
                category.features.append(nameOf(child));
        } else if (!seen.contains(nameOf(child))) {
            category.categories.push_back(readCategory(map, child, seen));
        }
    }
    return category;
}

} // namespace

QString descriptionOf(const Feature& feature)
{
    const char* description = arv_gc_feature_node_get_description(feature.node());
    return QString::fromUtf8(description ? description
                                         : arv_gc_feature_node_get_tooltip(feature.node()));
}

QString unitOf(const Feature& feature)
{
    switch (feature.kind()) {
    case FeatureKind::Float:
        return QString::fromUtf8(arv_gc_float_get_unit(ARV_GC_FLOAT(feature.node())));
    case FeatureKind::Integer:
        return QString::fromUtf8(arv_gc_integer_get_unit(ARV_GC_INTEGER(feature.node())));
    default:
        return {};
    }
}

std::vector<FeatureCategory> featureCategories(NodeMapPrivate& map)
{
    ArvGcNode* root = arv_gc_get_node(map.gc(), "Root");
    if (!ARV_IS_GC_CATEGORY(root))
        return {};
    QSet<QString> seen;
    return readCategory(map, ARV_GC_FEATURE_NODE(root), seen).categories;
}

} // namespace Cameras::GenICam
