// SPDX-License-Identifier: Apache-2.0
// How features are drawn and edited in their table.
#pragma once

#include <QStyledItemDelegate>

namespace Viewer {

/// Lists for choices, buttons for commands. Thread-bound: GUI thread.
class FeatureDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FeatureDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
};

} // namespace Viewer
