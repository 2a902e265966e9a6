// SPDX-License-Identifier: Apache-2.0
// What "calibrate" saves, and what it says of what it cannot save.
#include "saving.h"

#include "calibrationsequence.h"
#include "cameras.h"
#include "command.h"
#include "commandtest.h"
#include "emulatedhost.h"
#include "genicamexception.h"
#include "registerstore.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QRegularExpression>

#include <gmock/gmock.h>

using namespace ColorCalibrate;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const QString camera = QStringLiteral("emA1920-60ucEMU");

class Saving : public CommandTest
{
protected:
    static Outcome calibrate(const QStringList& options)
    {
        return runTool(QStringList{QStringLiteral("calibrate"), QStringLiteral("--camera"), camera,
                                   QStringLiteral("--json")} +
                       options);
    }

    QStringList savedFiles() const
    {
        QStringList files;
        QDirIterator each(folder.path(), QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            files.append(QFileInfo(each.next()).fileName());
        files.sort();
        return files;
    }

    /// What the camera stands at when the next program opens it.
    struct Start
    {
        QString userSet;
        double gamma = 0.0;
    };

    static Start nextStart()
    {
        const ToolCameras cameras;
        const auto found = cameras.find(camera);
        EXPECT_TRUE(found->open());
        const auto features = found->parameterCollection();
        const Start start{features->enumerationParameter(QStringLiteral("UserSetDefault"))->value(),
                          features->floatParameter(QStringLiteral("Gamma"))->value()};
        found->close();
        return start;
    }
};

void calibrate(EmulatedHost& host, CalibrationSequence& sequence)
{
    SequenceOptions options;
    options.grid = host.chartGrid();
    options.adjustExposure = false;
    sequence.run(host.pointer(), options);
}

} // namespace

TEST_F(Saving, WritesSettingsAndSummary)
{
    const Outcome outcome = calibrate({QStringLiteral("--save-settings"), folder.path(),
                                       QStringLiteral("--save-summary"), folder.path()});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(
        savedFiles(),
        QStringList({QStringLiteral("Calibrated.cst"), QStringLiteral("calibrated.cst"),
                     QStringLiteral("calibrated.png"), QStringLiteral("calibration_report.html"),
                     QStringLiteral("original.cst"), QStringLiteral("original.png")}));
    const auto madeFolder = [this](const QString& name) {
        return path(QDir(folder.path()).entryList({name}, QDir::Dirs).value(0)).toStdString();
    };
    EXPECT_EQ(outcome.err, "Saved " + madeFolder(QStringLiteral("Camera_Settings_*")) + "\nSaved " +
                               madeFolder(QStringLiteral("Calibration_Report_*")) + "\n");
}

TEST_F(Saving, MakesTheFolderThatIsNamed)
{
    const QString made = path(QStringLiteral("new/Patient \"Ä\" 画像"));
    const Outcome outcome = calibrate({QStringLiteral("--save-settings"), made});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(savedFiles(), QStringList{QStringLiteral("Calibrated.cst")});
}

TEST_F(Saving, TheReportComesAgainFromWhatWasPrinted)
{
    const Outcome outcome = calibrate({QStringLiteral("--save-summary"), folder.path()});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const auto onlyReport = [](const QString& directory) {
        const QStringList folders = QDir(directory).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        EXPECT_EQ(folders.size(), 1);
        QFile file(directory + QLatin1Char('/') + folders.value(0) +
                   QStringLiteral("/calibration_report.html"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QString html = QString::fromUtf8(file.readAll());
        html.remove(QRegularExpression(QStringLiteral("<div class=\"report-info\">.*</div>")));
        return qMakePair(folders.value(0).section(QLatin1Char('_'), 0, 2), html);
    };
    const auto first = onlyReport(folder.path());
    const QString again = path(QStringLiteral("again"));
    const Outcome report =
        runTool({QStringLiteral("report"),
                 writeFile(QStringLiteral("results.json"), QByteArray::fromStdString(outcome.out)),
                 QStringLiteral("--out"), again});
    ASSERT_EQ(report.code, 0) << report.err;
    EXPECT_EQ(onlyReport(again), first);
}

TEST_F(Saving, TellsTheResultsObject)
{
    const Outcome outcome = calibrate({});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const QJsonObject results = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out))
                                    .object()
                                    .value(QStringLiteral("results"))
                                    .toObject();
    EXPECT_EQ(results.keys(),
              QStringList({QStringLiteral("Calibrated"), QStringLiteral("Colors"),
                           QStringLiteral("Original"), QStringLiteral("PreciseColors")}));
    EXPECT_EQ(results.value(QStringLiteral("Colors")).toObject().size(), 24);
}

