// SPDX-License-Identifier: Apache-2.0
// Tests of the model's settings: neutral state, backups, files, exposure and gain.
#include "expectedwrites.h"
#include "modeltest.h"

#include <QBuffer>
#include <QTemporaryFile>

#include <limits>

using namespace ColorCalibration;

namespace {

std::string text(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n')).toStdString();
}

ColorAdjustment neutralAdjustment()
{
    ColorAdjustment adjustment;
    adjustment = 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1;
    return adjustment;
}

const QStringList neutralHsbcAndLut{
    "TvrHue = 0",      "TvrSaturation = 1",       "TvrBrightness = 0",
    "TvrContrast = 0", "LUTSelector = Luminance", "LUTEnable = false verified"};

TEST_F(ModelTest, NeutralSettingsOfANewCameraHaveTheirOrder)
{
    ASSERT_TRUE(open());
    m_camera->grabbing = true;
    m_camera->features().forget();
    EXPECT_TRUE(m_model.SetNeutralSettings());
    EXPECT_FALSE(m_camera->grabbing);
    EXPECT_EQ(text(writes()), text(QStringList{"BlackLevelSelector = All", "BlackLevel = 0",
                                               "Gamma = 1", "LightSourcePreset = Off"} +
                                   gainWrites(dlib::identity_matrix<double>(3)) +
                                   QStringList{"LightSourcePreset = Off"} + neutralHsbcAndLut +
                                   sectorWrites(neutralAdjustment()) +
                                   balanceWrites("BalanceRatio", 1.0, 1.0, 1.0) +
                                   QStringList{"DemosaicingMode = Simple"} + autoFunctionWrites()));
}

TEST_F(ModelTest, NeutralSettingsOfAnOldCameraHaveTheirOrder)
{
    use(oldCamera());
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.SetNeutralSettings());
    EXPECT_EQ(
        text(writes()),
        text(QStringList{"BlackLevelSelector = All", "BlackLevelRaw = 0 verified",
                         "GammaSelector = User", "Gamma = 1", "GammaEnable = false verified",
                         "ProcessedRawEnable = true verified", "LightSourceSelector = Custom"} +
             gainWrites(dlib::identity_matrix<double>(3)) + neutralHsbcAndLut +
             QStringList{"ColorAdjustmentEnable = false verified"} +
             balanceWrites("BalanceRatioAbs", 1.0, 1.0, 1.0) +
             QStringList{"DemosaicingMode = Simple"} + autoFunctionWrites()));
}

TEST_F(ModelTest, BackupsStopGrabbingAndComeBack)
{
    ASSERT_TRUE(open());
    m_camera->grabbing = true;
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false)) << "an empty backup restores nothing";
    EXPECT_FALSE(m_camera->grabbing);
    EXPECT_TRUE(m_model.CreateSettingsBackup(false));
    m_camera->parameters().addFloat("Gamma", 7.0);
    EXPECT_TRUE(m_model.CreateSettingsBackup(true));
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 0.25);
    EXPECT_TRUE(m_model.RestoreSettingsBackup(true));
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 7.0);
}

TEST_F(ModelTest, BackupsEndWithTheCamera)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.Close());
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, SettingsAreLoadedFromTextAndDevice)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.LoadSettings("Gamma\t3\nNoSuchFeature\t1\n"));
    QByteArray bytes("Gamma\t5\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    EXPECT_TRUE(m_model.LoadSettingsFromDevice(&device));
    EXPECT_FALSE(m_model.LoadSettingsFromDevice(nullptr));
    EXPECT_EQ(writes(), (QStringList{"load @CameraDevice: Gamma\t3\nNoSuchFeature\t1\n",
                                     "load @CameraDevice: Gamma\t5\n"}));
    EXPECT_EQ(logTexts().size(), 1);
    EXPECT_TRUE(logTexts().first().contains("NoSuchFeature"));
}

