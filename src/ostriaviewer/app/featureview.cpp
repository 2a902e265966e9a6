// SPDX-License-Identifier: Apache-2.0
// The table of features, with keys that do what the mouse does.
#include "featureview.h"

#include "featuremodel.h"

#include <QComboBox>
#include <QKeyEvent>

namespace Viewer {
namespace {

bool isUse(int key)
{
    return key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter ||
           key == Qt::Key_Space || key == Qt::Key_Select;
}

bool isTyped(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().at(0).isPrint();
}

/// Whether a value may begin so: a word by anything, a number by no letter.
bool begins(const QModelIndex& value, QChar character)
{
    if (!(value.flags() & Qt::ItemIsEditable))
        return false;
    const auto editor = static_cast<FeatureEditor>(value.data(FeatureModel::EditorRole).toInt());
    return editor == FeatureEditor::Text ||
           (editor == FeatureEditor::Number && !character.isLetter());
}

} // namespace

FeatureView::FeatureView(QWidget* parent)
    : QTreeView(parent)
{
    setEditTriggers(AnyKeyPressed);
}

// What an editor leaves over comes here, too.
void FeatureView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex value = currentIndex().siblingAtColumn(FeatureModel::Value);
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (state() == EditingState || !isPlain || !value.data(FeatureModel::EditorRole).isValid())
        QTreeView::keyPressEvent(event);
    else if (!isUse(event->key()) && !isTyped(*event))
        QTreeView::keyPressEvent(event);
    else if (!isUse(event->key()))
        typeInto(value, *event);
    else if (!event->isAutoRepeat())
        useByKey(value);
}

// A list opens at once: with it closed each arrow would choose.
void FeatureView::useByKey(const QModelIndex& value)
{
    setCurrentIndex(value);
    const QVariant check = value.data(Qt::CheckStateRole);
    if (check.isValid() && value.flags() & Qt::ItemIsUserCheckable)
        model()->setData(value, check.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked,
                         Qt::CheckStateRole);
    else
        emit used(value);
    if (auto* list = qobject_cast<QComboBox*>(indexWidget(value)))
        list->showPopup();
}

// The view looks for what stands in the present column.
void FeatureView::searchName(const QString& beginning)
{
    setCurrentIndex(currentIndex().siblingAtColumn(FeatureModel::Name));
    keyboardSearch(beginning);
}

void FeatureView::typeInto(const QModelIndex& value, QKeyEvent& event)
{
    if (!begins(value, event.text().at(0)))
        return searchName(event.text());
    setCurrentIndex(value);
    edit(value, AnyKeyPressed, &event);
}

} // namespace Viewer
