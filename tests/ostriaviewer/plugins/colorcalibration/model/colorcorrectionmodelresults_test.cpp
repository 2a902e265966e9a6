// SPDX-License-Identifier: Apache-2.0
// Tests of what the model shows and keeps of a calibration.
#include "baseexception.h"
#include "modeltest.h"

#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>

using namespace ColorCalibration;

namespace {

class ModelResultsTest : public ModelTest
{
protected:
    ModelResultsTest() { addUserSets(); }

    void addUserSets()
    {
        m_camera->parameters().addEnumeration("UserSetSelector",
                                              {"Default", "UserSet1", "MYUSERSET2", "Factory"});
    }

    bool calibrate()
    {
        QVector<QColor> colors;
        return open() && m_model.CreateSettingsBackup(false) &&
               m_model.ApplyInitialCameraImageAndPatchValues() &&
               m_model.ApplyInitialColorPatchValues() && m_model.ExecuteCalibrationAndApply() &&
               m_model.GetColorPatchValues(colors, true) == 24;
    }

    /// Lets every call to the camera that begins like this throw.
    void failAt(const QString& start)
    {
        m_camera->features().beforeCall = [start](const QString& call) {
            if (call.startsWith(start))
                throw Core::Exception::BaseException("reason");
        };
    }

    /// Lets the camera vanish in its first call that begins like this.
    void loseAt(const QString& start)
    {
        m_camera->features().beforeCall = [this, start](const QString& call) {
            if (m_camera->open && call.startsWith(start)) {
                m_camera->loseConnection();
                throw Core::Exception::BaseException("reason");
            }
        };
    }

    QStringList saved(const QString& filter) const
    {
        return QDir(m_folder.path()).entryList({filter}, QDir::Dirs | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
};

TEST_F(ModelResultsTest, NothingHappensWithoutACamera)
{
    EXPECT_TRUE(m_model.GetCalibrationResultsJson().isEmpty());
    EXPECT_TRUE(m_model.GetAvailableUserSetsJson().isEmpty());
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_FALSE(m_model.SaveSettingsToFile(m_folder.path()));
    EXPECT_FALSE(m_model.SaveSummaryToFile(m_folder.path()));
    EXPECT_TRUE(saved("*").isEmpty());
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelResultsTest, ResultsTakeSettingsBeforeFromTheNormalBackupAndStopGrabbing)
{
    ASSERT_TRUE(calibrate());
    m_camera->parameters().addFloat("Gamma", 9.0);
    ASSERT_TRUE(m_model.CreateSettingsBackup(true));
    m_camera->parameters().addFloat("Gamma", 5.0);
    m_camera->grabbing = true;
    const QJsonObject results = m_model.GetCalibrationResultsJson();
    EXPECT_FALSE(m_camera->grabbing);
    EXPECT_EQ(results.keys(), (QStringList{"Calibrated", "Colors", "Original", "PreciseColors"}));
    EXPECT_EQ(results["Original"].toObject()["Gamma"], "0.25");
    EXPECT_EQ(results["Calibrated"].toObject()["Gamma"], "5");
}

TEST_F(ModelResultsTest, ResultsHoldTheThreeListsOfColors)
{
    ASSERT_TRUE(calibrate());
    QVector<QColor> initial;
    QVector<QColor> target;
    QVector<QColor> current;
    m_model.GetInitialColorPatchValues(initial);
    m_model.GetTargetColorPatchValues(target);
    m_model.GetCurrentColorPatchValues(current);
    ASSERT_EQ(current.size(), 24);
    const QJsonObject colors = m_model.GetCalibrationResultsJson()["Colors"].toObject();
    EXPECT_EQ(colors.size(), 24);
    const QJsonObject patch = colors["Patch15"].toObject();
    EXPECT_EQ(patch["Initial"], initial[14].name());
    EXPECT_EQ(patch["Target"], target[14].name());
    EXPECT_EQ(patch["Current"], current[14].name());
}

TEST_F(ModelResultsTest, ResultsThatFailAreEmptyAndLogged)
{
    ASSERT_TRUE(calibrate());
    const int before = m_log.entries().size();
    failAt("save");
    EXPECT_TRUE(m_model.GetCalibrationResultsJson().isEmpty());
    EXPECT_EQ(logTexts().mid(before),
              (QStringList{"2 Get calibration results failed.",
                           "2 ColorCorrectionModelImpl::GetCalibrationResultsJson:reason"}));
    EXPECT_FALSE(m_model.SaveSettingsToFile(m_folder.path()));
    EXPECT_FALSE(m_model.SaveSummaryToFile(m_folder.path()));
    EXPECT_TRUE(saved("*").isEmpty());
}

TEST_F(ModelResultsTest, ListsUserSetsThatCanBeChosenWhateverTheCaseOfTheirNames)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetAvailableUserSetsJson(),
              (QJsonObject{{"UserSets", QJsonArray{QJsonObject{{"UserSet1", "UserSet1"}},
                                                   QJsonObject{{"MYUSERSET2", "MYUSERSET2"}}}}}));
}

TEST_F(ModelResultsTest, StoresAndStaysArmed)
{
    ASSERT_TRUE(calibrate());
    m_camera->grabbing = true;
    m_camera->features().forget();
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_FALSE(m_camera->grabbing);
    EXPECT_EQ(writes(), (QStringList{"UserSetSelector = UserSet1", "execute UserSetSave"}));
    m_camera->features().forget();
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("MYUSERSET2", true));
    EXPECT_EQ(writes(), (QStringList{"UserSetSelector = MYUSERSET2", "UserSetDefault = MYUSERSET2",
                                     "execute UserSetSave"}));
    m_camera->features().forget();
    ASSERT_TRUE(m_model.ExecuteWhitebalance());
    EXPECT_EQ(writes().mid(writes().size() - 3),
              (QStringList{"UserSetSelector = MYUSERSET2", "UserSetDefault = MYUSERSET2",
                           "execute UserSetSave"}))
        << "a group that is written later is saved again";
}

