// SPDX-License-Identifier: Apache-2.0
// Tests of what the scene of the wizard asks of the model.
#include "qmldatamodelinterface.h"

#include "logrecorder.h"
#include "recordingmodel.h"

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QJsonArray>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace ColorCalibration {
namespace {

/// Puts texts on cameras into brackets.
class InBrackets : public QTranslator
{
public:
    InBrackets() { QCoreApplication::installTranslator(this); }
    ~InBrackets() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (QString(context) != "Core::CameraPoolComponents::CameraTexts")
            return {};
        return QString("[%1]").arg(text);
    }
    bool isEmpty() const override { return false; }
};

class QmlDataModelCallsTest : public testing::Test
{
protected:
    bool call(const char* name)
    {
        bool result = false;
        EXPECT_TRUE(QMetaObject::invokeMethod(&m_data, name, Q_RETURN_ARG(bool, result))) << name;
        return result;
    }
    void callVoid(const char* name)
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(&m_data, name)) << name;
    }
    QString text(const char* name)
    {
        QString result;
        EXPECT_TRUE(QMetaObject::invokeMethod(&m_data, name, Q_RETURN_ARG(QString, result)));
        return result;
    }
    QStringList logTexts() const
    {
        QStringList texts;
        for (const QList<QVariant>& entry : m_logged)
            texts << QString::number(entry[1].value<Core::Logging::ELogLevel>()) + " " +
                         entry[0].toString();
        return texts;
    }

    RecordingModel m_model;
    QmlDataModelInterface m_data{&m_model};
    QSignalSpy m_logged{&m_data, &QmlDataModelInterface::forwardLogMessage};
};

TEST_F(QmlDataModelCallsTest, AnswersAreTheModels)
{
    const QVector<QPair<const char*, QString>> forwards{
        {"setNeutralSettings", "SetNeutralSettings"},
        {"restoreDetectedExposureAndGain", "RestoreDetectedExposureAndGain"},
        {"storeDetectedExposureAndGain", "StoreDetectedExposureAndGain"},
        {"autoAdjustGray80PercentPatch", "AutoAdjustGray80PercentPatch"},
        {"executeWhitebalance", "ExecuteWhitebalance"},
        {"applyInitialColorPatchValues", "ApplyInitialColorPatchValues"},
        {"applyInitialCameraImageAndPatchValues", "ApplyInitialCameraImageAndPatchValues"}};
    for (const auto& forward : forwards) {
        m_model.refused.clear();
        EXPECT_TRUE(call(forward.first)) << forward.first;
        EXPECT_EQ(m_model.takeCalls(), QStringList(forward.second));
        m_model.refused = {forward.second};
        EXPECT_FALSE(call(forward.first)) << forward.first;
        m_model.takeCalls();
    }
    callVoid("activateMonoImage");
    EXPECT_EQ(m_model.takeCalls(), QStringList("ActivateMonoImage"));
    callVoid("disableAutoFunctions");
}

TEST_F(QmlDataModelCallsTest, TellsInTheUsersLanguageWhatFailsWithTheSettings)
{
    const InBrackets translator;
    EXPECT_EQ(text("restoreProblem"), "[The camera's original settings couldn't be restored. Check "
                                      "the connection of the camera and try again, or cancel.]");
    EXPECT_EQ(text("backupProblem"), "[The camera's settings couldn't be backed up. Check the "
                                     "connection of the camera and try again, or cancel.]");
    m_model.refused = {"CreateSettingsBackup", "RestoreSettingsBackup"};
    call("createSettingsBackup");
    callVoid("cancel");
    const QString notRestored = "[The camera's original settings couldn't be restored. Load them "
                                "from a user set or a settings file.]";
    EXPECT_EQ(logTexts(), (QStringList{"3 " + text("backupProblem"), "3 " + notRestored}));
    EXPECT_EQ(m_data.takeClosingProblem(), notRestored);
}

TEST_F(QmlDataModelCallsTest, TellsAtEveryEndThatNobodyKnowsWhatAUserSetHolds)
{
    const InBrackets translator;
    const QString uncertain =
        "[The connection to the camera was lost while its settings were being stored in the user "
        "set \"UserSet2\". Whether it holds the new settings is not known. Open the camera again "
        "and check it, and which user set the camera starts with.]";
    m_model.uncertainUserSet = "UserSet2";
    for (const char* end : {"cancel", "finish"}) {
        m_logged.clear();
        callVoid(end);
        EXPECT_EQ(logTexts(), QStringList("3 " + uncertain));
        EXPECT_EQ(m_data.takeClosingProblem(), uncertain);
        EXPECT_EQ(m_data.takeClosingProblem(), "") << "once";
    }
    m_model.uncertainUserSet.clear();
    callVoid("cancel");
    EXPECT_EQ(m_data.takeClosingProblem(), "");
}

