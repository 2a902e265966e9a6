// SPDX-License-Identifier: Apache-2.0
// The message log as the user reads it: filtered by level and words, and copied.
#pragma once

#include "messagelogmodel.h"

#include <QWidget>

class QAction;
class QComboBox;
class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

namespace Viewer {

/// Thread-bound: GUI thread.
class MessageLogPanel final : public QWidget
{
    Q_OBJECT

public:
    /// \param model  lent as long as the panel lives
    explicit MessageLogPanel(MessageLogModel* model, QWidget* parent = nullptr);

    /// The selected messages as lines of text, all that are shown if none is selected.
    QString selectedText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void copy();
    void makeView();
    void makeTools();
    int widthOfLevels() const;
    void retranslate();
    void keepEndInView();

    MessageLogModel* m_model;
    QSortFilterProxyModel* m_shown;
    QTreeView* m_view;
    QComboBox* m_level;
    QLineEdit* m_filter;
    QAction* m_copy;
    QAction* m_clear;
    bool m_isAtEnd = true;
};

} // namespace Viewer