TEST_F(ModelResultsTest, ReplacingAUserSetIsToldOnce)
{
    ASSERT_TRUE(calibrate());
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_TRUE(logTexts().isEmpty());
    m_camera->features().forget();
    ASSERT_TRUE(m_model.SetNeutralSettings());
    EXPECT_TRUE(writes().contains("execute UserSetSave"));
    EXPECT_EQ(
        logTexts(),
        QStringList("2 The user set \"UserSet1\" follows the camera's settings until the camera "
                    "is closed: what was stored in it has just been replaced. Store it anew "
                    "when the calibration is done."));
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", true));
    ASSERT_TRUE(m_model.ExecuteWhitebalance());
    EXPECT_EQ(logTexts().size(), 2) << "once for each storing";
}

TEST_F(ModelResultsTest, AnotherCameraGetsNoneOfTheFirstOnesResults)
{
    ASSERT_TRUE(calibrate());
    ASSERT_FALSE(m_model.GetCalibrationResultsJson()["Colors"].toObject().isEmpty());
    ASSERT_TRUE(m_model.Close());
    use(newCamera());
    ASSERT_TRUE(open());
    EXPECT_TRUE(m_model.GetCalibrationResultsJson()["Colors"].toObject().isEmpty());
    QImage image;
    EXPECT_FALSE(m_model.GetInitialCameraImage(image));
    EXPECT_FALSE(m_model.SaveSummaryToFile(m_folder.path()));
    QVector<QColor> colors;
    EXPECT_EQ(m_model.GetInitialColorPatchValues(colors), 0);
    ASSERT_EQ(m_model.GetColorPatchValues(colors, true), 24);
    const QJsonObject patches = m_model.GetCalibrationResultsJson()["Colors"].toObject();
    ASSERT_EQ(patches.size(), 24);
    EXPECT_EQ(patches["Patch15"].toObject()["Initial"], "N/A");
}

