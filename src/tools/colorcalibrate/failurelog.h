// SPDX-License-Identifier: Apache-2.0
// What the log says of a failure.
#pragma once

#include "logging.h"

#include <QMutex>
#include <QString>

namespace ColorCalibrate {

/// While it lives, log entries are not written to standard error, but the last one that tells of a
/// failure is kept, as it names the reason behind a step that has failed. One at a time.
/// Thread-safe.
class FailureLog
{
public:
    FailureLog();
    ~FailureLog();
    FailureLog(const FailureLog&) = delete;
    FailureLog& operator=(const FailureLog&) = delete;

    /// Forgets what was kept.
    void clear();

    /// The last entry of level warning and above without its function, empty if there was none.
    QString lastFailure() const;

private:
    mutable QMutex m_mutex;
    QString m_lastFailure;
    Core::Logging::LogSink m_previous;
};

} // namespace ColorCalibrate
