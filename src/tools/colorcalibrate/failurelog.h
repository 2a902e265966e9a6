// SPDX-License-Identifier: Apache-2.0
// What the log says of a failure.
#pragma once

#include "logging.h"

#include <QMutex>
#include <QStringList>

namespace ColorCalibrate {

/// While it lives, log entries are not written to standard error, but those that tell of a failure
/// are kept: the last one names the reason behind a step that has failed. One at a time.
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

    /// All entries of level warning and above, without their functions.
    QStringList failures() const;

    /// The last of them, empty if there was none.
    QString lastFailure() const;

private:
    mutable QMutex m_mutex;
    QStringList m_failures;
    Core::Logging::LogSink m_previous;
};

} // namespace ColorCalibrate
