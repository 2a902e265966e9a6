// SPDX-License-Identifier: Apache-2.0
// Where the keys go when a dialog closes.
#include "dialogfocus.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

namespace Viewer {

DialogFocus::DialogFocus(QWidget& window)
    : m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

// A user who has gone to another program meanwhile is not called back.
bool DialogFocus::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Hide || event->spontaneous() ||
        QGuiApplication::applicationState() != Qt::ApplicationActive)
        return false;
    if (const auto* dialog = qobject_cast<QDialog*>(object))
        QMetaObject::invokeMethod(
            this, [this, isParentless = !dialog->parentWidget()] { giveKeysBack(isParentless); },
            Qt::QueuedConnection);
    return false;
}

// A dialog without a parent over another one is that one's matter: it may have the keys in a window
// of its own within it.
void DialogFocus::giveKeysBack(bool isParentless)
{
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && isParentless)
        return;
    QWidget& next = modal ? *modal : m_window;
    if (next.isVisible() && !next.isActiveWindow())
        next.activateWindow();
}

} // namespace Viewer
