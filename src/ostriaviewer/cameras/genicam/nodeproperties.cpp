// SPDX-License-Identifier: Apache-2.0
// What a node of the description says of itself, where Aravis has no question for it.
#include "nodeproperties_p.h"

#include "genicamexception.h"
#include "gerrorslot_p.h"

#include <arv.h>

#include <algorithm>

namespace Cameras::GenICam {

namespace {

template <class Visit>
void forEachChild(ArvGcFeatureNode* node, const Visit& visit)
{
    for (ArvDomNode* child = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); child;
         child = arv_dom_node_get_next_sibling(child))
        visit(child);
}

template <class Visit>
void forEachProperty(ArvGcFeatureNode* node, ArvGcPropertyNodeType type, const Visit& visit)
{
    forEachChild(node, [&](ArvDomNode* child) {
        if (!ARV_IS_GC_PROPERTY_NODE(child))
            return;
        ArvGcPropertyNode* property = ARV_GC_PROPERTY_NODE(child);
        if (arv_gc_property_node_get_node_type(property) == type)
            visit(property);
    });
}

std::vector<ArvGcFeatureNode*> linkedNodes(ArvGcFeatureNode* node, ArvGcPropertyNodeType type)
{
    std::vector<ArvGcFeatureNode*> result;
    forEachProperty(node, type, [&result](ArvGcPropertyNode* property) {
        ArvGcNode* linked = arv_gc_property_node_get_linked_node(property);
        if (linked && ARV_IS_GC_FEATURE_NODE(linked))
            result.push_back(ARV_GC_FEATURE_NODE(linked));
    });
    return result;
}

} // namespace

std::vector<ArvGcFeatureNode*> valueChain(ArvGcFeatureNode* node)
{
    std::vector<ArvGcFeatureNode*> chain{node};
    while (true) {
        const auto next = linkedNodes(chain.back(), ARV_GC_PROPERTY_NODE_TYPE_P_VALUE);
        if (next.empty() || std::find(chain.begin(), chain.end(), next.front()) != chain.end())
            return chain;
        chain.push_back(next.front());
    }
}

std::vector<ArvGcFeatureNode*> selectedNodes(ArvGcFeatureNode* node)
{
    return linkedNodes(node, ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED);
}

std::vector<ArvGcFeatureNode*> categoryNodes(ArvGcFeatureNode* category)
{
    return linkedNodes(category, ARV_GC_PROPERTY_NODE_TYPE_P_FEATURE);
}

std::vector<ArvGcEnumEntry*> enumerationEntries(ArvGcFeatureNode* enumeration)
{
    std::vector<ArvGcEnumEntry*> entries;
    forEachChild(enumeration, [&entries](ArvDomNode* child) {
        if (ARV_IS_GC_ENUM_ENTRY(child))
            entries.push_back(ARV_GC_ENUM_ENTRY(child));
    });
    return entries;
}

bool isStreamable(ArvGcFeatureNode* node)
{
    bool result = false;
    forEachProperty(node, ARV_GC_PROPERTY_NODE_TYPE_STREAMABLE, [&](ArvGcPropertyNode* property) {
        result = arv_gc_property_node_get_streamable(property, ARV_GC_STREAMABLE_NO) ==
                 ARV_GC_STREAMABLE_YES;
    });
    return result;
}

std::int64_t commandValue(ArvGcFeatureNode* command)
{
    std::int64_t value = 0;
    const auto read = [&value](ArvGcPropertyNode* property) {
        GErrorSlot error;
        value = arv_gc_property_node_get_int64(property, error);
        if (error.isSet())
            throw ::GenICam::RuntimeException(error.reason().toStdString());
    };
    forEachProperty(command, ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE, read);
    forEachProperty(command, ARV_GC_PROPERTY_NODE_TYPE_P_COMMAND_VALUE, read);
    return value;
}

} // namespace Cameras::GenICam
