// SPDX-License-Identifier: Apache-2.0
// Tests of what a whole calibration of an emulated camera leaves behind.
#include "emulatedcalibration.h"
#include "generationname.h"
#include "logrecorder.h"
#include "reportdata.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>

using namespace ColorCalibration;

namespace {

using Names = Cameras::Emulation::FeatureNames;

/// The path of the one entry of a folder.
QString onlyEntry(const QString& folder)
{
    const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_EQ(entries.size(), 1) << entries.join(' ').toStdString();
    return folder + "/" + entries.value(0);
}

/// The mean difference of the channels, 0 to 255. (Single channels near black differ by more than
/// ten from image to image, where the gamma curve is steep.)
double difference(const QVector<QColor>& left, const QVector<QColor>& right)
{
    if (left.size() != 24 || right.size() != 24)
        return 255.0;
    double sum = 0.0;
    for (int i = 0; i < 24; ++i)
        sum += qAbs(left[i].redF() - right[i].redF()) + qAbs(left[i].greenF() - right[i].greenF()) +
               qAbs(left[i].blueF() - right[i].blueF());
    return 255.0 * sum / 72.0;
}

class SavedSettings : public testing::TestWithParam<Names>
{
protected:
    void resetCamera()
    {
        const auto parameters = m_calibration.camera()->parameterCollection();
        parameters->enumerationParameter("UserSetSelector")->setValue("Default");
        parameters->commandParameter("UserSetLoad")->execute();
    }

    using Series = QVector<QVector<QColor>>;

    Series measureOften()
    {
        Series series;
        for (int i = 0; i < 5; ++i)
            series << m_calibration.measure();
        return series;
    }

    /// How far images of one state lie apart.
    static double spread(const Series& series)
    {
        double spread = 0.0;
        for (const auto& left : series)
            for (const auto& right : series)
                spread = qMax(spread, difference(left, right));
        return spread;
    }

    static QVector<QColor> mean(const Series& series)
    {
        QVector<QColor> colors;
        for (int i = 0; i < series.first().size(); ++i) {
            double sums[3] = {0.0, 0.0, 0.0};
            for (const auto& one : series) {
                sums[0] += one.value(i).redF();
                sums[1] += one.value(i).greenF();
                sums[2] += one.value(i).blueF();
            }
            colors << QColor::fromRgbF(sums[0] / series.size(), sums[1] / series.size(),
                                       sums[2] / series.size());
        }
        return colors;
    }

    QTemporaryDir m_folder;
    EmulatedCalibration m_calibration{GetParam()};
};

TEST_P(SavedSettings, BringTheSameColorsAgainAfterAReset)
{
    ColorCorrectionModel& model = m_calibration.model();
    ASSERT_TRUE(m_calibration.run());
    const Series calibrated = measureOften();
    ASSERT_EQ(calibrated.first().size(), 24);
    const double noise = spread(calibrated);
    ASSERT_LT(noise, 5.0);
    ASSERT_TRUE(model.SaveSettingsToFile(m_folder.path()));
    ASSERT_TRUE(model.StoreDetectedExposureAndGain());

    resetCamera();
    ASSERT_TRUE(model.RestoreDetectedExposureAndGain());
    EXPECT_GT(difference(mean(calibrated), mean(measureOften())), 3.0 * noise);

    QFile file(onlyEntry(onlyEntry(m_folder.path())));
    EXPECT_TRUE(file.fileName().endsWith("/Calibrated.cst"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    ASSERT_TRUE(model.LoadSettings(QString::fromUtf8(file.readAll())));
    EXPECT_LE(difference(mean(calibrated), mean(measureOften())), noise);
}

TEST_P(SavedSettings, ResultsTellOfACalibrationThatHelped)
{
    ASSERT_TRUE(m_calibration.run());
    const QJsonObject results = m_calibration.model().GetCalibrationResultsJson();
    EXPECT_EQ(results.keys(), (QStringList{"Calibrated", "Colors", "Original", "PreciseColors"}));
    double sum = 0.0;
    for (const QJsonValue& patch : results["Colors"].toObject())
        sum += patch.toObject()["DeltaE"].toString().toDouble();
    EXPECT_LT(sum / 24.0, 3.0);
    EXPECT_NE(results["Original"].toObject()["WhiteBalance"],
              results["Calibrated"].toObject()["WhiteBalance"]);
    EXPECT_NE(results["Calibrated"].toObject()["Matrix"].toObject()["Gain00"], "N/A");
}

INSTANTIATE_TEST_SUITE_P(EachGeneration, SavedSettings,
                         testing::Values(Names::FirstGeneration, Names::SecondGeneration,
                                         Names::SecondGenerationMaker),
                         generationName);

class SettingsFile : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_calibration.open()); }

    bool load(QByteArray text)
    {
        QBuffer file(&text);
        return file.open(QIODevice::ReadOnly) &&
               m_calibration.model().LoadSettingsFromDevice(&file);
    }

    double number(const QString& name)
    {
        return m_calibration.camera()->parameterCollection()->floatParameter(name)->value();
    }

    void select(const QString& selector, const QString& position)
    {
        m_calibration.camera()->parameterCollection()->enumerationParameter(selector)->setValue(
            position);
    }

    QStringList logTexts() const
    {
        QStringList texts;
        for (const LogEntry& entry : m_log.entries())
            texts << entry.text;
        return texts;
    }

