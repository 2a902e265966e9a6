// SPDX-License-Identifier: Apache-2.0
// Keeps the log entries that are written while it lives.
#pragma once

#include "logging.h"

#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QVector>

struct LogEntry
{
    Core::Logging::ELogLevel level;
    QString category;
    QString text;
};

class LogRecorder
{
public:
    LogRecorder()
        : m_previous(Core::Logging::installLogSink(
              [this](Core::Logging::ELogLevel level, const QString& category, const QString& text) {
                  const QMutexLocker lock(&m_mutex);
                  m_entries.append({level, category, text});
              }))
    {}
    ~LogRecorder() { Core::Logging::installLogSink(m_previous); }
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    /// A copy of its own: a shared one would be taken apart without the lock.
    QVector<LogEntry> entries() const
    {
        const QMutexLocker lock(&m_mutex);
        return {m_entries.begin(), m_entries.end()};
    }

private:
    mutable QMutex m_mutex;
    QVector<LogEntry> m_entries;
    Core::Logging::LogSink m_previous;
};