TEST_F(ModelResultsTest, AnotherCameraIsNotCalibratedFromTheFirstOnesColors)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    ASSERT_TRUE(m_model.Close());
    use(newCamera());
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(writes(), QStringList());
}

TEST_F(ModelResultsTest, IsNotArmedAfterTheCameraWasClosed)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", false));
    ASSERT_TRUE(m_model.Close());
    ASSERT_TRUE(open());
    m_camera->features().forget();
    ASSERT_TRUE(m_model.ExecuteWhitebalance());
    EXPECT_FALSE(writes().contains("execute UserSetSave"));
}

TEST_F(ModelResultsTest, UserSetsThatFailAreLogged)
{
    ASSERT_TRUE(open());
    failAt("UserSetSelector");
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Store settings in UserSet failed.",
                           "2 ColorCorrectionModelImpl::StoreSettingsInUserSet:reason"}));
}

TEST_F(ModelResultsTest, AUserSetThatRefusesLeavesDefaultAndStateAsTheyWere)
{
    m_camera->parameters().addEnumeration("UserSetDefault", {"Default", "UserSet1", "MYUSERSET2"});
    ASSERT_TRUE(open());
    failAt("execute UserSetSave");
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_EQ(m_camera->features().get("UserSetDefault").value, "Default")
        << "the camera would start with a set that lacks the settings";
    EXPECT_EQ(m_camera->features().get("UserSetSelector").value, "Default");
    EXPECT_EQ(m_model.UncertainUserSet(), "");
    EXPECT_TRUE(m_model.IsCameraOpen());
    m_camera->features().beforeCall = nullptr;
    m_camera->features().forget();
    EXPECT_TRUE(m_model.ExecuteWhitebalance());
    EXPECT_FALSE(writes().contains("execute UserSetSave")) << "not armed";

    ASSERT_TRUE(m_model.StoreSettingsInUserSet("MYUSERSET2", false));
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("NoSuchSet", true));
    m_camera->features().forget();
    ASSERT_TRUE(m_model.ExecuteWhitebalance());
    EXPECT_EQ(writes().mid(writes().size() - 2),
              (QStringList{"UserSetSelector = MYUSERSET2", "execute UserSetSave"}))
        << "armed as it was";
}

TEST_F(ModelResultsTest, ACameraLostWithinTheStoringCommandLeavesTheUserSetUncertain)
{
    m_camera->parameters().addEnumeration("UserSetDefault", {"Default", "UserSet1", "MYUSERSET2"});
    ASSERT_TRUE(open());
    EXPECT_TRUE(m_model.IsCameraOpen());
    loseAt("execute UserSetSave");
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_EQ(m_model.UncertainUserSet(), "UserSet1");
    EXPECT_FALSE(m_model.IsCameraOpen());
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Store settings in UserSet failed.",
                           "2 ColorCorrectionModelImpl::StoreSettingsInUserSet:The camera may "
                           "start with the user set \"UserSet1\", which may not have been saved: "
                           "it could not be told to start with \"Default\" again. reason"}));
    ASSERT_TRUE(m_model.Close());
    EXPECT_EQ(m_model.UncertainUserSet(), "");
}

TEST_F(ModelResultsTest, ACameraLostWhileALaterGroupStoresLeavesTheUserSetUncertain)
{
    ASSERT_TRUE(calibrate());
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("MYUSERSET2", false));
    EXPECT_EQ(m_model.UncertainUserSet(), "");
    loseAt("execute UserSetSave");
    EXPECT_FALSE(m_model.SetNeutralSettings());
    EXPECT_EQ(m_model.UncertainUserSet(), "MYUSERSET2");
}

TEST_F(ModelResultsTest, AUserSetIsCertainWhereTheCameraWasLostBefore)
{
    ASSERT_TRUE(open());
    loseAt("UserSetSelector = ");
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_FALSE(m_model.IsCameraOpen());
    EXPECT_EQ(m_model.UncertainUserSet(), "");
}

