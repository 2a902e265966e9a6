// SPDX-License-Identifier: Apache-2.0
// Keys that decide something do it once, however long they are held.
#include "heldkeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace ColorCalibration {
namespace {

bool decides(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Space:
        return true;
    default:
        return false;
    }
}

} // namespace

HeldKeys::HeldKeys()
{
    QCoreApplication::instance()->installEventFilter(this);
}

// All keys come to a window first, and from there to what has the focus in it.
bool HeldKeys::eventFilter(QObject* object, QEvent* event)
{
    if (!object->isWindowType())
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto& press = *static_cast<const QKeyEvent*>(event);
        return decides(press) && isRepeat(press);
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto& release = *static_cast<const QKeyEvent*>(event);
        m_released = release.key();
        m_releaseTime = release.timestamp();
    }
    return false;
}

// An X server sends a release and a press of the same moment for each repeat. They are known as one
// only where the press waits already when the release is looked at, which a busy program does
// either too early or too late.
bool HeldKeys::isRepeat(const QKeyEvent& press) const
{
    return press.isAutoRepeat() || (press.key() == m_released && press.timestamp() != 0 &&
                                    press.timestamp() == m_releaseTime);
}

} // namespace ColorCalibration
