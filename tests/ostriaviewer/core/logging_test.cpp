// SPDX-License-Identifier: Apache-2.0
// Tests of the log of host and plugins.
#include "logging.h"

#include <QLoggingCategory>
#include <QStringList>

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

namespace Core::Logging {
namespace {

using Entry = std::tuple<ELogLevel, std::string, std::string>;

/// Records the entries that a sink receives, and puts the old sink back.
class RecordingSink
{
public:
    RecordingSink()
        : m_old(
              installLogSink([this](ELogLevel level, const QString& category, const QString& text) {
                  const std::lock_guard<std::mutex> lock(m_mutex);
                  m_entries.emplace_back(level, category.toStdString(), text.toStdString());
              }))
    {}
    ~RecordingSink() { installLogSink(std::move(m_old)); }
    RecordingSink(const RecordingSink&) = delete;
    RecordingSink& operator=(const RecordingSink&) = delete;

    std::vector<Entry> entries() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_entries;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<Entry> m_entries;
    LogSink m_old;
};

struct QtEntry
{
    QtMsgType type;
    std::string category;
    std::string text;
};

std::vector<QtEntry>& qtEntries()
{
    static std::vector<QtEntry> entries;
    return entries;
}

/// Records what goes to Qt's logging, with every level switched on.
class RecordingQt
{
public:
    RecordingQt()
        : m_old(qInstallMessageHandler(&RecordingQt::record))
    {
        qtEntries().clear();
        QLoggingCategory::setFilterRules(QStringLiteral("*=true"));
    }
    ~RecordingQt()
    {
        QLoggingCategory::setFilterRules(QString());
        qInstallMessageHandler(m_old);
    }
    RecordingQt(const RecordingQt&) = delete;
    RecordingQt& operator=(const RecordingQt&) = delete;

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        qtEntries().push_back({type, context.category, text.toStdString()});
    }

    QtMessageHandler m_old;
};

TEST(Logging, LevelsHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(Debug), 0);
    EXPECT_EQ(static_cast<int>(Information), 1);
    EXPECT_EQ(static_cast<int>(Warning), 2);
    EXPECT_EQ(static_cast<int>(Error), 3);
    EXPECT_EQ(static_cast<int>(Fatal), 4);
}

TEST(Logging, SameNameGivesTheSameCategory)
{
    const CatId first = getCatId(QStringLiteral("test.logging.first"));
    const CatId second = getCatId(QStringLiteral("test.logging.second"));
    EXPECT_NE(first, second);
    for (int i = 0; i < 1000; ++i)
        getCatId(QStringLiteral("test.logging.many.%1").arg(i));
    EXPECT_EQ(getCatId(QStringLiteral("test.logging.first")), first);
    EXPECT_EQ(getCatId(QStringLiteral("test.logging.second")), second);
    const RecordingSink sink;
    createLogEntry(Debug, second, QStringLiteral("text"));
    createLogEntry(Debug, first, QStringLiteral("text"));
    const std::vector<Entry> entries = sink.entries();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(std::get<1>(entries[0]), "test.logging.second");
    EXPECT_EQ(std::get<1>(entries[1]), "test.logging.first");
}

TEST(Logging, UnknownCategoryHasNoName)
{
    const RecordingSink sink;
    for (const CatId category : {-1, 1 << 30})
        createLogEntry(Debug, category, QStringLiteral("text"));
    const std::vector<Entry> entries = sink.entries();
    ASSERT_EQ(entries.size(), 2u);
    for (const Entry& entry : entries)
        EXPECT_EQ(std::get<1>(entry), "");
}

TEST(Logging, SinkReceivesEveryLevelInOrder)
{
    const RecordingSink sink;
    const CatId category = getCatId(QStringLiteral("test.logging.levels"));
    std::vector<Entry> expected;
    for (const ELogLevel level : {Debug, Information, Warning, Error, Fatal}) {
        createLogEntry(level, category, QStringLiteral("Entry \u00e4 %1").arg(level));
        expected.emplace_back(level, "test.logging.levels",
                              "Entry \u00e4 " + std::to_string(level));
    }
    EXPECT_EQ(sink.entries(), expected);
}

TEST(Logging, SinkReceivesEntriesOfUnknownCategories)
{
    const RecordingSink sink;
    createLogEntry(Warning, -1, QStringLiteral("lost"));
    EXPECT_EQ(sink.entries(), (std::vector<Entry>{{Warning, "", "lost"}}));
}

