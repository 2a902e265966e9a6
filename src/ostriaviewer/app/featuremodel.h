// SPDX-License-Identifier: Apache-2.0
// A camera's features in their categories.
#pragma once

#include "featurevalue.h"
#include "iparametercollection.h"

#include <QAbstractItemModel>
#include <QTimer>

#include <memory>
#include <set>
#include <vector>

namespace Viewer {

/// A tree of categories with features and their values. The features of a category are kept up to
/// date while it is watched. A camera that does not answer in time is not waited for: what it owes
/// is read when it answers again. Thread-bound: GUI thread.
class FeatureModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Value, ColumnCount };
    enum Role {
        NameRole = Qt::UserRole, ///< the name of a feature or category, without translation
        EditorRole,              ///< a FeatureEditor; nothing for a category
        ChoicesRole              ///< the entries that can be chosen, a FeatureChoices
    };

    explicit FeatureModel(QObject* parent = nullptr);
    ~FeatureModel() override;

    /// \param features  null for none
    void setFeatures(const Core::ParameterCollection::ParameterCollectionPtr& features);

    /// Begins or ends to follow the features that stand directly in a category.
    void setWatched(const QModelIndex& category, bool isWatched);

    /// Presses the button of a command.
    void press(const QModelIndex& index);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// The camera did not take a value.
    void refused(const QString& reason);

private:
    struct Node;

    void load();
    Node* node(const QModelIndex& index) const;
    QModelIndex indexOf(const Node* node, int column) const;
    void fill(Node& into, const Core::ParameterCollection::FeatureCategory& category,
              Core::ParameterCollection::IParameterCollection& features);
    void refresh(Node& node);
    bool read(Node& node);
    void readPending();
    QVariant valueData(const Node& node, int role) const;
    QString toolTip(const Node& node) const;

    Core::ParameterCollection::ParameterCollectionPtr m_features;
    bool m_isLoaded = true; // else the camera could not be asked for its features yet
    std::unique_ptr<Node> m_root;
    std::set<Node*> m_watched;
    std::set<Node*> m_pending; // the camera has not answered yet
    QTimer m_readAgain;
};

} // namespace Viewer
