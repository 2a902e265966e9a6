// SPDX-License-Identifier: Apache-2.0
// Brings messages of plugins, and entries of the log, before the user.
#pragma once

#include "imessagelogservice.h"
#include "messagelogmodel.h"

#include <memory>

namespace Viewer {

/// While it lives, it also receives what is written to the log, from any thread. Thread-bound: GUI
/// thread.
class MessageLogService final : public Plugin::MessageLogCore::IMessageLogService
{
    Q_OBJECT

public:
    /// \param model  lent as long as the service lives
    explicit MessageLogService(MessageLogModel* model);
    ~MessageLogService() override;

    void addEntry(Core::Logging::ELogLevel level, const QString& source, const QString& text,
                  const QDateTime& time) override;

    /// A message of the viewer's own.
    void addOwn(Core::Logging::ELogLevel level, const QString& text);

private:
    struct Inbox;

    void takeInbox();

    MessageLogModel* m_model;
    std::shared_ptr<Inbox> m_inbox; // shared with the sink, which may be running when we end
    Core::Logging::LogSink m_previousSink;
};

} // namespace Viewer