TEST_F(QmlDataModelCallsTest, TellsEachProblemOfTheEndOnce)
{
    m_model.uncertainUserSet = "UserSet2";
    m_model.isBackupOwed = true;
    m_data.abandon();
    m_data.abandon();
    EXPECT_EQ(m_data.takeClosingProblem(),
              "The camera's original settings couldn't be restored. Load them from a user set or a "
              "settings file.\n\nThe connection to the camera was lost while its settings were "
              "being stored in the user set \"UserSet2\". Whether it holds the new settings is "
              "not known. Open the camera again and check it, and which user set the camera starts "
              "with.");
}

TEST_F(QmlDataModelCallsTest, BackupsAreThoseForGivingTheCameraBackUnlessSaidOtherwise)
{
    EXPECT_TRUE(call("createSettingsBackup"));
    EXPECT_TRUE(call("restoreSettingsBackup"));
    EXPECT_TRUE(m_data.createSettingsBackup(true));
    EXPECT_TRUE(m_data.restoreSettingsBackup(true));
    EXPECT_EQ(m_model.calls(),
              QStringList({"CreateSettingsBackup false", "RestoreSettingsBackup false",
                           "CreateSettingsBackup true", "RestoreSettingsBackup true"}));
}

TEST_F(QmlDataModelCallsTest, ABackupThatFailsIsTold)
{
    m_model.refused = {"CreateSettingsBackup", "RestoreSettingsBackup"};
    EXPECT_FALSE(call("createSettingsBackup"));
    ASSERT_EQ(m_logged.count(), 1);
    EXPECT_TRUE(logTexts().last().startsWith("3 ")) << "an error";
    EXPECT_FALSE(call("restoreSettingsBackup"));
    ASSERT_EQ(m_logged.count(), 2);
    EXPECT_TRUE(logTexts().last().startsWith("3 ")) << "an error";
    EXPECT_FALSE(m_data.restoreSettingsBackup(true));
    EXPECT_EQ(m_logged.count(), 2) << "the page has a message of its own";
}

TEST_F(QmlDataModelCallsTest, CancelRestoresAndClosesWhateverTheRestoreAnswers)
{
    const QSignalSpy canceled(&m_data, &QmlDataModelInterface::signalCancel);
    callVoid("cancel");
    EXPECT_EQ(m_model.takeCalls(), QStringList({"StopGrabbing", "RestoreSettingsBackup false"}));
    EXPECT_EQ(canceled.count(), 1);
    EXPECT_TRUE(m_logged.isEmpty());
    m_model.refused = {"RestoreSettingsBackup", "StopGrabbing"};
    callVoid("cancel");
    EXPECT_EQ(canceled.count(), 2);
    ASSERT_EQ(m_logged.count(), 1) << "the user must know";
    EXPECT_TRUE(logTexts().first().startsWith("3 ")) << "an error";
}

TEST_F(QmlDataModelCallsTest, ABackupThatIsStillOwedIsTold)
{
    m_model.isBackupOwed = true;
    EXPECT_TRUE(call("restoreSettingsBackup"));
    EXPECT_EQ(m_logged.count(), 1);
    EXPECT_TRUE(m_data.restoreSettingsBackup(true));
    EXPECT_EQ(m_logged.count(), 1);
    EXPECT_TRUE(m_data.takeClosingProblem().isEmpty()) << "it may still come back";
    for (const char* end : {"cancel", "finish"}) {
        const int before = m_logged.count();
        callVoid(end);
        EXPECT_EQ(m_logged.count(), before + 1) << end;
        EXPECT_FALSE(m_data.takeClosingProblem().isEmpty()) << end;
    }
    m_model.isBackupOwed = false;
    callVoid("finish");
    EXPECT_TRUE(m_data.takeClosingProblem().isEmpty());
}

