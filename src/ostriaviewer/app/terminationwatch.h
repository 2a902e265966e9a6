// SPDX-License-Identifier: Apache-2.0
// Ends the viewer in good order when the system asks it to.
#pragma once

#include <QObject>
#include <QTimer>

#include <utility>
#include <vector>

namespace Viewer {

/// While it lives, an interruption from the terminal, a terminal that goes away, a log-out or a
/// shutdown is a request, no end.
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
    using Handler = void (*)(int);
    std::vector<std::pair<int, Handler>> m_previous; // of each signal
};

} // namespace Viewer
