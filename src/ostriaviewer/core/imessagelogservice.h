// SPDX-License-Identifier: Apache-2.0
// The message log that the user sees.
#pragma once

#include "coreexport.h"
#include "iservice.h"
#include "logging.h"

#include <QDateTime>
#include <QString>

namespace Plugin::MessageLogCore {

/// Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT IMessageLogService : public Core::Service::IService
{
    Q_OBJECT

public:
    /// \param source  who says it, for people
    /// \param time    null for now
    virtual void addEntry(Core::Logging::ELogLevel level, const QString& source,
                          const QString& text, const QDateTime& time) = 0;

protected:
    using IService::IService;
};

} // namespace Plugin::MessageLogCore