TEST_F(ModelResultsTest, StoringAnewSettlesAnUncertainUserSet)
{
    ASSERT_TRUE(open());
    // Silent for a while, and there again.
    bool isSilent = false;
    m_camera->features().beforeCall = [&](const QString& call) {
        isSilent = isSilent || call == "execute UserSetSave";
        if (isSilent)
            throw GenICam::RuntimeException("reason");
    };
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_EQ(m_model.UncertainUserSet(), "UserSet1");
    m_camera->features().beforeCall = nullptr;
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("MYUSERSET2", false));
    EXPECT_EQ(m_model.UncertainUserSet(), "UserSet1") << "another one says nothing of it";
    failAt("execute UserSetSave");
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_EQ(m_model.UncertainUserSet(), "UserSet1") << "a refusal does not settle it";
    m_camera->features().beforeCall = nullptr;
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_EQ(m_model.UncertainUserSet(), "");
}

TEST_F(ModelResultsTest, TheDefaultIsReadOnlyWhereItIsToBeChanged)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    ASSERT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", false));
    EXPECT_FALSE(m_camera->features().journal().contains("read value of UserSetDefault"));
    m_camera->features().beforeCall = [](const QString& call) {
        if (call.startsWith("read value of UserSet"))
            throw GenICam::RuntimeException("reason");
    };
    EXPECT_TRUE(m_model.StoreSettingsInUserSet("UserSet1", true)) << "nothing to come back to";
}

TEST_F(ModelResultsTest, ADefaultThatDoesNotComeBackIsTold)
{
    m_camera->parameters().addEnumeration("UserSetDefault", {"Default", "UserSet1"});
    ASSERT_TRUE(open());
    m_camera->features().beforeCall = [](const QString& call) {
        if (call.startsWith("UserSetDefault = Default") || call.startsWith("try UserSetDefault") ||
            call.startsWith("execute UserSetSave"))
            throw Core::Exception::BaseException("reason");
    };
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Store settings in UserSet failed.",
                           "2 ColorCorrectionModelImpl::StoreSettingsInUserSet:The camera may "
                           "start with the user set \"UserSet1\", which was not saved: it could "
                           "not be told to start with \"Default\" again. reason"}));
}

TEST_F(ModelResultsTest, ADefaultThatDoesNotComeBackIsToldOfALostCamera)
{
    m_camera->parameters().addEnumeration("UserSetDefault", {"Default", "UserSet1"});
    ASSERT_TRUE(open());
    m_camera->features().beforeCall = [isLost = false](const QString& call) mutable {
        isLost = isLost || call.startsWith("execute UserSetSave");
        if (isLost && call != "features")
            throw Core::Exception::BaseException("lost");
    };
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_TRUE(logTexts().last().contains("The camera may start with the user set \"UserSet1\""))
        << logTexts().last().toStdString();
}

TEST_F(ModelResultsTest, ADefaultThatWasNeverLeftIsNotMissed)
{
    m_camera->parameters().addEnumeration("UserSetDefault", {"Default", "UserSet1"});
    ASSERT_TRUE(open());
    m_camera->features().beforeCall = [](const QString& call) {
        if (call.startsWith("UserSetDefault = ") || call.startsWith("try UserSetDefault"))
            throw Core::Exception::BaseException("reason");
    };
    EXPECT_FALSE(m_model.StoreSettingsInUserSet("UserSet1", true));
    EXPECT_EQ(m_camera->features().get("UserSetDefault").value, "Default");
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Store settings in UserSet failed.",
                           "2 ColorCorrectionModelImpl::StoreSettingsInUserSet:reason"}));
}

TEST_F(ModelResultsTest, WhatWasMeasuredBeforeACalibrationIsNotItsOutcome)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.ApplyInitialCameraImageAndPatchValues());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_TRUE(m_model.GetCalibrationResultsJson()["Colors"].toObject().isEmpty());
    EXPECT_FALSE(m_model.SaveSummaryToFile(m_folder.path()));
    EXPECT_TRUE(logTexts().last().contains("calibrated.png")) << "no image of other settings";
}

