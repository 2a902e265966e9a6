// SPDX-License-Identifier: Apache-2.0
// The pages of results without a mouse.
#include "resultspages.h"

#include <QTest>

#include <algorithm>

namespace {

class Keyboard : public ResultsPages
{
protected:
    Keyboard()
    {
        m_model.m_exhibition = true;
        m_model.m_userSets = R"({"UserSets":[{"User Set 1":"UserSet1"}]})";
    }

    void openPage(int step)
    {
        open(step);
        // Every control is enabled: without a live image the single shot is.
        m_view->rootObject()->setProperty("autoRefreshChecked", false);
        if (step == 4)
            item("userSets")->setProperty("currentIndex", 1);
        m_log.made.clear();
    }

    QString focus()
    {
        auto* focused = m_view->activeFocusItem();
        while (focused && focused->objectName().isEmpty())
            focused = focused->parentItem();
        return focused ? focused->objectName() : QString();
    }

    /// What has the focus after each press of the key, until it comes round to the first.
    QStringList round(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QStringList names;
        QQuickItem* first = nullptr;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(m_view.get(), key, modifiers);
            if (m_view->activeFocusItem() == first)
                break;
            if (!first)
                first = m_view->activeFocusItem();
            names << focus();
        }
        return names;
    }
};

TEST_F(Keyboard, ReachesEveryControlOfTheResults)
{
    openPage(3);
    const QStringList all{"report0",    "recalibrateButton", "singleShotButton",    "backButton",
                          "nextButton", "cancelButton",      "autoRefreshCheckBox", "reports"};
    EXPECT_EQ(round(Qt::Key_Tab), all);
}

TEST_F(Keyboard, ReachesEveryControlOfSaving)
{
    openPage(4);
    item("cancelButton")->forceActiveFocus();
    const QStringList all{"imageSlider",      "autoRefreshCheckBox",
                          "textInput",        "openIcon",
                          "textInput",        "openIcon",
                          "userSets",         "saveSettingsAsDefault",
                          "saveButton",       "recalibrateButton",
                          "singleShotButton", "backButton",
                          "nextButton",       "cancelButton"};
    EXPECT_EQ(round(Qt::Key_Tab), all);
    QStringList backwards{all};
    std::reverse(backwards.begin(), backwards.end());
    EXPECT_EQ(round(Qt::Key_Backtab, Qt::ShiftModifier), backwards);
}

TEST_F(Keyboard, ChoosesReportsByArrows)
{
    openPage(3);
    press(Qt::Key_Down);
    EXPECT_EQ(item("reports")->property("currentIndex"), 1);
    EXPECT_TRUE(item("report1")->isVisible());
    press(Qt::Key_Up);
    EXPECT_EQ(item("reports")->property("currentIndex"), 0);
}

TEST_F(Keyboard, ScrollsATableSideways)
{
    openPage(3);
    auto* table = item("report3");
    item("reports")->setProperty("currentIndex", 3);
    // Ten columns, of which the first is 90 wide and the others 75.
    const double hidden = 90 + 9 * 75 - table->property("viewport").value<QQuickItem*>()->width();
    auto* bar = table->property("__horizontalScrollBar").value<QObject*>();
    ASSERT_TRUE(waitFor([&] {
        picture();
        return bar->property("maximumValue").toDouble() == hidden;
    }));
    table->forceActiveFocus();
    auto* flickable = table->property("flickableItem").value<QQuickItem*>();
    EXPECT_EQ(flickable->property("contentX"), 0);
    press(Qt::Key_Right);
    EXPECT_EQ(flickable->property("contentX"), 60);
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Right);
    EXPECT_EQ(flickable->property("contentX"), hidden);
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Left);
    EXPECT_EQ(flickable->property("contentX"), 0);
}

TEST_F(Keyboard, GoesOnFromTheResultsWhateverHasTheFocus)
{
    m_model.m_results = R"({"Colors":{"Patch01":{"Current":"#000001"}}})";
    for (const char* name : {"reports", "report0", "recalibrateButton", "autoRefreshCheckBox"}) {
        openPage(3);
        picture();
        item(name)->forceActiveFocus();
        if (QString(name) == "report0")
            press(Qt::Key_Down);
        press(Qt::Key_Return);
        EXPECT_EQ(m_model.activeStep(), 4) << name;
    }
}

TEST_F(Keyboard, FinishesFromTheFirstMomentOfSaving)
{
    openPage(3);
    press(Qt::Key_Return);
    ASSERT_EQ(m_model.activeStep(), 4);
    press(Qt::Key_Return);
    EXPECT_EQ(m_log.made.last(), "finish()");
}

TEST_F(Keyboard, TakesATypedFolderWithReturnInsteadOfFinishing)
{
    openPage(4);
    auto* input = item("calibrationFile")->findChild<QQuickItem*>("textInput");
    input->forceActiveFocus();
    for (const auto& [key, text] : {std::pair(Qt::Key_Return, "/x"), {Qt::Key_Enter, "/y"}}) {
        input->setProperty("text", text);
        press(key);
        EXPECT_EQ(m_model.m_settingsFile, text);
        EXPECT_FALSE(m_log.made.contains("finish()"));
        EXPECT_EQ(m_model.activeStep(), 4);
    }
}

TEST_F(Keyboard, AsksBeforeItGivesUp)
{
    for (int step : {3, 4}) {
        openPage(step);
        press(Qt::Key_Escape);
        EXPECT_FALSE(takeMessage("cancelWarningDialog").isEmpty()) << step;
        EXPECT_FALSE(m_log.made.contains("cancel()"));
    }
}

TEST_F(Keyboard, ChoosesAUserSetByArrows)
{
    openPage(4);
    auto* sets = item("userSets");
    sets->forceActiveFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(sets->property("currentIndex"), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(sets->property("currentText"), "User Set 1");
}

TEST_F(Keyboard, ChoosesTheDefaultBySpace)
{
    openPage(4);
    item("saveSettingsAsDefault")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(item("saveSettingsAsDefault")->property("checked").toBool());
}

} // namespace
