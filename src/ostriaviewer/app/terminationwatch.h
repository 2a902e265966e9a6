// SPDX-License-Identifier: Apache-2.0
// Ends the viewer in good order when the system asks it to.
#pragma once

#include <QObject>
#include <QTimer>

namespace Viewer {

/// While it lives, an interruption from the terminal, a log-out or a shutdown is a request, no end.
/// One at a time. Thread-bound: GUI thread.
class TerminationWatch final : public QObject
{
    Q_OBJECT

public:
    explicit TerminationWatch(QObject* parent = nullptr);
    ~TerminationWatch() override;

signals:
    /// Emitted again with each further request.
    void requested();

private:
    void look();

    QTimer m_timer;
    void (*m_previousInterrupt)(int);
    void (*m_previousTerminate)(int);
};

} // namespace Viewer
