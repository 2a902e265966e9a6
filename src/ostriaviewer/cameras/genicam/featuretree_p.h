// SPDX-License-Identifier: Apache-2.0
// The features of a node map by category, and which selectors they depend on.
#pragma once

#include "feature_p.h"

#include <QHash>
#include <QString>

#include <vector>

namespace Cameras::GenICam {

/// All features that the categories from "Root" on hold, each once. Built with the node map's
/// mutex held; reads no values.
class FeatureTree
{
public:
    explicit FeatureTree(NodeMapPrivate& map);

    /// In the order of the category tree.
    const std::vector<Feature>& features() const { return m_features; }

    /// The position of a feature, -1 if no category holds it.
    int indexOf(const QString& name) const { return m_indices.value(name, -1); }

    /// The positions of the selectors that a feature depends on, the outermost first: each one
    /// stands after those that it depends on itself.
    const std::vector<int>& selectorsOf(int index) const;

    /// Whether a line of a feature stream may be of this feature: it has a value and is streamable,
    /// or such a one depends on it as a selector.
    bool isStreamed(int index) const { return m_isStreamed[static_cast<std::size_t>(index)]; }

private:
    void addCategory(NodeMapPrivate& map, ArvGcFeatureNode* category, int depth);
    void findSelectors();
    void findStreamed();
    void orderSelectors(int index, std::vector<int>& order, std::vector<bool>& visited) const;

    std::vector<Feature> m_features;
    QHash<QString, int> m_indices;
    std::vector<std::vector<int>> m_directSelectors;
    std::vector<std::vector<int>> m_selectors;
    std::vector<bool> m_isStreamed;
};

} // namespace Cameras::GenICam
