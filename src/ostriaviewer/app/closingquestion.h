// SPDX-License-Identifier: Apache-2.0
// The question before the viewer closes while it records.
#pragma once

#include "recordingcommands.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace Viewer {

/// Who agrees has the recordings written to their end before the window closes, and sees what went
/// wrong with them. Thread-bound: GUI thread.
class ClosingQuestion final : public QObject
{
    Q_OBJECT

public:
    /// Both are lent as long as this object lives.
    ClosingQuestion(RecordingCommands& recordings, QWidget& window, QObject* parent = nullptr);

    /// Whether nothing is recorded. If something is, the user is asked, and the window may be
    /// closed by it later.
    bool mayClose();

private:
    void ask(const QStringList& cameras);

    RecordingCommands& m_recordings;
    QWidget& m_window;
    QPointer<QMessageBox> m_box;
    bool m_isAgreed = false;
};

} // namespace Viewer
