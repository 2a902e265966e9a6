// SPDX-License-Identifier: Apache-2.0
// Brings messages of plugins, and entries of the log, before the user.
#include "messagelogservice.h"

#include <mutex>
#include <utility>
#include <vector>

namespace Viewer {

// What other threads write waits here, so that a thread that writes much cannot flood the event
// loop: there is one call under way at most.
struct MessageLogService::Inbox
{
    std::mutex mutex;
    MessageLogService* owner = nullptr;
    std::vector<LogMessage> messages;
};

namespace {

/// The viewer's own parts speak the user's language, plugins name themselves.
QString sourceOf(const QString& category)
{
    if (category == QLatin1String("Viewer"))
        return MessageLogService::tr("Viewer");
    if (category == QLatin1String("Cameras"))
        return MessageLogService::tr("Cameras");
    return category;
}

} // namespace

MessageLogService::MessageLogService(MessageLogModel* model)
    : m_model(model)
    , m_inbox(std::make_shared<Inbox>())
{
    m_inbox->owner = this;
    m_previousSink = Core::Logging::installLogSink([inbox = m_inbox](Core::Logging::ELogLevel level,
                                                                     const QString& category,
                                                                     const QString& text) {
        const std::lock_guard lock(inbox->mutex);
        if (!inbox->owner)
            return;
        inbox->messages.push_back({level, category, text, QDateTime::currentDateTime(), true});
        if (inbox->messages.size() == 1)
            QMetaObject::invokeMethod(
                inbox->owner, [owner = inbox->owner] { owner->takeInbox(); }, Qt::QueuedConnection);
    });
}

MessageLogService::~MessageLogService()
{
    Core::Logging::installLogSink(m_previousSink);
    const std::lock_guard lock(m_inbox->mutex);
    m_inbox->owner = nullptr;
}

// What was written before comes first, so that an entry and its twin for people stand together.
void MessageLogService::addEntry(Core::Logging::ELogLevel level, const QString& source,
                                 const QString& text, const QDateTime& time)
{
    takeInbox();
    m_model->add({level, source, text, time});
}

void MessageLogService::addOwn(Core::Logging::ELogLevel level, const QString& text)
{
    addEntry(level, tr("Viewer"), text, {});
}

void MessageLogService::takeInbox()
{
    std::vector<LogMessage> messages;
    {
        const std::lock_guard lock(m_inbox->mutex);
        messages.swap(m_inbox->messages);
    }
    for (LogMessage& message : messages) {
        message.source = sourceOf(message.source);
        m_model->add(std::move(message));
    }
}

} // namespace Viewer
