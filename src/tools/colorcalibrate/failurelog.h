// SPDX-License-Identifier: Apache-2.0
// What the log says of a failure.
#pragma once

#include "logging.h"

#include <QStringList>

#include <memory>

namespace ColorCalibrate {

/// While it lives, log entries that tell of a failure are kept: the last one names the reason
/// behind a step of the model that has failed. What cameras say of themselves is no step's failure:
/// it goes on to the sink before this one, and is not kept, so that nobody is told of it twice.
/// They may be nested. Thread-safe.
class FailureLog
{
public:
    FailureLog();
    ~FailureLog();
    FailureLog(const FailureLog&) = delete;
    FailureLog& operator=(const FailureLog&) = delete;

    /// Forgets what was kept.
    void clear();

    /// All entries that were kept, without their functions.
    QStringList failures() const;

    /// The first of them, empty if there was none: of entries that follow from each other the
    /// cause.
    QString firstFailure() const;

    /// The last of them, empty if there was none.
    QString lastFailure() const;

private:
    struct Kept;

    std::shared_ptr<Kept> m_kept; // a camera's thread may be writing an entry while this ends
    Core::Logging::LogSink m_previous;
};

} // namespace ColorCalibrate
