// SPDX-License-Identifier: Apache-2.0
// Where the keys go when a dialog has gone.
#include "keysafterdialogs.h"

#include <QCoreApplication>

namespace Core {

KeysAfterDialogs::KeysAfterDialogs()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeysAfterDialogs::eventFilter(QObject* object, QEvent* event)
{
    const bool isShown = event->type() == QEvent::Show;
    if ((!isShown && event->type() != QEvent::Hide) || event->spontaneous())
        return false;
    auto* dialog = qobject_cast<QDialog*>(object);
    if (!dialog)
        return false;
    if (isShown)
        return comes(*dialog, *event);
    if (goes(*dialog))
        QMetaObject::invokeMethod(
            this, [this] { giveKeysBack(); }, Qt::QueuedConnection);
    return false;
}

bool KeysAfterDialogs::comes(QDialog& /*dialog*/, QEvent& /*event*/)
{
    return false;
}

} // namespace Core
