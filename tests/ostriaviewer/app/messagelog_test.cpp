// SPDX-License-Identifier: Apache-2.0
// Messages reach the user whole and in order, and can be filtered and copied.
#include "animations.h"
#include "language.h"
#include "messagelogpanel.h"
#include "messagelogservice.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <thread>

#include <gtest/gtest.h>

namespace Viewer {
namespace {

using namespace Core::Logging;

class MessageLogTest : public testing::Test
{
protected:
    ~MessageLogTest() override { waitForAnimations(m_panel); }

    int shownRows() { return m_panel.findChild<QTreeView*>("messages")->model()->rowCount(); }

    MessageLogModel m_model;
    MessageLogService m_service{&m_model};
    MessageLogPanel m_panel{&m_model};
};

TEST_F(MessageLogTest, KeepsTheTimeGivenAndTakesThePresentForNone)
{
    const QDateTime past(QDate(2001, 2, 3), QTime(4, 5, 6));
    m_service.addEntry(Warning, "Somebody", "old", past);
    const QDateTime before = QDateTime::currentDateTime();
    m_service.addEntry(Warning, "Somebody", "new", QDateTime());
    EXPECT_EQ(m_model.message(0).time, past);
    EXPECT_GE(m_model.message(1).time, before);
    EXPECT_LE(m_model.message(1).time, QDateTime::currentDateTime());
}

TEST_F(MessageLogTest, ShowsWhatAnyThreadWritesToTheLog)
{
    std::thread writer([] {
        for (int number = 0; number < 100; ++number)
            createLogEntry(Error, getCatId("a.category"), QString::number(number));
    });
    writer.join();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_model.rowCount() == 100; }, 60000));
    EXPECT_EQ(m_model.message(0).source, "a.category");
    EXPECT_EQ(m_model.message(99).text, "99");
    EXPECT_EQ(m_model.message(99).level, Error);
}

// A camera's words may stand in it. As markup the tool tip is no wider than the screen.
TEST_F(MessageLogTest, TakesNoTextForMarkupInAToolTip)
{
    m_service.addEntry(Warning, "<i>Camera</i>", "<b>5</b> & more\nlines", {});
    const auto toolTip = [this](int column) {
        return m_model.index(0, column).data(Qt::ToolTipRole).toString();
    };
    EXPECT_EQ(toolTip(MessageLogModel::Text), "<qt>&lt;b&gt;5&lt;/b&gt; &amp; more<br>lines</qt>");
    EXPECT_EQ(toolTip(MessageLogModel::Source), "<qt>&lt;i&gt;Camera&lt;/i&gt;</qt>");
}

TEST_F(MessageLogTest, NamesTheViewersOwnPartsInTheUsersLanguage)
{
    LanguageCatalogues catalogues;
    catalogues.install("ja");
    for (const char* category : {"Viewer", "Cameras", "a.category"})
        createLogEntry(Warning, getCatId(category), category);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_model.rowCount() == 3; }, 60000));
    EXPECT_EQ(m_model.message(0).source, u8"ビューアー");
    EXPECT_EQ(m_model.message(1).source, u8"カメラ");
    EXPECT_EQ(m_model.message(2).source, "a.category");
}

TEST_F(MessageLogTest, ShowsOnceWhatIsWrittenToTheLogAndToTheUser)
{
    createLogEntry(Warning, getCatId("a.category"), "twice");
    m_service.addEntry(Warning, "Somebody", "twice", {});
    createLogEntry(Warning, getCatId("a.category"), "another");
    m_service.addEntry(Error, "Somebody", "another", {});
    ASSERT_EQ(m_model.rowCount(), 3);
    EXPECT_EQ(m_model.message(0).source, "Somebody");
}

