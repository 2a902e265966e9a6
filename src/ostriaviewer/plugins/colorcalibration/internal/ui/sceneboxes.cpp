// SPDX-License-Identifier: Apache-2.0
// The scene's own message boxes and file dialogs over the wizard's window.
#include "sceneboxes.h"

#include <QApplication>
#include <QScreen>

namespace ColorCalibration {
SceneBoxes::SceneBoxes(QWidget* window, QWindow* scene)
    : m_window(window)
    , m_scene(scene)
{}

bool SceneBoxes::comes(QDialog& dialog, QEvent& event)
{
    if (!isPlaced(dialog))
        return false;
    dialog.windowHandle()->setTransientParent(m_window->windowHandle());
    // Only in its own answer to this event does it find its size, and a place that is none.
    static_cast<QObject&>(dialog).event(&event);
    place(dialog);
    return true;
}

bool SceneBoxes::goes(const QDialog& dialog)
{
    return isPlaced(dialog);
}

void SceneBoxes::giveKeysBack()
{
    if (!m_window || !m_window->isVisible() || QApplication::activeModalWidget() != m_window)
        return;
    m_window->activateWindow();
    if (m_scene)
        m_scene->requestActivate();
}

bool SceneBoxes::isPlaced(const QDialog& dialog) const
{
    return m_window && &dialog != m_window && m_window->isVisible() && !dialog.parentWidget() &&
           dialog.windowHandle();
}

void SceneBoxes::place(QDialog& dialog) const
{
    QRect area = dialog.frameGeometry();
    area.moveCenter(m_window->frameGeometry().center());
    const QRect screen = m_window->screen()->availableGeometry();
    area.moveLeft(qMax(screen.left(), qMin(area.left(), screen.right() + 1 - area.width())));
    area.moveTop(qMax(screen.top(), qMin(area.top(), screen.bottom() + 1 - area.height())));
    dialog.move(area.topLeft());
}

} // namespace ColorCalibration
