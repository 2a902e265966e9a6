// SPDX-License-Identifier: Apache-2.0
// How long the windows stood still.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

/// Measures from its construction on how long the event loop of its thread is held up at most.
/// Loops within the loop count as going on.
class EventLoopMeter
{
public:
    EventLoopMeter()
    {
        m_sinceTick.start();
        QObject::connect(&m_timer, &QTimer::timeout,
                         [this] { m_longest = std::max(m_longest, m_sinceTick.restart()); });
        m_timer.start(1);
    }

    qint64 longestMs() const { return std::max(m_longest, m_sinceTick.elapsed()); }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
    qint64 m_longest = 0;
};