TEST_F(ModelTest, FilesThatAreNoSettingsAreRefused)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    for (const QByteArray& bytes : {QByteArray(), QByteArray("# Gamma\t1\n"),
                                    QByteArray("Gamma 1\r\n"), QByteArray("\t1\n")}) {
        QBuffer device;
        device.setData(bytes);
        device.open(QIODevice::ReadOnly);
        EXPECT_FALSE(m_model.LoadSettingsFromDevice(&device));
        EXPECT_EQ(logTexts().last(), "2 ColorCorrectionModelImpl::LoadSettingsFromDevice:This is "
                                     "no settings file: no line has a "
                                     "feature's name, a tab and a value.");
    }
    QBuffer large;
    large.setData(QByteArray(1024 * 1024 - 8, '#') + "\nGamma\t3\n");
    large.open(QIODevice::ReadOnly);
    EXPECT_FALSE(m_model.LoadSettingsFromDevice(&large));
    EXPECT_EQ(logTexts().last(), "2 ColorCorrectionModelImpl::LoadSettingsFromDevice:The file is "
                                 "too large for a settings file.");
    EXPECT_TRUE(writes().isEmpty());
    QByteArray longest = large.data().mid(1);
    QBuffer device(&longest);
    device.open(QIODevice::ReadOnly);
    EXPECT_TRUE(m_model.LoadSettingsFromDevice(&device));
    EXPECT_EQ(m_camera->features().get("Gamma").value, "3");
}

TEST_F(ModelTest, BinaryFilesAreRefusedWhateverTheyHold)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    for (const QByteArray& bytes :
         {QByteArray("\x7f"
                     "ELF\0\1\2\xff",
                     8),
          QByteArray(100'000, '\0'), QByteArray("Gamma\t3\n\0", 9),
          QByteArray("G\0a\0m\0m\0a\0\t\0003\0\n\0", 16), QByteArray(100'000, '\xff'),
          // Each with a sign that is none, at the end half of one.
          QByteArray("Gamma\t3\nName\tK\xfcr\n"), QByteArray("# K\xfcr\nGamma\t3\n"),
          QByteArray("Gamma\t3\n\xed\xa0\x80\n"), QByteArray("Gamma\t3\n# \xe6\xa0")}) {
        QBuffer device;
        device.setData(bytes);
        device.open(QIODevice::ReadOnly);
        EXPECT_FALSE(m_model.LoadSettingsFromDevice(&device));
        EXPECT_EQ(logTexts().last(), "2 ColorCorrectionModelImpl::LoadSettingsFromDevice:This is "
                                     "no settings file: it is no text in UTF-8.");
    }
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, TextInUtf8IsNoBinaryFile)
{
    ASSERT_TRUE(open());
    // A byte order mark, umlauts, Japanese, and the sign for what another program could not read.
    QByteArray bytes("\xef\xbb\xbf# K\xc3\xbcr \xe6\xa0\xa1 \xef\xbf\xbd\nGamma\t3\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    EXPECT_TRUE(m_model.LoadSettingsFromDevice(&device));
    EXPECT_EQ(m_camera->features().get("Gamma").value, "3");
}

TEST_F(ModelTest, NamesThatAFileCannotMeanAreNotTheCamerasOwn)
{
    ASSERT_TRUE(open());
    m_camera->parameters().addCommand("UserSetSave");
    EXPECT_TRUE(m_model.AreOwnSettings("Gamma\t1\n"));
    for (const QString other : {"Foo|Gamma", "Gamma|Foo", "@CameraDevice/Gamma", "UserSetSave"}) {
        EXPECT_FALSE(m_model.AreOwnSettings(other + "\t1\n")) << other.toStdString();
        EXPECT_TRUE(m_model.AreOwnSettings(other + "\t1\nGamma\t1\n")) << other.toStdString();
    }
}

TEST_F(ModelTest, AFileOfAnotherCamerasSettingsIsRefused)
{
    EXPECT_TRUE(m_model.AreOwnSettings("Other\t3\n")) << "no camera to ask";
    ASSERT_TRUE(open());
    m_camera->features().forget();
    QByteArray bytes("Other\t3\nElse\t2\n# Gamma\t1\nGamma 1\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    EXPECT_FALSE(m_model.LoadSettingsFromDevice(&device));
    EXPECT_TRUE(writes().isEmpty());
    EXPECT_EQ(logTexts(), QStringList("2 ColorCorrectionModelImpl::AreOwnSettings:The camera has "
                                      "none of the features in this settings file."));
    EXPECT_TRUE(m_model.AreOwnSettings("Other\t3\nGamma\t2\n"));
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, AFileOfAHundredMegabytesIsRefused)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("Gamma\t3\n");
    ASSERT_TRUE(file.resize(100'000'000));
    file.seek(0);
    EXPECT_FALSE(m_model.LoadSettingsFromDevice(&file));
    EXPECT_EQ(logTexts(), QStringList("2 ColorCorrectionModelImpl::LoadSettingsFromDevice:The file "
                                      "is too large for a settings file."));
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, ASettingThatDoesNotComeBackIsTold)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_TRUE(logTexts().isEmpty());
    m_camera->features().remove("Gamma");
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(logTexts(), QStringList("2 A setting of the camera did not come back: Gamma\t0.25"));
}

TEST_F(ModelTest, ASettingThatTheCameraRefusesButHasIsNeitherToldNorOwed)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.CreateSettingsBackup(true));
    ASSERT_TRUE(m_model.SetNeutralSettings());
    m_camera->features().change("PixelFormat", [](FakeFeature& one) { one.refuses = true; });
    m_camera->features().change("Width", [](FakeFeature& one) { one.writable = false; });
    EXPECT_TRUE(m_model.RestoreSettingsBackup(true));
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_FALSE(m_model.IsBackupOwed());
    EXPECT_EQ(logTexts(), QStringList());
}