TEST_F(MessageLogTest, KeepsTheBeginningOfATextThatIsTooLong)
{
    const QString kept(MessageLogModel::longestText, 'x');
    const QString ellipsis = QString::fromUtf8("…");
    QStringList told;
    QObject::connect(&m_model, &MessageLogModel::added, &m_model,
                     [&](const LogMessage& message) { told << message.text; });
    m_service.addEntry(Warning, "Somebody", kept, {});
    m_service.addEntry(Warning, "Somebody", kept + QString(999'000, 'x'), {});
    m_service.addEntry(Warning, "Somebody", kept.chopped(1) + QString::fromUtf8("😀"), {});
    EXPECT_EQ(told, QStringList({kept, kept + ellipsis, kept.chopped(1) + ellipsis}));
    createLogEntry(Warning, getCatId("a.category"), kept + "twice");
    m_service.addEntry(Warning, "Somebody", kept + "twice", {});
    EXPECT_EQ(m_model.rowCount(), 4);
}

TEST_F(MessageLogTest, KeepsEqualMessagesOfOneSource)
{
    m_service.addEntry(Warning, "Somebody", "again", {});
    m_service.addEntry(Warning, "Somebody", "again", {});
    EXPECT_EQ(m_model.rowCount(), 2);
}

TEST(MessageLogServiceTest, GivesTheLogBackAtItsEnd)
{
    QStringList received;
    const LogSink before = installLogSink(
        [&](ELogLevel, const QString&, const QString& text) { received.append(text); });
    MessageLogModel model;
    {
        const MessageLogService service(&model);
        createLogEntry(Error, getCatId("a.category"), "to the viewer");
    }
    createLogEntry(Error, getCatId("a.category"), "to the sink before");
    installLogSink(before);
    EXPECT_EQ(received, QStringList("to the sink before"));
}

TEST_F(MessageLogTest, DropsTheOldestWhenItIsFull)
{
    for (int number = 0; number <= MessageLogModel::capacity; ++number)
        m_service.addEntry(Information, "Somebody", QString::number(number), {});
    EXPECT_LE(m_model.rowCount(), MessageLogModel::capacity);
    EXPECT_EQ(m_model.message(m_model.rowCount() - 1).text,
              QString::number(MessageLogModel::capacity));
    EXPECT_EQ(m_model.message(0).text, "1000");
}

TEST_F(MessageLogTest, KeepsWhatMattersWhenLesserEntriesFillIt)
{
    m_service.addEntry(Information, "Somebody", "begun", {});
    m_service.addEntry(Error, "Somebody", "lost", {});
    for (int number = 0; number < 2 * MessageLogModel::capacity; ++number)
        m_service.addEntry(Debug, "Somebody", QString::number(number), {});
    EXPECT_LE(m_model.rowCount(), MessageLogModel::capacity);
    EXPECT_EQ(m_model.message(0).text, "begun");
    EXPECT_EQ(m_model.message(1).text, "lost");
    EXPECT_EQ(m_model.message(m_model.rowCount() - 1).text,
              QString::number(2 * MessageLogModel::capacity - 1));
    for (int row = 3; row < m_model.rowCount(); ++row)
        ASSERT_EQ(m_model.message(row).text.toInt(), m_model.message(row - 1).text.toInt() + 1);
}

TEST_F(MessageLogTest, TakesNoLesserEntryWhenAllThatFillsItMattersMore)
{
    for (int number = 0; number < MessageLogModel::capacity; ++number)
        m_service.addEntry(Warning, "Somebody", QString::number(number), {});
    m_service.addEntry(Information, "Somebody", "less", {});
    EXPECT_EQ(m_model.rowCount(), MessageLogModel::capacity);
    EXPECT_EQ(m_model.message(0).text, "0");
    m_service.addEntry(Error, "Somebody", "more", {});
    EXPECT_EQ(m_model.message(0).text, "1000");
    EXPECT_EQ(m_model.message(m_model.rowCount() - 1).text, "more");
}

TEST_F(MessageLogTest, ShowsTheWholeNameOfEachLevel)
{
    auto* levels = m_panel.findChild<QComboBox*>("level");
    levels->setCurrentIndex(0);
    auto* view = m_panel.findChild<QTreeView*>("messages");
    for (const ELogLevel level : {Debug, Information, Warning, Error, Fatal}) {
        m_service.addEntry(level, "Somebody", "text", {});
        const QModelIndex index = view->model()->index(level, MessageLogModel::Level);
        EXPECT_GE(view->columnWidth(MessageLogModel::Level), view->sizeHintForIndex(index).width());
    }
}

TEST_F(MessageLogTest, HidesLowerLevels)
{
    for (const ELogLevel level : {Debug, Information, Warning, Error, Fatal})
        m_service.addEntry(level, "Somebody", "text", {});
    auto* levels = m_panel.findChild<QComboBox*>("level");
    const int shown[] = {5, 4, 3, 2};
    EXPECT_EQ(shownRows(), shown[Information]) << "debug entries are for who asks for them";
    for (int level = Debug; level <= Error; ++level) {
        levels->setCurrentIndex(level);
        EXPECT_EQ(shownRows(), shown[level]);
    }
}

TEST_F(MessageLogTest, FindsWordsInSourceAndTextWithoutRegardToCase)
{
    m_service.addEntry(Warning, "Camera", "is lost", {});
    m_service.addEntry(Warning, "Disk", "is full [100 %]", {});
    auto* filter = m_panel.findChild<QLineEdit*>("filter");
    QTest::keyClicks(filter, "camera");
    EXPECT_EQ(shownRows(), 1);
    waitForAnimations(m_panel);
    filter->clear();
    waitForAnimations(m_panel);
    QTest::keyClicks(filter, "FULL [");
    EXPECT_EQ(shownRows(), 1);
    waitForAnimations(m_panel);
    filter->clear();
    waitForAnimations(m_panel);
    EXPECT_EQ(shownRows(), 2);
}

TEST_F(MessageLogTest, CopiesTheSelectedMessagesElseAllThatAreShown)
{
    const QDateTime time(QDate(2001, 2, 3), QTime(4, 5, 6, 7));
    m_service.addEntry(Warning, "A", "first", time);
    m_service.addEntry(Error, "B", "second", time);
    m_service.addEntry(Debug, "C", "hidden", time);
    m_panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_panel));
    QTest::mouseClick(m_panel.findChild<QToolButton*>("copyButton"), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "2001-02-03T04:05:06.007\tWarning\tA\tfirst\n"
                                                    "2001-02-03T04:05:06.007\tError\tB\tsecond\n");
    auto* view = m_panel.findChild<QTreeView*>("messages");
    view->setCurrentIndex(view->model()->index(1, 0));
    QTest::mouseClick(m_panel.findChild<QToolButton*>("copyButton"), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "2001-02-03T04:05:06.007\tError\tB\tsecond\n");
    QTest::mouseClick(m_panel.findChild<QToolButton*>("clearButton"), Qt::LeftButton);
    EXPECT_EQ(m_model.rowCount(), 0);
}

} // namespace
} // namespace Viewer
