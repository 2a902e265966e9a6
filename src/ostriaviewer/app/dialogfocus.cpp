// SPDX-License-Identifier: Apache-2.0
// Where the keys go when a dialog closes.
#include "dialogfocus.h"

#include <QApplication>

namespace Viewer {

DialogFocus::DialogFocus(QWidget& window)
    : m_window(window)
{}

bool DialogFocus::comes(QDialog& /*dialog*/, QEvent& /*event*/)
{
    QWidget* active = QApplication::activeWindow();
    if (active && !qobject_cast<QDialog*>(active))
        m_before = active;
    return false;
}

// A user who has gone to another program meanwhile is not called back. A dialog without a parent
// over another one is that one's matter: it may have the keys in a window of its own within it.
bool DialogFocus::goes(const QDialog& dialog)
{
    return QGuiApplication::applicationState() == Qt::ApplicationActive &&
           (dialog.parentWidget() || !QApplication::activeModalWidget());
}

// Who has gone to another window himself, past a dialog that let him, stays there.
void DialogFocus::giveKeysBack()
{
    QWidget* modal = QApplication::activeModalWidget();
    const QWidget* active = QApplication::activeWindow();
    if (!modal && active && active->isVisible())
        return;
    QWidget* before = m_before && m_before->isVisible() ? m_before.data() : &m_window;
    QWidget* next = modal ? modal : before;
    if (next->isVisible() && !next->isActiveWindow())
        next->activateWindow();
}

} // namespace Viewer