TEST(Logging, SinkKeepsEntriesFromQt)
{
    const RecordingQt qt;
    const RecordingSink sink;
    createLogEntry(Error, getCatId(QStringLiteral("test.logging.sink")), QStringLiteral("once"));
    EXPECT_TRUE(qtEntries().empty());
    EXPECT_EQ(sink.entries().size(), 1u);
}

TEST(Logging, ExchangeOfTheSinkGivesBackTheOldOne)
{
    int first = 0;
    int second = 0;
    const CatId category = getCatId(QStringLiteral("test.logging.exchange"));
    LogSink before = installLogSink([&](ELogLevel, const QString&, const QString&) { ++first; });
    createLogEntry(Debug, category, QStringLiteral("to the first"));
    const LogSink old =
        installLogSink([&](ELogLevel, const QString&, const QString&) { ++second; });
    createLogEntry(Debug, category, QStringLiteral("to the second"));
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
    ASSERT_TRUE(old);
    old(Debug, QString(), QString());
    EXPECT_EQ(first, 2);
    EXPECT_TRUE(installLogSink(std::move(before)));
}

TEST(Logging, EntriesGoToQtWithoutASink)
{
    const RecordingQt qt;
    const CatId category = getCatId(QStringLiteral("test.logging.qt"));
    const std::pair<ELogLevel, QtMsgType> levels[] = {{Debug, QtDebugMsg},
                                                      {Information, QtInfoMsg},
                                                      {Warning, QtWarningMsg},
                                                      {Error, QtCriticalMsg},
                                                      {Fatal, QtCriticalMsg}};
    for (const auto& [level, type] : levels) {
        qtEntries().clear();
        createLogEntry(level, category, QStringLiteral("say \"so\""));
        ASSERT_EQ(qtEntries().size(), 1u) << level;
        EXPECT_EQ(qtEntries()[0].type, type) << level;
        EXPECT_EQ(qtEntries()[0].category, "test.logging.qt");
        EXPECT_EQ(qtEntries()[0].text, "say \"so\"") << "without quotes around it";
    }
}

TEST(Logging, EntriesOfUnknownCategoriesGoToQtsDefault)
{
    const RecordingQt qt;
    createLogEntry(Warning, -1, QStringLiteral("lost"));
    ASSERT_EQ(qtEntries().size(), 1u);
    EXPECT_EQ(qtEntries()[0].category, "default");
}

TEST(Logging, RulesSwitchACategoryOff)
{
    const RecordingQt qt;
    QLoggingCategory::setFilterRules(QStringLiteral("*=true\ntest.logging.off.debug=false"));
    const CatId category = getCatId(QStringLiteral("test.logging.off"));
    createLogEntry(Debug, category, QStringLiteral("not shown"));
    createLogEntry(Warning, category, QStringLiteral("shown"));
    ASSERT_EQ(qtEntries().size(), 1u);
    EXPECT_EQ(qtEntries()[0].text, "shown");
}

TEST(Logging, ThreadsMayLogAndMakeCategoriesAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int entryCount = 500;
    const RecordingSink sink;
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([t] {
            for (int i = 0; i < entryCount; ++i) {
                const QString name = QStringLiteral("test.logging.threads.%1").arg(i);
                const CatId category = getCatId(name);
                createLogEntry(Debug, category, QStringLiteral("%1 %2").arg(t).arg(i));
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    const std::vector<Entry> entries = sink.entries();
    EXPECT_EQ(entries.size(), static_cast<std::size_t>(threadCount * entryCount));
    std::set<Entry> different(entries.begin(), entries.end());
    EXPECT_EQ(different.size(), entries.size());
    EXPECT_EQ(different.count({Debug, "test.logging.threads.7", "3 7"}), 1u);
    for (const Entry& entry : entries)
        EXPECT_EQ("test.logging.threads." + std::get<2>(entry).substr(2), std::get<1>(entry));
}

TEST(Logging, SinkMayBeExchangedWhileOthersLog)
{
    const RecordingSink outer;
    std::atomic<int> received(0);
    const auto count = [&received](ELogLevel, const QString&, const QString&) {
        ++received;
    };
    installLogSink(count);
    const CatId category = getCatId(QStringLiteral("test.logging.swap"));
    std::thread writer([category] {
        for (int i = 0; i < 2000; ++i)
            createLogEntry(Information, category, QStringLiteral("text"));
    });
    for (int i = 0; i < 500; ++i)
        installLogSink(count);
    writer.join();
    EXPECT_EQ(received, 2000);
}

} // namespace
} // namespace Core::Logging