TEST_F(ModelTest, OnlyWhatDiffersIsToldOfWhatTheCameraRefuses)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    for (const char* name : {"Gamma", "PixelFormat"})
        m_camera->features().change(name, [](FakeFeature& one) { one.refuses = true; });
    m_camera->features().change("Gamma", [](FakeFeature& one) { one.value = 1.0; });
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(logTexts(), QStringList("2 A setting of the camera did not come back: Gamma\t0.25"));
    EXPECT_TRUE(m_model.IsBackupOwed());
    m_camera->features().change("Gamma", [](FakeFeature& one) { one.value = 0.25; });
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_FALSE(m_model.IsBackupOwed()) << "it has come back by itself";
}

TEST_F(ModelTest, ASettingThatDidNotComeBackComesWithALaterBackup)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    m_camera->features().remove("Gamma");
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    m_camera->parameters().addFloat("Gamma", 7.0);
    ASSERT_TRUE(m_model.CreateSettingsBackup(false)) << "of a state that is not the user's";
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 0.25);

    m_camera->parameters().addFloat("Gamma", 9.0);
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 7.0) << "nothing is owed now";
}

TEST_F(ModelTest, ALaterBackupBringsWhatTheOwedOneDoesNotKnow)
{
    ASSERT_TRUE(open());
    m_camera->features().remove("TvrHue");
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    m_camera->features().remove("Gamma");
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    ASSERT_TRUE(m_model.IsBackupOwed());
    m_camera->parameters().addFloat("Gamma", 7.0);
    m_camera->parameters().addFloat("TvrHue", 5.0);
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    m_camera->parameters().addFloat("TvrHue", 9.0);
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(m_camera->features().get("TvrHue").value.toDouble(), 5.0);
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 0.25);
}

TEST_F(ModelTest, ABackupIsOwedUntilItIsBackWhole)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.SetNeutralSettings());
    EXPECT_FALSE(m_model.IsBackupOwed()) << "there is none";
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    EXPECT_FALSE(m_model.IsBackupOwed());
    ASSERT_TRUE(m_model.SetNeutralSettings());
    EXPECT_TRUE(m_model.IsBackupOwed());

    m_camera->features().remove("Gamma");
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_TRUE(m_model.IsBackupOwed()) << "a setting is missing";
    EXPECT_EQ(logTexts().filter("did not come back").size(), 1) << "written once";

    m_camera->parameters().addFloat("Gamma", 7.0);
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_FALSE(m_model.IsBackupOwed());
    ASSERT_TRUE(m_model.LoadSettings("Gamma\t2\n"));
    EXPECT_TRUE(m_model.IsBackupOwed());
}

