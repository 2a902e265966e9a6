// SPDX-License-Identifier: Apache-2.0
// A message log that keeps what it is told.
#pragma once

#include "imessagelogservice.h"

#include <QVector>

class RecordingLog : public Plugin::MessageLogCore::IMessageLogService
{
public:
    struct Entry
    {
        Core::Logging::ELogLevel level;
        QString source;
        QString text;
        QDateTime time;
    };
    QVector<Entry> entries;

    void addEntry(Core::Logging::ELogLevel level, const QString& source, const QString& text,
                  const QDateTime& time) override
    {
        entries.append({level, source, text, time});
    }
};
