// SPDX-License-Identifier: Apache-2.0
// Log entries to a sink, or to Qt's logging where there is none.
#include "logging.h"

#include <QHash>
#include <QLoggingCategory>

#include <deque>
#include <mutex>
#include <utility>

namespace Core::Logging {
namespace {

struct Category
{
    explicit Category(const QString& categoryName)
        : name(categoryName)
        , utf8Name(categoryName.toUtf8())
        , qtCategory(utf8Name.constData())
    {}

    QString name;
    QByteArray utf8Name; // QLoggingCategory keeps the pointer it is given
    QLoggingCategory qtCategory;
};

class Registry
{
public:
    CatId idOf(const QString& name)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto known = m_ids.constFind(name);
        if (known != m_ids.constEnd())
            return *known;
        const auto id = static_cast<CatId>(m_categories.size());
        m_categories.emplace_back(name);
        m_ids.insert(name, id);
        return id;
    }

    /// Categories never move and are never removed, so that the pointer outlives the lock.
    const Category* find(CatId id)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (id < 0 || id >= static_cast<CatId>(m_categories.size()))
            return nullptr;
        return &m_categories[static_cast<std::size_t>(id)];
    }

    LogSink exchangeSink(LogSink sink)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::swap(m_sink, sink);
        return sink;
    }

    LogSink sink()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_sink;
    }

private:
    std::mutex m_mutex;
    std::deque<Category> m_categories;
    QHash<QString, CatId> m_ids;
    LogSink m_sink;
};

/// Is never destroyed: entries come on any thread, to the end of the program.
Registry& registry()
{
    static auto* const instance = new Registry;
    return *instance;
}

void writeToQt(ELogLevel level, const QLoggingCategory& category, const QString& text)
{
    switch (level) {
    case Debug:
        qCDebug(category).noquote() << text;
        break;
    case Information:
        qCInfo(category).noquote() << text;
        break;
    case Warning:
        qCWarning(category).noquote() << text;
        break;
    case Error:
    case Fatal:
        qCCritical(category).noquote() << text;
        break;
    }
}

} // namespace

CatId getCatId(const QString& name)
{
    return registry().idOf(name);
}

void createLogEntry(ELogLevel level, CatId category, const QString& text)
{
    const Category* found = registry().find(category);
    if (const LogSink sink = registry().sink()) {
        sink(level, found ? found->name : QString(), text);
        return;
    }
    if (found)
        writeToQt(level, found->qtCategory, text);
    else
        writeToQt(level, *QLoggingCategory::defaultCategory(), text);
}

LogSink installLogSink(LogSink sink)
{
    return registry().exchangeSink(std::move(sink));
}

} // namespace Core::Logging