TEST_F(ModelTest, ABackupAfterACalibrationThatWasKeptReplacesTheOneBefore)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.SetNeutralSettings());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    m_camera->parameters().addFloat("Gamma", 7.0);
    ASSERT_TRUE(m_model.CreateSettingsBackup(true)) << "for the image of before alone";
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.SetNeutralSettings());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 7.0);
    EXPECT_EQ(writes().filter("load ").size(), 1);
    EXPECT_FALSE(m_model.IsBackupOwed());
}

TEST_F(ModelTest, ABackupForTheImageOfBeforeLeavesTheOtherOneOwed)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.SetNeutralSettings());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    ASSERT_TRUE(m_model.CreateSettingsBackup(true));
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(m_camera->features().get("Gamma").value.toDouble(), 0.25);
}

TEST_F(ModelTest, ALostCameraStillOwesItsBackup)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.SetNeutralSettings());
    m_camera->loseConnection();
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_TRUE(m_model.IsBackupOwed());
    m_model.Close();
    EXPECT_FALSE(m_model.IsBackupOwed());
}

TEST_F(ModelTest, EverySettingThatIsNotLoadedIsTold)
{
    ASSERT_TRUE(open());
    EXPECT_TRUE(m_model.LoadSettings("None\t1\nGamma\t2\nNor this\t3\n"));
    EXPECT_EQ(logTexts(), (QStringList{"2 A setting was not loaded: None\t1",
                                       "2 A setting was not loaded: Nor this\t3"}));
    const int before = logTexts().size();
    EXPECT_TRUE(m_model.LoadSettings(QString("None\t1\n").repeated(250)));
    EXPECT_EQ(logTexts().size() - before, 201) << "few enough to read";
    EXPECT_EQ(logTexts().last(), "2 At least 50 more lines of settings were skipped.");
}

TEST_F(ModelTest, MonoImageAndAutoFunctionsReachTheCamera)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    m_model.ActivateMonoImage();
    m_model.DisableAutoFunctions();
    EXPECT_EQ(text(writes()),
              text(QStringList{"try PixelFormat = Mono8", "try PixelFormat = Mono12"} +
                   autoFunctionWrites()));
}

TEST_F(ModelTest, ExposureTimeIsReadAndWrittenAsItIs)
{
    ASSERT_TRUE(open());
    double lowest = 0.0;
    double value = 0.0;
    double highest = 0.0;
    m_camera->features().forget();
    ASSERT_TRUE(m_model.GetExposureTimeRange(lowest, value, highest));
    EXPECT_EQ(lowest, 10.0);
    EXPECT_EQ(value, 1000.0);
    EXPECT_EQ(highest, 100000.0);
    EXPECT_EQ(m_camera->features().journal(),
              (QStringList{"read minimum of ExposureTime", "read maximum of ExposureTime",
                           "read value of ExposureTime"}));
    EXPECT_TRUE(m_model.SetExposureTime(123.25));
    EXPECT_EQ(m_model.GetExposureTime(), 123.25);
}

TEST_F(ModelTest, ExposureTimeOfOldCamerasHasTheirName)
{
    use(oldCamera());
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.SetExposureTime(50.0));
    EXPECT_EQ(writes(), QStringList{"ExposureTimeAbs = 50"});
}

TEST_F(ModelTest, GainPrefersTheFloatParameter)
{
    ASSERT_TRUE(open());
    double lowest = 0.0;
    double value = 0.0;
    double highest = 0.0;
    m_camera->features().forget();
    ASSERT_TRUE(m_model.GetGainRange(lowest, value, highest));
    EXPECT_EQ(highest, 24.0);
    EXPECT_TRUE(m_model.SetGain(2.5));
    EXPECT_EQ(m_model.GetGain(), 2.5);
    EXPECT_EQ(m_camera->features().journal(),
              (QStringList{"read minimum of Gain", "read maximum of Gain", "read value of Gain",
                           "Gain = 2.5", "read value of Gain"}));
}