    LogRecorder m_log;
    EmulatedCalibration m_calibration{Names::SecondGeneration};
};

TEST_F(SettingsFile, OfAnotherSystemIsRead)
{
    EXPECT_TRUE(load("\xef\xbb\xbfGamma\t0.5\r\n# comment\r\n"
                     "BalanceRatioSelector\tBlue\r\nBalanceRatio\t1.5\r\n"
                     "PixelFormat\tRGB8"));
    EXPECT_EQ(logTexts(), QStringList());
    EXPECT_EQ(number("Gamma"), 0.5);
    select("BalanceRatioSelector", "Blue");
    EXPECT_EQ(number("BalanceRatio"), 1.5);
    EXPECT_EQ(
        m_calibration.camera()->parameterCollection()->enumerationParameter("PixelFormat")->value(),
        "RGB8");
}

TEST_F(SettingsFile, LeavesNothingBetweenTwoStatesWithoutAWord)
{
    select("BalanceRatioSelector", "Red");
    const double red = number("BalanceRatio");
    EXPECT_TRUE(load("Gamma\t99\n"
                     "NoSuchFeature\t1\n"
                     "BalanceRatioSelector\n"
                     "BalanceRatio\t2\n"
                     "BlackLevel\t1\n"));
    EXPECT_EQ(logTexts(),
              (QStringList{"A setting was not loaded: Line 1: Gamma: 99 is above the maximum 4.",
                           "A setting was not loaded: Line 2: the camera has no feature "
                           "\"NoSuchFeature\".",
                           "A setting was not loaded: Line 3: \"BalanceRatioSelector\" has no tab "
                           "and no value.",
                           "A setting was not loaded: Line 4: BalanceRatio: skipped, as "
                           "BalanceRatioSelector could not be set."}));
    EXPECT_EQ(number("Gamma"), 1.0);
    EXPECT_EQ(number("BlackLevel"), 1.0);
    for (const char* channel : {"Red", "Green", "Blue"}) {
        select("BalanceRatioSelector", channel);
        EXPECT_EQ(number("BalanceRatio"), red) << channel;
    }
}

class RestoredSettings : public SettingsFile
{
protected:
    void SetUp() override
    {
        SettingsFile::SetUp();
        ASSERT_TRUE(m_calibration.model().CreateSettingsBackup(false));
        ASSERT_TRUE(m_calibration.model().SetNeutralSettings());
        ASSERT_TRUE(m_calibration.model().IsBackupOwed());
    }

    bool restoreLeavesNothing()
    {
        return m_calibration.model().RestoreSettingsBackup(false) &&
               !m_calibration.model().IsBackupOwed();
    }
};

TEST_F(RestoredSettings, AreBackWhereTheCameraRefusesWhatItHas)
{
    for (const char* name : {"Gamma", "PixelFormat", "BalanceRatio", "BalanceRatioSelector"})
        m_calibration.camera()->refuseWrites(name);
    EXPECT_TRUE(restoreLeavesNothing());
    EXPECT_EQ(logTexts(), QStringList());
}

TEST_F(RestoredSettings, AreOwedWhereOnePositionOfASelectorDiffers)
{
    select("BalanceRatioSelector", "Blue");
    m_calibration.camera()->parameterCollection()->floatParameter("BalanceRatio")->setValue(1.5);
    select("BalanceRatioSelector", "Red");
    m_calibration.camera()->refuseWrites("BalanceRatio");
    EXPECT_FALSE(restoreLeavesNothing());
    EXPECT_FALSE(logTexts().isEmpty());
    m_calibration.camera()->refuseWrites("BalanceRatio", -1);
    EXPECT_TRUE(restoreLeavesNothing());
    select("BalanceRatioSelector", "Blue");
    EXPECT_EQ(number("BalanceRatio"), 1.0);
}

TEST_F(RestoredSettings, AreToldOfWhereTheyDifferAlone)
{
    // It locks the exposure time, which the camera keeps.
    m_calibration.camera()
        ->parameterCollection()
        ->enumerationParameter("ExposureAuto")
        ->setValue("Continuous");
    m_calibration.camera()->refuseWrites("ExposureAuto");
    EXPECT_FALSE(restoreLeavesNothing());
    ASSERT_EQ(logTexts().size(), 1) << logTexts().join('\n').toStdString();
    EXPECT_TRUE(logTexts().first().contains("ExposureAuto"));
}

TEST(SavedUserSet, IsListedStoredAndComesUpWithTheNextOpening)
{
    EmulatedCalibration calibration(Names::SecondGeneration);
    ColorCorrectionModel& model = calibration.model();
    ASSERT_TRUE(calibration.run());
    EXPECT_EQ(model.GetAvailableUserSetsJson(),
              (QJsonObject{{"UserSets", QJsonArray{QJsonObject{{"User Set 1", "UserSet1"}},
                                                   QJsonObject{{"User Set 2", "UserSet2"}},
                                                   QJsonObject{{"User Set 3", "UserSet3"}}}}}));
    const QJsonValue calibrated = model.GetCalibrationResultsJson()["Calibrated"];
    ASSERT_TRUE(model.StoreSettingsInUserSet("UserSet2", true));
    ASSERT_TRUE(model.Close());
    ASSERT_TRUE(calibration.open());
    EXPECT_EQ(model.GetCalibrationResultsJson()["Calibrated"], calibrated);
}

} // namespace
