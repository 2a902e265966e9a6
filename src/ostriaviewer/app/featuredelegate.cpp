// SPDX-License-Identifier: Apache-2.0
// How features are drawn and edited in their table.
#include "featuredelegate.h"

#include "featuremodel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include <functional>
#include <utility>

namespace Viewer {
namespace {

FeatureEditor editorAt(const QModelIndex& index)
{
    return static_cast<FeatureEditor>(index.data(FeatureModel::EditorRole).toInt());
}

/// A list of choices that is an editor only while it is open: with it closed each arrow would
/// choose. What was chosen goes to the delegate first.
class ChoiceList : public QComboBox
{
public:
    ChoiceList(QWidget* parent, std::function<void(ChoiceList*)> closed)
        : QComboBox(parent)
        , m_closed(std::move(closed))
    {
        connect(this, QOverload<int>::of(&QComboBox::activated), this,
                [this] { m_isChosen = true; });
    }

    void showPopup() override
    {
        QComboBox::showPopup();
        view()->window()->installEventFilter(this);
    }

    // A click beside an open list closes it without a word to the list.
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Hide && object == view()->window())
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (!m_isChosen)
                        m_closed(this);
                },
                Qt::QueuedConnection);
        return QComboBox::eventFilter(object, event);
    }

private:
    std::function<void(ChoiceList*)> m_closed;
    bool m_isChosen = false;
};

bool isButton(const QModelIndex& index)
{
    return index.column() == FeatureModel::Value && editorAt(index) == FeatureEditor::Button;
}

} // namespace

FeatureDelegate::FeatureDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void FeatureDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    if (!isButton(index))
        return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionButton button;
    button.rect = option.rect.adjusted(0, 1, 0, -1);
    button.palette = option.palette;
    button.fontMetrics = option.fontMetrics;
    button.text = index.data(Qt::DisplayRole).toString();
    button.state = QStyle::State_Raised;
    // The style draws a button by its state, but the text on it by the palette's group.
    if (index.data(Qt::ForegroundRole).isValid())
        button.palette.setCurrentColorGroup(QPalette::Disabled);
    else
        button.state |= QStyle::State_Enabled;
    if (option.state & QStyle::State_Selected)
        button.state |= QStyle::State_HasFocus;
    QApplication::style()->drawControl(QStyle::CE_PushButton, &button, painter, option.widget);
}

QSize FeatureDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), option.fontMetrics.height() + 8};
}

QWidget* FeatureDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                       const QModelIndex& index) const
{
    if (editorAt(index) != FeatureEditor::Choice) {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        line->setToolTip(index.data(Qt::ToolTipRole).toString());
        return line;
    }
    auto* self = const_cast<FeatureDelegate*>(this);
    auto* list = new ChoiceList(
        parent, [self](ChoiceList* closed) { emit self->closeEditor(closed, RevertModelCache); });
    const auto choices = index.data(FeatureModel::ChoicesRole).value<FeatureChoices>();
    for (const FeatureChoice& choice : choices)
        list->addItem(choice.text, choice.name);
    // A choice counts without leaving the list first, but after the key that chose: the list takes
    // Return as a shortcut already, and the press that follows must find the list, not the table.
    connect(
        list, QOverload<int>::of(&QComboBox::activated), list,
        [self, list] {
            emit self->commitData(list);
            emit self->closeEditor(list);
        },
        Qt::QueuedConnection);
    return list;
}

void FeatureDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString value = index.data(Qt::EditRole).toString();
    if (auto* list = qobject_cast<QComboBox*>(editor)) {
        list->setCurrentIndex(list->findData(value));
        return;
    }
    // What is being typed is not written over when the value changes meanwhile.
    auto* line = qobject_cast<QLineEdit*>(editor);
    if (line && !line->isModified()) {
        line->setText(value);
        line->selectAll();
    }
}

void FeatureDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                   const QModelIndex& index) const
{
    if (const auto* list = qobject_cast<QComboBox*>(editor)) {
        if (list->currentIndex() >= 0)
            model->setData(index, list->currentData(), Qt::EditRole);
    } else if (const auto* line = qobject_cast<QLineEdit*>(editor)) {
        if (line->isModified())
            model->setData(index, line->text(), Qt::EditRole);
    }
}

} // namespace Viewer