TEST_F(ModelTest, GainHasAnOtherNameOnSomeCameras)
{
    m_camera->features().remove("Gain");
    m_camera->parameters().addFloat("GainAbs", 6.0);
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGain(), 6.0);
}

TEST_F(ModelTest, RawGainIsScaledByAHundred)
{
    use(oldCamera());
    ASSERT_TRUE(open());
    double lowest = 0.0;
    double value = 0.0;
    double highest = 0.0;
    ASSERT_TRUE(m_model.GetGainRange(lowest, value, highest));
    EXPECT_EQ(lowest, 1.0);
    EXPECT_EQ(value, 3.0);
    EXPECT_EQ(highest, 24.0);
    m_camera->features().forget();
    EXPECT_TRUE(m_model.SetGain(5.999));
    EXPECT_EQ(writes(), QStringList{"GainRaw = 599 verified"}) << "cut, not rounded";
    EXPECT_EQ(m_model.GetGain(), 5.99);
}

TEST_F(ModelTest, ParametersThatCannotBeUsedGiveTheFailureValue)
{
    struct Case
    {
        QSharedPointer<FakeCamera> camera;
        QStringList features;
    };
    for (const Case& one : {Case{newCamera(), {"Gain", "ExposureTime"}},
                            Case{oldCamera(), {"GainRaw", "ExposureTimeAbs"}}}) {
        use(one.camera);
        ASSERT_TRUE(open());
        for (const QString& name : one.features)
            m_camera->features().change(name, [](FakeFeature& feature) {
                feature.readable = false;
                feature.writable = false;
            });
        double a = 7.0;
        double b = 7.0;
        double c = 7.0;
        EXPECT_FALSE(m_model.GetExposureTimeRange(a, b, c));
        EXPECT_FALSE(m_model.GetGainRange(a, b, c));
        EXPECT_EQ(a + b + c, 21.0) << "nothing is handed out";
        EXPECT_EQ(m_model.GetExposureTime(), -1.0);
        EXPECT_EQ(m_model.GetGain(), -1.0);
        EXPECT_FALSE(m_model.SetExposureTime(20.0));
        EXPECT_FALSE(m_model.SetGain(2.0));
        EXPECT_FALSE(m_model.StoreDetectedExposureAndGain());
        EXPECT_TRUE(m_model.Close());
    }
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, ValuesThatTheCameraRefusesFailWithOneEntry)
{
    ASSERT_TRUE(open());
    EXPECT_FALSE(m_model.SetExposureTime(1e9));
    EXPECT_FALSE(m_model.SetGain(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(logTexts(),
              (QStringList{"2 ColorCorrectionModelImpl::SetExposureTime: ExposureTime is out of "
                           "range",
                           "2 ColorCorrectionModelImpl::SetGain: Gain is out of range"}));
}

TEST_F(ModelTest, RestoreBeforeStoreWritesNothing)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_FALSE(m_model.RestoreDetectedExposureAndGain());
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, DetectedValuesComeBackWithoutTheAutomaticFunctions)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.StoreDetectedExposureAndGain());
    m_camera->parameters().addFloat("Gain", 20.0, 0.0, 24.0);
    m_camera->parameters().addFloat("ExposureTime", 77.0, 10.0, 1e6);
    m_camera->features().forget();
    EXPECT_TRUE(m_model.RestoreDetectedExposureAndGain());
    EXPECT_EQ(writes(), (QStringList{"try ExposureAuto = Off", "try GainAuto = Off", "Gain = 3",
                                     "ExposureTime = 1000"}));
}

TEST_F(ModelTest, DetectedValuesAreThoseOfTheOpenCamera)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.StoreDetectedExposureAndGain());
    ASSERT_TRUE(m_model.Close());
    EXPECT_FALSE(m_model.RestoreDetectedExposureAndGain());
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_FALSE(m_model.RestoreDetectedExposureAndGain());
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, ResultsOfTheRestoringSettersAreIgnored)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.StoreDetectedExposureAndGain());
    m_camera->features().change("Gain", [](FakeFeature& one) { one.writable = false; });
    EXPECT_TRUE(m_model.RestoreDetectedExposureAndGain());
}

} // namespace
