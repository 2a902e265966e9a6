// SPDX-License-Identifier: Apache-2.0
// The table of features, with keys that do what the mouse does.
#pragma once

#include <QTreeView>

namespace Viewer {

/// The arrows lead from feature to feature, whatever the column; F2, Return and Space use the value
/// of the one they have come to, and what is typed begins a new one. Other letters look for a name.
/// Thread-bound: GUI thread.
class FeatureView final : public QTreeView
{
    Q_OBJECT

public:
    explicit FeatureView(QWidget* parent = nullptr);

signals:
    /// A value is to be edited, or its button pressed.
    void used(const QModelIndex& value);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void useByKey(const QModelIndex& value);
    void searchName(const QString& beginning);
    void typeInto(const QModelIndex& value, QKeyEvent& event);
};

} // namespace Viewer
