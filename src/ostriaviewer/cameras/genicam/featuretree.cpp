// SPDX-License-Identifier: Apache-2.0
// The features of a node map by category, and which selectors they depend on.
#include "featuretree_p.h"

#include "nodemap_p.h"
#include "nodeproperties_p.h"
#include "textfeature_p.h"

#include <arv.h>

namespace Cameras::GenICam {

namespace {

/// Categories that contain each other must not keep us for ever.
constexpr int deepestCategory = 32;

} // namespace

FeatureTree::FeatureTree(NodeMapPrivate& map)
{
    addCategory(map, ARV_GC_FEATURE_NODE(arv_gc_get_node(map.gc(), "Root")), 0);
    findSelectors();
    findStreamed();
}

const std::vector<int>& FeatureTree::selectorsOf(int index) const
{
    return m_selectors[static_cast<std::size_t>(index)];
}

void FeatureTree::addCategory(NodeMapPrivate& map, ArvGcFeatureNode* category, int depth)
{
    if (depth > deepestCategory)
        return;
    for (ArvGcFeatureNode* node : categoryNodes(category)) {
        if (ARV_IS_GC_CATEGORY(node)) {
            addCategory(map, node, depth + 1);
            continue;
        }
        const QString name = QString::fromUtf8(arv_gc_feature_node_get_name(node));
        Feature feature = Feature::find(map, name);
        if (feature.isEmpty() || m_indices.contains(name))
            continue;
        m_indices.insert(name, static_cast<int>(m_features.size()));
        m_features.push_back(std::move(feature));
    }
}

void FeatureTree::findSelectors()
{
    m_directSelectors.resize(m_features.size());
    for (std::size_t selector = 0; selector < m_features.size(); ++selector)
        for (ArvGcFeatureNode* node : selectedNodes(m_features[selector].node())) {
            const int selected = indexOf(QString::fromUtf8(arv_gc_feature_node_get_name(node)));
            if (selected >= 0)
                m_directSelectors[static_cast<std::size_t>(selected)].push_back(
                    static_cast<int>(selector));
        }

    m_selectors.resize(m_features.size());
    for (std::size_t index = 0; index < m_features.size(); ++index) {
        std::vector<bool> visited(m_features.size());
        visited[index] = true;
        orderSelectors(static_cast<int>(index), m_selectors[index], visited);
    }
}

void FeatureTree::findStreamed()
{
    m_isStreamed.resize(m_features.size());
    for (std::size_t index = 0; index < m_features.size(); ++index) {
        if (!hasText(m_features[index]) || !m_features[index].isStreamable())
            continue;
        m_isStreamed[index] = true;
        for (const int selector : m_selectors[index])
            m_isStreamed[static_cast<std::size_t>(selector)] = true;
    }
}

void FeatureTree::orderSelectors(int index, std::vector<int>& order,
                                 std::vector<bool>& visited) const
{
    for (const int selector : m_directSelectors[static_cast<std::size_t>(index)]) {
        if (visited[static_cast<std::size_t>(selector)])
            continue;
        visited[static_cast<std::size_t>(selector)] = true;
        orderSelectors(selector, order, visited);
        order.push_back(selector);
    }
}

} // namespace Cameras::GenICam
