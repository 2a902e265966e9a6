// SPDX-License-Identifier: Apache-2.0
// The scene's own message boxes and file dialogs over the wizard's window.
#include "sceneboxes.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>

namespace ColorCalibration {
SceneBoxes::SceneBoxes(QWidget* window, QWindow* scene)
    : m_window(window)
    , m_scene(scene)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool SceneBoxes::eventFilter(QObject* object, QEvent* event)
{
    const bool isShown = event->type() == QEvent::Show;
    if ((!isShown && event->type() != QEvent::Hide) || event->spontaneous())
        return false;
    auto* dialog = qobject_cast<QDialog*>(object);
    if (!dialog || !isPlaced(dialog))
        return false;
    if (isShown)
        return show(dialog, event);
    QMetaObject::invokeMethod(this, &SceneBoxes::giveKeysBack, Qt::QueuedConnection);
    return false;
}

bool SceneBoxes::show(QWidget* dialog, QEvent* event)
{
    dialog->windowHandle()->setTransientParent(m_window->windowHandle());
    // Only in its own answer to this event does it find its size, and a place that is none.
    static_cast<QObject*>(dialog)->event(event);
    place(dialog);
    return true;
}

// Without a window manager nobody else does it.
void SceneBoxes::giveKeysBack()
{
    if (!m_window || !m_window->isVisible() || QApplication::activeModalWidget() != m_window)
        return;
    m_window->activateWindow();
    if (m_scene)
        m_scene->requestActivate();
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
