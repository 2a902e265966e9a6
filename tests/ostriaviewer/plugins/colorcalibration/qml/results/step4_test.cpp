// SPDX-License-Identifier: Apache-2.0
// The page that saves: what is called, in which order, and what is told.
#include "resultspages.h"

#include <QSettings>
#include <QTest>

namespace {

const char* const selectOption =
    "You haven’t selected any of the save options. To save settings or results, select one of "
    "the available options.<br>";
const char* const saveCalls[] = {"saveSettingsToFilePath()", "saveSummaryToFilePath()"};

class Step4 : public ResultsPages
{
protected:
    Step4()
    {
        m_model.m_userSets =
            R"({"UserSets":[{"User Set 1":"UserSet1"},{"User Set 2":"UserSet2"}]})";
    }

    void openPage()
    {
        open(4);
        m_log.made.clear();
    }

    void save() { call(page("toolBoxLoader"), "saveAllSettings"); }
    void chooseUserSet(int index) { item("userSets")->setProperty("currentIndex", index); }
    bool canSave() { return item("saveButton")->isEnabled(); }

    QQuickItem* in(const char* field, const char* name)
    {
        return item(field)->findChild<QQuickItem*>(name);
    }

    void type(const char* field, const QString& text)
    {
        in(field, "textInput")->forceActiveFocus();
        for (const QChar character : text)
            QTest::keyClick(m_view.get(), character.toLatin1());
    }
};

TEST_F(Step4, OffersNoneAndTheUserSets)
{
    openPage();
    EXPECT_EQ(item("userSets")->property("model").toStringList(),
              (QStringList{"None", "User Set 1", "User Set 2"}));
}

TEST_F(Step4, OffersNoneAloneWhereThereAreNoUserSets)
{
    m_model.m_userSets = "{}";
    openPage();
    EXPECT_EQ(item("userSets")->property("model").toStringList(), QStringList{"None"});
}

TEST_F(Step4, CanSaveOnlyWhatIsChosen)
{
    openPage();
    EXPECT_FALSE(canSave());
    chooseUserSet(1);
    EXPECT_TRUE(canSave());
    chooseUserSet(0);
    EXPECT_FALSE(canSave());
    m_model.setProperty("calibrationFileToSave", "/a");
    EXPECT_TRUE(canSave());
    m_model.setProperty("calibrationFileToSave", "");
    EXPECT_FALSE(canSave());
    m_model.setProperty("summaryFileToSave", "/b");
    EXPECT_TRUE(canSave());
}

TEST_F(Step4, AsksForAChoiceWhereNothingIsChosen)
{
    openPage();
    save();
    EXPECT_EQ(takeMessage(), selectOption);
    EXPECT_TRUE(m_log.made.isEmpty());
}

TEST_F(Step4, SavesBothFilesWhicheverIsChosen)
{
    for (const char* property : {"calibrationFileToSave", "summaryFileToSave"}) {
        openPage();
        m_model.setProperty(property, "/a");
        save();
        EXPECT_EQ(m_log.made, (QStringList{saveCalls[0], saveCalls[1]}));
        EXPECT_EQ(takeMessage(), "");
        m_model.setProperty(property, "");
    }
}

TEST_F(Step4, TellsWhichFileCouldNotBeSaved)
{
    openPage();
    m_model.setProperty("calibrationFileToSave", "/a");
    m_log.failing = {"saveSettingsToFilePath()"};
    save();
    EXPECT_EQ(m_log.made, (QStringList{saveCalls[0], saveCalls[1]}));
    EXPECT_EQ(takeMessage(), "Couldn't save settings to file path!<br>");
    m_log.failing = {"saveSummaryToFilePath()"};
    save();
    EXPECT_EQ(takeMessage(), "Couldn't save summary!<br>");
    m_log.failing = {"saveSettingsToFilePath()", "saveSummaryToFilePath()"};
    save();
    EXPECT_EQ(takeMessage(), "Couldn't save summary!<br>");
}

TEST_F(Step4, StoresAUserSetWithTheLiveImageStopped)
{
    openPage();
    chooseUserSet(1);
    QTest::ignoreMessage(QtDebugMsg, "Store Settings in user set: UserSet1");
    save();
    EXPECT_EQ(m_log.made, (QStringList{saveCalls[0], saveCalls[1], "stopGrab()",
                                       "storeSettingsInUserSet(UserSet1,false)", "startGrab()"}));
    EXPECT_EQ(takeMessage(), "");
}

TEST_F(Step4, StoresAUserSetAsDefault)
{
    openPage();
    m_view->rootObject()->setProperty("autoRefreshChecked", false);
    chooseUserSet(2);
    click(item("saveSettingsAsDefault"));
    ASSERT_TRUE(item("saveSettingsAsDefault")->property("checked").toBool());
    m_log.made.clear();
    save();
    EXPECT_EQ(m_log.made,
              (QStringList{saveCalls[0], saveCalls[1], "storeSettingsInUserSet(UserSet2,true)"}));
}

TEST_F(Step4, StartsTheLiveImageAgainAfterAUserSetThatCouldNotBeStored)
{
    openPage();
    chooseUserSet(1);
    m_log.failing = {"storeSettingsInUserSet", "saveSummaryToFilePath()"};
    save();
    EXPECT_EQ(m_log.made.last(), "startGrab()");
    EXPECT_EQ(takeMessage(), "Couldn't store settings in user set: UserSet1");
}

TEST_F(Step4, CanSaveAgain)
{
    openPage();
    m_model.setProperty("summaryFileToSave", "/a");
    click(item("saveButton"));
    item("saveButton")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(m_log.made, (QStringList{saveCalls[0], saveCalls[1], saveCalls[0], saveCalls[1]}));
    EXPECT_EQ(m_model.activeStep(), 4);
}

TEST_F(Step4, TakesATypedPathOverWhenSaving)
{
    openPage();
    type("calibrationFile", "/ab");
    EXPECT_TRUE(canSave());
    EXPECT_EQ(m_model.m_settingsFile, "");
    click(item("saveButton"));
    EXPECT_EQ(m_model.m_settingsFile, "/ab");
    EXPECT_TRUE(item("saveButton")->hasActiveFocus());
    type("summaryFile", "/cd");
    click(item("saveButton"));
    EXPECT_EQ(m_model.m_summaryFile, "/cd");
    EXPECT_EQ(takeMessage(), "");
    EXPECT_EQ(m_log.made, (QStringList{saveCalls[0], saveCalls[1], saveCalls[0], saveCalls[1]}));
}

TEST_F(Step4, TakesThePathOfAChosenFolder)
{
    m_model.m_location = "file:///home/me";
    openPage();
    FileDialogDouble::s_answer = QUrl("file:///home/me/my%20files");
    in("calibrationFile", "openIcon")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(m_model.m_settingsFile, "/home/me/my files");
    EXPECT_EQ(FileDialogDouble::s_folder, QUrl("file:///home/me"));
    EXPECT_EQ(item("calibrationFile")->property("text"), "/home/me/my files");
    FileDialogDouble::s_answer = QUrl("file:///summaries");
    click(in("summaryFile", "openIcon"));
    EXPECT_EQ(m_model.m_summaryFile, "/summaries");
    EXPECT_EQ(m_model.m_settingsFile, "/home/me/my files");
}

TEST_F(Step4, LeavesThePathWhereNoFolderIsChosen)
{
    openPage();
    m_model.setProperty("calibrationFileToSave", "/old");
    FileDialogDouble::s_answer = QUrl();
    click(in("calibrationFile", "openIcon"));
    EXPECT_EQ(m_model.m_settingsFile, "/old");
}

TEST_F(Step4, BeginsWhereTheSettingsRemember)
{
    QSettings settings;
    settings.setValue("ColCalPlugin/Paths/SaveCalibration/folder", "file:///calibrations");
    settings.setValue("ColCalPlugin/Paths/SummaryReport/folder", "file:///reports");
    settings.sync();
    openPage();
    FileDialogDouble::s_answer = QUrl("file:///elsewhere");
    click(in("calibrationFile", "openIcon"));
    EXPECT_EQ(FileDialogDouble::s_folder, QUrl("file:///calibrations"));
    click(in("summaryFile", "openIcon"));
    EXPECT_EQ(FileDialogDouble::s_folder, QUrl("file:///reports"));
}

TEST_F(Step4, CannotSaveWhileThePageIsDisabled)
{
    openPage();
    chooseUserSet(1);
    call(page("toolBoxLoader"), "setEnabled", false);
    EXPECT_FALSE(canSave());
    EXPECT_FALSE(item("nextButton")->isEnabled());
    call(page("toolBoxLoader"), "setEnabled", true);
    EXPECT_TRUE(canSave());
}

TEST_F(Step4, LeavesACameraAloneThatIsLostWhileItSaves)
{
    openPage();
    chooseUserSet(1);
    m_log.failing = {"saveSummaryToFilePath()"};
    m_log.during["saveSummaryToFilePath()"] = [this] {
        emit m_model.cameraLost();
    };
    save();
    EXPECT_EQ(m_log.made, (QStringList{saveCalls[0], saveCalls[1]}));
    EXPECT_EQ(takeMessage(), "");
}

} // namespace