TEST_F(Saving, TheCameraComesUpCalibratedFromItsDefaultUserSet)
{
    const Start before = nextStart();
    EXPECT_EQ(before.userSet, QStringLiteral("Default"));
    const Outcome outcome = calibrate(
        {QStringLiteral("--user-set"), QStringLiteral("UserSet2"), QStringLiteral("--default")});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const double calibrated = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out))
                                  .object()
                                  .value(QStringLiteral("gamma"))
                                  .toDouble();
    const Start after = nextStart();
    EXPECT_EQ(after.userSet, QStringLiteral("UserSet2"));
    EXPECT_NEAR(after.gamma, calibrated, 0.01);
    EXPECT_NE(after.gamma, before.gamma);
}

TEST_F(Saving, AUserSetThatIsNotTheDefaultWaitsToBeLoaded)
{
    const Start before = nextStart();
    const Outcome outcome = calibrate({QStringLiteral("--user-set"), QStringLiteral("UserSet1")});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const Start after = nextStart();
    EXPECT_EQ(after.userSet, QStringLiteral("Default"));
    EXPECT_EQ(after.gamma, before.gamma);
}

TEST_F(Saving, NamesTheUserSetsThatThereAreBeforeItTouchesTheCamera)
{
    const Outcome outcome = calibrate({QStringLiteral("--user-set"), QStringLiteral("Default")});
    EXPECT_EQ(outcome.code, WorkFailed);
    EXPECT_THAT(outcome.err, HasSubstr("no user set \"Default\"; there are UserSet1, UserSet2, "
                                       "UserSet3"));
}