TEST_F(ModelResultsTest, ACameraWithoutUserSetsSaysSo)
{
    use(QSharedPointer<FakeCamera>::create());
    m_camera->parameters().addFloat("Gain", 1.0);
    m_camera->parameters().addFloat("ExposureTime", 1.0);
    ASSERT_TRUE(open());
    EXPECT_TRUE(m_model.GetAvailableUserSetsJson().isEmpty());
    EXPECT_EQ(logTexts(), (QStringList{"2 Get available usersets failed.",
                                       "2 ColorCorrectionModelImpl::GetAvailableUserSetsJson: "
                                       "UserSetSelector does not exist"}));
}

TEST_F(ModelResultsTest, SavingFetchesTheResultsWhereThereAreNone)
{
    ASSERT_TRUE(calibrate());
    ASSERT_TRUE(m_model.SaveSettingsToFile(m_folder.path()));
    ASSERT_TRUE(m_model.SaveSummaryToFile(m_folder.path()));
    EXPECT_EQ(saved("Camera_Settings_Tavrin_Fake 100_*").size(), 1);
    ASSERT_EQ(saved("Calibration_Report_Fake 100_*").size(), 1);
    const QString report = m_folder.filePath(saved("Calibration_Report_*").first());
    EXPECT_EQ(QDir(report).entryList(QDir::Files).size(), 5);
    QImage initial;
    ASSERT_TRUE(m_model.GetInitialCameraImage(initial));
    EXPECT_EQ(QImage(report + "/original.png").convertToFormat(QImage::Format_RGB32),
              initial.convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(m_camera->features().journal().count("save @CameraDevice"), 2)
        << "the backup, and the settings once for both";
}

TEST_F(ModelResultsTest, SavingKeepsWhatWasFetchedLast)
{
    ASSERT_TRUE(calibrate());
    m_camera->parameters().addFloat("Gamma", 5.0);
    ASSERT_FALSE(m_model.GetCalibrationResultsJson().isEmpty());
    m_camera->parameters().addFloat("Gamma", 6.0);
    ASSERT_TRUE(m_model.SaveSettingsToFile(m_folder.path()));
    QFile file(m_folder.filePath(saved("*").first()) + "/Calibrated.cst");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Gamma\t5\n"));
}

TEST_F(ModelResultsTest, ANewCalibrationIsFetchedAnew)
{
    ASSERT_TRUE(calibrate());
    ASSERT_FALSE(m_model.GetCalibrationResultsJson().isEmpty());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    m_camera->parameters().addFloat("Gamma", 6.0);
    ASSERT_TRUE(m_model.SaveSettingsToFile(m_folder.path()));
    QFile file(m_folder.filePath(saved("*").first()) + "/Calibrated.cst");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Gamma\t6\n"));
}

TEST_F(ModelResultsTest, ResultsWithoutPatchesAreFetchedAgain)
{
    ASSERT_TRUE(calibrate());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    QVector<QColor> colors;
    m_camera->delivery = Delivery::Refused;
    EXPECT_EQ(m_model.GetColorPatchValues(colors, true), 0);
    EXPECT_TRUE(m_model.GetCalibrationResultsJson()["Colors"].toObject().isEmpty());
    m_camera->delivery = Delivery::AtOnce;
    ASSERT_EQ(m_model.GetColorPatchValues(colors, true), 24);
    ASSERT_TRUE(m_model.SaveSummaryToFile(m_folder.path()));
    QFile report(m_folder.filePath(saved("*").first()) + "/calibration_report.html");
    ASSERT_TRUE(report.open(QIODevice::ReadOnly));
    EXPECT_EQ(report.readAll().count("R: "), 24 * 3);
}

TEST_F(ModelResultsTest, ASummaryWithoutAnImageFailsAndSaysWhy)
{
    ASSERT_TRUE(open());
    EXPECT_FALSE(m_model.SaveSummaryToFile(m_folder.path()));
    ASSERT_FALSE(logTexts().isEmpty());
    EXPECT_TRUE(logTexts().last().contains("there is no image"));
}

} // namespace
