// SPDX-License-Identifier: Apache-2.0
// What tests of the feature panel share: a viewer with an open camera, and its features by name.
#pragma once

#include "featuremodel.h"
#include "viewertest.h"

#include <QLineEdit>
#include <QTreeView>

namespace Viewer {

class FeaturePanelTest : public ViewerTest
{
protected:
    void SetUp() override
    {
        startViewer();
        clickCamera(0);
        window().commands().openAction()->trigger();
        m_tree = child<QTreeView>("features");
        ASSERT_TRUE(waitUntil([this] { return m_tree->isVisible(); }));
    }

    /// The value cell of a feature, seen and in view.
    QModelIndex cell(const char* feature)
    {
        auto* filter = child<QLineEdit>("featureFilter");
        filter->setText(feature);
        const QModelIndex found = find(QString::fromLatin1(feature));
        if (!found.isValid())
            return {};
        const QModelIndex value = found.siblingAtColumn(FeatureModel::Value);
        m_tree->scrollTo(value);
        return value;
    }

    /// A feature or category, of those that are shown.
    QModelIndex find(const QString& name) const
    {
        return m_tree->model()
            ->match(m_tree->model()->index(0, 0), FeatureModel::NameRole, name, 1,
                    Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }

    QString text(const char* feature) { return cell(feature).data().toString(); }

    template <typename Editor>
    Editor* edit(const QModelIndex& index)
    {
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {},
                          m_tree->visualRect(index).center());
        return m_tree->viewport()->findChild<Editor*>();
    }

    Core::ParameterCollection::ParameterCollectionPtr parameters() const
    {
        return m_first->parameterCollection();
    }

    QTreeView* m_tree = nullptr;
};

} // namespace Viewer
