// SPDX-License-Identifier: Apache-2.0
// The scene's own message boxes and file dialogs over the wizard's window.
#include "sceneboxes.h"

#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

namespace ColorCalibration {
namespace {

bool isHeldKeyOfABox(const QObject* object, const QEvent* event)
{
    if (!static_cast<const QKeyEvent*>(event)->isAutoRepeat() || !object->isWidgetType())
        return false;
    const auto* box = qobject_cast<QMessageBox*>(static_cast<const QWidget*>(object)->window());
    return box && !box->parentWidget();
}

} // namespace

SceneBoxes::SceneBoxes(QWidget* window)
    : m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool SceneBoxes::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        return isHeldKeyOfABox(object, event);
    if (event->type() != QEvent::Show || event->spontaneous())
        return false;
    auto* dialog = qobject_cast<QDialog*>(object);
    if (!dialog || !isPlaced(dialog))
        return false;
    dialog->windowHandle()->setTransientParent(m_window->windowHandle());
    // Only in its own answer to this event does it find its size, and a place that is none.
    object->event(event);
    place(dialog);
    return true;
}

bool SceneBoxes::isPlaced(const QWidget* dialog) const
{
    return m_window && dialog != m_window && m_window->isVisible() && !dialog->parentWidget() &&
           dialog->windowHandle();
}

void SceneBoxes::place(QWidget* dialog)
{
    QRect area = dialog->frameGeometry();
    area.moveCenter(m_window->frameGeometry().center());
    const QRect screen = m_window->screen()->availableGeometry();
    area.moveLeft(qMax(screen.left(), qMin(area.left(), screen.right() + 1 - area.width())));
    area.moveTop(qMax(screen.top(), qMin(area.top(), screen.bottom() + 1 - area.height())));
    dialog->move(area.topLeft());
}

} // namespace ColorCalibration
