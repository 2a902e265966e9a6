// SPDX-License-Identifier: Apache-2.0
// What the log says of a failure.
#pragma once

#include "logging.h"

#include <QStringList>

#include <memory>

namespace ColorCalibrate {

/// While it lives, log entries that tell of a failure are kept: the last one names the reason
/// behind a step that has failed. What cameras say of themselves goes on to the sink before it,
/// since a step that succeeds tells nobody. They may be nested. Thread-safe.
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
    struct Kept;

    std::shared_ptr<Kept> m_kept; // a camera's thread may be writing an entry while this ends
    Core::Logging::LogSink m_previous;
};

} // namespace ColorCalibrate
