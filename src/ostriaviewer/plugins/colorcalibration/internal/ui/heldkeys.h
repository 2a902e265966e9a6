// SPDX-License-Identifier: Apache-2.0
// Keys that decide something do it once, however long they are held.
#pragma once

#include <QObject>

class QKeyEvent;

namespace ColorCalibration {

/// While it lives, Return, Enter, Escape and Space come to the program's windows only when they are
/// pressed, not again while they are held. Thread-bound: GUI thread.
class HeldKeys : public QObject
{
public:
    HeldKeys();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool isRepeat(const QKeyEvent& press) const;

    int m_released = 0;
    unsigned long m_releaseTime = 0;
};

} // namespace ColorCalibration