TEST_F(Saving, RefusesFoldersItCannotUseBeforeItTouchesTheCamera)
{
    QFile file(path(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Outcome outcome = calibrate({QStringLiteral("--save-summary"), file.fileName()});
    EXPECT_EQ(outcome.code, WorkFailed);
    EXPECT_THAT(outcome.err, HasSubstr("is no folder"));
    const Outcome below = calibrate(
        {QStringLiteral("--save-settings"), file.fileName() + QStringLiteral("/new/below")});
    EXPECT_EQ(below.code, WorkFailed);
    EXPECT_THAT(below.err, HasSubstr("file\" is no folder"));
    EXPECT_EQ(calibrate({QStringLiteral("--default")}).code, WrongUsage);
    EXPECT_EQ(calibrate({QStringLiteral("--save-settings"), QString()}).code, WrongUsage);
}

TEST_F(Saving, SaysThatTheCalibrationStandsWhereItCannotBeSaved)
{
    // No file system takes a name as long.
    const Outcome outcome = calibrate(
        {QStringLiteral("--save-settings"), path(QString(5000, QLatin1Char('x'))),
         QStringLiteral("--user-set"), QStringLiteral("UserSet3"), QStringLiteral("--default")});
    EXPECT_EQ(outcome.code, WorkFailed);
    EXPECT_THAT(outcome.err, HasSubstr("the camera is calibrated and stays so"));
    EXPECT_THAT(outcome.err, HasSubstr("xxx (Cannot make the folder"));
    EXPECT_THAT(outcome.err,
                HasSubstr("File name too long. Choose a folder that may be written to.)"));
    EXPECT_THAT(outcome.err, Not(HasSubstr("Saved")));
    EXPECT_EQ(nextStart().userSet, QStringLiteral("UserSet3"));
    const QJsonObject printed =
        QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    EXPECT_EQ(printed.value(QStringLiteral("results")).toObject().size(), 4)
        << "the outcome is what a report can still be made of: " << outcome.out;
}

TEST_F(Saving, TellsWhatWasSavedBesideWhatCouldNotBe)
{
    const Outcome outcome =
        calibrate({QStringLiteral("--save-settings"), path(QString(5000, QLatin1Char('x'))),
                   QStringLiteral("--save-summary"), folder.path()});
    EXPECT_EQ(outcome.code, WorkFailed);
    const QString made = QDir(folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0);
    EXPECT_THAT(outcome.err,
                StartsWith("Saved " + path(made).toStdString() + "\ncolorcalibrate: "));
    EXPECT_THAT(outcome.err, HasSubstr("could not be saved: settings in "));
    EXPECT_THAT(outcome.err, Not(HasSubstr("summary in")));
}

TEST_F(Saving, NoSettingsFileDecidesHowTheCameraStarts)
{
    const Outcome outcome =
        calibrate({QStringLiteral("--settings"),
                   writeFile(QStringLiteral("start.cst"), "UserSetDefault\tUserSet3\nGamma\t1\n"),
                   // The table beside the chart.
                   QStringLiteral("--grid"), QStringLiteral("0,0 200,0 0,120 200,120")});
    EXPECT_EQ(outcome.code, WorkFailed);
    EXPECT_THAT(outcome.err, HasSubstr("Line 1: UserSetDefault: skipped"));
    EXPECT_THAT(outcome.err, HasSubstr("the camera's settings are as they were"));
    EXPECT_EQ(nextStart().userSet, QStringLiteral("Default"));
}

TEST_F(CommandTest, SavingEndsBeforeItsNextStepWhenItIsCancelled)
{
    EmulatedHost host(reduced(supportedModels().at(1)));
    ASSERT_TRUE(host.camera().open());
    host.setExposure(20000.0);
    const QString before = host.settings();
    CalibrationSequence sequence(
        host.model(), [](const QString&) {}, [] { return false; });
    calibrate(host, sequence);
    ASSERT_NE(host.settings().toStdString(), before.toStdString());

    SavingOptions options;
    options.settingsFolder = path(QStringLiteral("settings"));
    options.summaryFolder = path(QStringLiteral("summary"));
    options.userSet = QStringLiteral("UserSet1");
    options.asDefault = true;
    const QStringList all{QStringLiteral("Saving the settings"),
                          QStringLiteral("Saving the summary"),
                          QStringLiteral("Storing the user set")};
    const auto startSet =
        host.camera().parameterCollection()->enumerationParameter(QStringLiteral("UserSetDefault"));
    for (int last = 0; last <= all.size(); ++last) {
        QStringList steps;
        const SavingOutcome outcome = saveOutcome(
            host.model(), options, [&](const QString& step) { steps.append(step); },
            [&] { return steps.size() >= last; });
        EXPECT_EQ(steps, all.mid(0, last));
        EXPECT_EQ(outcome.failures, QStringList());
        // Nothing takes a stored user set back.
        EXPECT_EQ(outcome.isCancelled, last < all.size()) << last;
        EXPECT_EQ(startSet->value(),
                  last < all.size() ? QStringLiteral("Default") : options.userSet);
    }
    // Without a user set the last file can be regretted.
    options.userSet.clear();
    int steps = 0;
    EXPECT_TRUE(
        saveOutcome(
            host.model(), options, [&](const QString&) { ++steps; }, [&] { return steps == 2; })
            .isCancelled);

    startSet->setValue(QStringLiteral("Default"));
    sequence.giveBack();
    EXPECT_EQ(host.settings().toStdString(), before.toStdString());
    EXPECT_FALSE(host.model().StopGrabbing()) << "the model has been closed";
}

TEST_F(CommandTest, SavingSaysThatTheCameraWasLostBeforeIt)
{
    EmulatedHost host(reduced(supportedModels().at(1)));
    ASSERT_TRUE(host.camera().open());
    host.setExposure(20000.0);
    CalibrationSequence sequence(
        host.model(), [](const QString&) {}, [] { return false; });
    calibrate(host, sequence);
    host.camera().loseConnection();

    SavingOptions options;
    options.settingsFolder = path(QStringLiteral("settings"));
    options.userSet = QStringLiteral("UserSet1");
    const SavingOutcome outcome = saveOutcome(
        host.model(), options, [](const QString&) {}, [] { return false; });
    EXPECT_EQ(
        outcome.failures,
        QStringList({QStringLiteral("settings in %1 (the camera has been disconnected)")
                         .arg(options.settingsFolder),
                     QStringLiteral("user set UserSet1 (the camera has been disconnected)")}));
    EXPECT_THAT(unsavedMessage(outcome).toStdString(),
                StartsWith("the camera was calibrated and then lost, so look whether it still is; "
                           "this could not be saved: settings in "));
}

// Nobody knows whether the camera has carried the command out whose answer did not come.
TEST_F(CommandTest, SavingSaysThatTheCameraWasLostWhileItStored)
{
    EmulatedHost host(reduced(supportedModels().at(1)));
    ASSERT_TRUE(host.camera().open());
    host.setExposure(20000.0);
    CalibrationSequence sequence(
        host.model(), [](const QString&) {}, [] { return false; });
    calibrate(host, sequence);
    host.camera().registers()->setWriteHook(
        [&](const Cameras::Emulation::FeatureDefinition& feature, int) {
            if (feature.name != QLatin1String("UserSetSave"))
                return;
            host.camera().registers()->setReachable(false);
            throw GenICam::RuntimeException("timeout");
        });

    SavingOptions options;
    options.settingsFolder = path(QStringLiteral("settings"));
    options.userSet = QStringLiteral("UserSet1");
    options.asDefault = true;
    const SavingOutcome outcome = saveOutcome(
        host.model(), options, [](const QString&) {}, [] { return false; });
    EXPECT_EQ(outcome.folders.size(), 1);
    EXPECT_EQ(outcome.failures, QStringList());
    EXPECT_FALSE(isAllSaved(outcome));
    EXPECT_EQ(unsavedMessage(outcome).toStdString(),
              "the camera was calibrated and then lost, so look whether it still is; the "
              "connection was lost while the user set UserSet1 was being stored, and whether it "
              "holds the new settings is not known: open the camera again and check it, and which "
              "user set the camera starts with");
    host.camera().loseConnection();
}

TEST_F(CommandTest, SavingSaysThatARefusedUserSetLeavesTheCalibration)
{
    EmulatedHost host(reduced(supportedModels().at(1)));
    ASSERT_TRUE(host.camera().open());
    host.setExposure(20000.0);
    CalibrationSequence sequence(
        host.model(), [](const QString&) {}, [] { return false; });
    calibrate(host, sequence);
    host.camera().refuseWrites(QStringLiteral("UserSetSave"));

    SavingOptions options;
    options.userSet = QStringLiteral("UserSet1");
    options.asDefault = true;
    const SavingOutcome outcome = saveOutcome(
        host.model(), options, [](const QString&) {}, [] { return false; });
    EXPECT_FALSE(outcome.isCameraLost);
    EXPECT_EQ(unsavedMessage(outcome).toStdString(),
              "the camera is calibrated and stays so, but this could not be saved: user set "
              "UserSet1 (UserSetSave: The camera refuses the value.)");
    EXPECT_EQ(host.camera()
                  .parameterCollection()
                  ->enumerationParameter(QStringLiteral("UserSetDefault"))
                  ->value(),
              QStringLiteral("Default"));
}