TEST_F(QmlDataModelCallsTest, FinishKeepsTheSettings)
{
    const QSignalSpy finished(&m_data, &QmlDataModelInterface::signalFinished);
    callVoid("finish");
    EXPECT_EQ(m_model.calls(), QStringList("StopGrabbing"));
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(QmlDataModelCallsTest, SettingsAreReadFromAFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("\u8a2d\u5b9a 1.cst"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Gain\t3\r\nDeviceUserID\t\xc3\xa9\n");
    file.close();
    EXPECT_TRUE(m_data.loadSettings(path));
    EXPECT_EQ(m_model.takeCalls(),
              QStringList(QString::fromUtf8("LoadSettings Gain\t3\r\nDeviceUserID\t\u00e9\n")));
    m_model.refused = {"LoadSettings"};
    EXPECT_FALSE(m_data.loadSettings(path));
}

TEST_F(QmlDataModelCallsTest, SettingsOfAnotherCameraAreNotLoaded)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("other.cst"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Gain\t3\n");
    file.close();
    m_model.refused = {"AreOwnSettings"};
    EXPECT_FALSE(m_data.loadSettings(file.fileName()));
    EXPECT_TRUE(m_model.calls().isEmpty());
}

TEST_F(QmlDataModelCallsTest, AFileThatCannotBeReadDoesNotTouchTheCamera)
{
    const QTemporaryDir folder;
    EXPECT_FALSE(m_data.loadSettings(folder.filePath("absent.cst")));
    EXPECT_FALSE(m_data.loadSettings(folder.path())) << "a folder";
    EXPECT_FALSE(m_data.loadSettings(QString()));
    QFile binary(folder.filePath("binary.cst"));
    ASSERT_TRUE(binary.open(QIODevice::WriteOnly));
    binary.write(QByteArray(1000, '\xfe'));
    binary.close();
    EXPECT_FALSE(m_data.loadSettings(binary.fileName()));
    ASSERT_TRUE(binary.open(QIODevice::WriteOnly));
    binary.write(QByteArray("Gain\t3\n\0\1", 9));
    binary.close();
    EXPECT_FALSE(m_data.loadSettings(binary.fileName())) << "with a line that is a setting";
    if (QFile::exists("/dev/zero")) {
        EXPECT_FALSE(m_data.loadSettings("/dev/zero")) << "a file without end";
    }
    EXPECT_TRUE(m_model.calls().isEmpty());
}

TEST_F(QmlDataModelCallsTest, TheReasonWhyAFileWasRefusedIsLogged)
{
    const LogRecorder log;
    const auto reason = [&log] {
        const auto entries = log.entries();
        return entries.isEmpty() ? QString() : entries.last().text;
    };
    const QTemporaryDir folder;
    const QString absent = folder.filePath("absent.cst");
    EXPECT_FALSE(m_data.loadSettings(absent));
    EXPECT_EQ(reason(),
              "QmlDataModelInterface::loadSettings:" + absent + ": No such file or directory");
    QFile text(folder.filePath("text.cst"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no settings\n");
    text.close();
    EXPECT_FALSE(m_data.loadSettings(text.fileName()));
    EXPECT_EQ(reason(), "QmlDataModelInterface::loadSettings:This is no settings file: no line has "
                        "a feature's name, a tab and a value.");
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("Gain\t3\n");
    ASSERT_TRUE(text.resize(100'000'000));
    text.close();
    EXPECT_FALSE(m_data.loadSettings(text.fileName()));
    EXPECT_EQ(reason(), "QmlDataModelInterface::loadSettings:The file is too large for a settings "
                        "file.");
    EXPECT_EQ(log.entries().size(), 3);
    for (const LogEntry& entry : log.entries())
        EXPECT_EQ(entry.level, Core::Logging::Warning);
}

TEST_F(QmlDataModelCallsTest, NothingChosenToSaveIsSuccessWithoutAWord)
{
    EXPECT_TRUE(call("saveSettingsToFilePath"));
    EXPECT_TRUE(call("saveSummaryToFilePath"));
    EXPECT_TRUE(m_model.calls().isEmpty());
    EXPECT_TRUE(m_logged.isEmpty());
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(QmlDataModelCallsTest, SavingTellsItsOutcome)
{
    m_data.setCalibrationFileToSave("/data/one");
    m_data.setSummaryFileToSave("/data/two");
    EXPECT_TRUE(call("saveSettingsToFilePath"));
    EXPECT_TRUE(call("saveSummaryToFilePath"));
    EXPECT_TRUE(m_data.storeSettingsInUserSet("UserSet1"));
    EXPECT_TRUE(m_data.storeSettingsInUserSet("UserSet2", true));
    EXPECT_EQ(m_model.takeCalls(),
              QStringList({"SaveSettingsToFile /data/one", "SaveSummaryToFile /data/two",
                           "StoreSettingsInUserSet UserSet1 false",
                           "StoreSettingsInUserSet UserSet2 true"}));
    EXPECT_EQ(logTexts(), QStringList({"1 Settings have been saved successfully in /data/one",
                                       "1 Summary has been saved successfully in /data/two",
                                       "1 Settings were saved successfully in UserSet1",
                                       "1 Settings were saved successfully in UserSet2"}));
}

TEST_F(QmlDataModelCallsTest, SavingTellsItsFailure)
{
    m_model.refused = {"SaveSettingsToFile", "SaveSummaryToFile", "StoreSettingsInUserSet"};
    m_data.setCalibrationFileToSave("/data/one");
    m_data.setSummaryFileToSave("/data/two");
    EXPECT_FALSE(call("saveSettingsToFilePath"));
    EXPECT_FALSE(call("saveSummaryToFilePath"));
    EXPECT_FALSE(m_data.storeSettingsInUserSet("UserSet1", true));
    EXPECT_EQ(logTexts(),
              QStringList({QString::fromUtf8("3 Settings couldn\u2019t be saved in /data/one"),
                           QString::fromUtf8("3 Summary couldn\u2019t be saved in /data/two"),
                           QString::fromUtf8("3 Settings couldn\u2019t be saved in UserSet1")}));
}

TEST_F(QmlDataModelCallsTest, TheCursorIsBusyWhileSaving)
{
    m_data.setSummaryFileToSave("/data/two");
    Qt::CursorShape during = Qt::ArrowCursor;
    QObject::connect(&m_data, &QmlDataModelInterface::forwardLogMessage, [&during] {
        if (const QCursor* cursor = QApplication::overrideCursor())
            during = cursor->shape();
    });
    m_data.saveSummaryToFilePath();
    EXPECT_EQ(during, Qt::BusyCursor);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(QmlDataModelCallsTest, ResultsAreThereWhenTheCalibrationReturns)
{
    m_model.results = QJsonObject{{"Original", QJsonObject{{"Gamma", "1"}}}};
    const QSignalSpy json(&m_data, &QmlDataModelInterface::calibrationsResultsJsonChanged);
    QString atSignal;
    QObject::connect(&m_data, &QmlDataModelInterface::calibrationFinished,
                     [&] { atSignal = m_data.getCalibrationsResultsJson(); });
    EXPECT_TRUE(call("executeCalibrationAndApply"));
    EXPECT_EQ(atSignal, R"({"Original":{"Gamma":"1"}})");
    EXPECT_EQ(m_data.property("calibrationsResultsJson").toString(), atSignal);
    EXPECT_EQ(json.count(), 0) << "pages read it after calibrationFinished";
    const QStringList calls = m_model.takeCalls();
    EXPECT_EQ(calls.value(1), "GetColorPatchValues true") << "measured under the new settings";
    EXPECT_EQ(calls.last(), "GetCalibrationResultsJson") << "and only then the results";

    EXPECT_TRUE(call("setNeutralSettings"));
    EXPECT_EQ(m_data.getCalibrationsResultsJson(), "{}");
}

TEST_F(QmlDataModelCallsTest, AFailedCalibrationHasNoResults)
{
    m_model.refused = {"ExecuteCalibrationAndApply"};
    const QSignalSpy finished(&m_data, &QmlDataModelInterface::calibrationFinished);
    EXPECT_FALSE(call("executeCalibrationAndApply"));
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(QmlDataModelCallsTest, UserSetsAreCompactText)
{
    m_model.userSets = QJsonObject{{"UserSets", QJsonArray{QJsonObject{{"Set 1", "UserSet1"}}}}};
    EXPECT_EQ(m_data.getAvailableUserSets(), R"({"UserSets":[{"Set 1":"UserSet1"}]})");
}

TEST_F(QmlDataModelCallsTest, TheOriginalImageHasANewAddressEachTime)
{
    const QSignalSpy changed(&m_data, &QmlDataModelInterface::originalImageUrlChanged);
    m_data.grabOriginalImage();
    EXPECT_EQ(m_data.originalImageUrl(), "image://cameraImageOriginal/0_1");
    m_data.grabOriginalImage();
    EXPECT_EQ(m_data.originalImageUrl(), "image://cameraImageOriginal/0_0");
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(QmlDataModelCallsTest, TheSavedGridIsTakenOverWithoutASignalAndThenHandedOn)
{
    m_model.outline = TrapezoidPoints({5, 6}, {70, 8}, {9, 100}, {110, 120});
    callVoid("getGridPosition");
    EXPECT_TRUE(m_model.calls().isEmpty());
    m_model.outline = TrapezoidPoints();
    callVoid("updateTrapezoidList");
    EXPECT_EQ(m_model.outline, TrapezoidPoints({5, 6}, {70, 8}, {9, 100}, {110, 120}));
}

} // namespace
} // namespace ColorCalibration
