// SPDX-License-Identifier: Apache-2.0
// Tests of the settings before and after, and of what is saved of them.
#include "calibrationresult.h"

#include "logrecorder.h"
#include "reportdata.h"

#include <QDir>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QtConcurrentRun>

using namespace ColorCalibration;

namespace {

class CalibrationResultTest : public testing::Test
{
protected:
    CalibrationResultTest()
    {
        m_result.SetOriginalSettings("Width\t8\nGamma\t1\n");
        m_result.SetCalibratedSettings("# mark\nWidth\t8\nGamma\t0.45\nTvrHue\t2\n");
    }

    QImage image(QRgb color) const
    {
        QImage image(4, 3, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }
    bool saveSummary()
    {
        return m_result.SaveSummary(m_folder.path(), image(qRgb(1, 2, 3)), image(qRgb(9, 8, 7)),
                                    sampleResults());
    }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QStringList entries(const QString& folder = {}) const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
    QDateTime m_now{QDate(2031, 2, 3), QTime(23, 5, 9)};
    CalibrationResult m_result{"M/1", [this] {
                                   return m_now;
                               }};
    const QString m_settingsFolder = "Camera_Settings_Tavrin_M_1_20310203_230509";
    const QString m_reportFolder = "Calibration_Report_M_1_20310203_230509";
};

TEST_F(CalibrationResultTest, TurnsBothSettingsIntoObjects)
{
    const QJsonObject settings = m_result.SettingsToJson();
    EXPECT_EQ(settings.keys(), (QStringList{"Calibrated", "Original"}));
    EXPECT_EQ(settings["Original"].toObject()["Gamma"], "1");
    EXPECT_EQ(settings["Original"].toObject()["HSBC"].toObject()["Hue"], "N/A");
    EXPECT_EQ(settings["Calibrated"].toObject()["Gamma"], "0.45");
    EXPECT_EQ(settings["Calibrated"].toObject()["HSBC"].toObject()["Hue"], "2");
}

TEST_F(CalibrationResultTest, SavesTheCalibratedSettingsAlone)
{
    const LogRecorder log;
    ASSERT_TRUE(m_result.SaveSettingsFile(m_folder.path()));
    EXPECT_EQ(entries(), QStringList(m_settingsFolder));
    EXPECT_EQ(entries(m_settingsFolder), QStringList("Calibrated.cst"));
    EXPECT_EQ(fileBytes(path(m_settingsFolder + "/Calibrated.cst")),
              "# mark\nGamma\t0.45\nTvrHue\t2\n");
    EXPECT_TRUE(log.entries().isEmpty());
}

TEST_F(CalibrationResultTest, SavesFiveFilesInASummary)
{
    const LogRecorder log;
    ASSERT_TRUE(saveSummary());
    EXPECT_EQ(entries(), QStringList(m_reportFolder));
    EXPECT_EQ(entries(m_reportFolder),
              (QStringList{"calibrated.cst", "calibrated.png", "calibration_report.html",
                           "original.cst", "original.png"}));
    const QString folder = path(m_reportFolder) + '/';
    EXPECT_EQ(fileBytes(folder + "calibrated.cst"), "# mark\nGamma\t0.45\nTvrHue\t2\n");
    EXPECT_EQ(fileBytes(folder + "original.cst"), "Gamma\t1\n");
    EXPECT_EQ(QImage(folder + "calibrated.png").pixel(0, 0), qRgb(9, 8, 7));
    EXPECT_EQ(QImage(folder + "original.png").pixel(0, 0), qRgb(1, 2, 3));
    const QByteArray report = fileBytes(folder + "calibration_report.html");
    EXPECT_TRUE(report.contains("<title>Calibration Report for M/1</title>"));
    EXPECT_TRUE(report.contains("<div class=\"report-info\">23:05:09<br/>2031\\02\\03</div>"));
    EXPECT_TRUE(log.entries().isEmpty());
}

TEST_F(CalibrationResultTest, KnowsTheFolderThatWasMadeLast)
{
    EXPECT_EQ(m_result.LastFolder(), "");
    ASSERT_TRUE(saveSummary());
    EXPECT_EQ(m_result.LastFolder(), path(m_reportFolder));
    ASSERT_TRUE(m_result.SaveSettingsFile(m_folder.path()));
    EXPECT_EQ(m_result.LastFolder(), path(m_settingsFolder));
}

TEST_F(CalibrationResultTest, TwoSavesWithinOneSecondShareAFolder)
{
    ASSERT_TRUE(saveSummary());
    m_result.SetOriginalSettings("Gamma\t2");
    ASSERT_TRUE(saveSummary());
    EXPECT_EQ(entries().size(), 1);
    EXPECT_EQ(entries(m_reportFolder).size(), 5);
    EXPECT_EQ(fileBytes(path(m_reportFolder + "/original.cst")), "Gamma\t2\n");
    m_now = m_now.addSecs(1);
    ASSERT_TRUE(saveSummary());
    EXPECT_EQ(entries().size(), 2);
}

TEST_F(CalibrationResultTest, EndsASummaryWithTheFirstFailure)
{
    const LogRecorder log;
    EXPECT_FALSE(
        m_result.SaveSummary(m_folder.path(), image(qRgb(1, 2, 3)), QImage(), sampleResults()));
    EXPECT_EQ(entries(m_reportFolder),
              (QStringList{"calibrated.cst", "calibration_report.html", "original.cst"}))
        << "the image before calibration comes after the one that is missing";
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_TRUE(log.entries().first().text.contains("calibrated.png"));
}

TEST_F(CalibrationResultTest, EachFileOfASummaryComesInItsTurn)
{
    const QStringList order{"calibrated.cst", "original.cst", "calibration_report.html",
                            "calibrated.png", "original.png"};
    for (int failing = 0; failing < order.size(); ++failing) {
        ASSERT_TRUE(QDir(path(m_reportFolder)).removeRecursively());
        ASSERT_TRUE(QDir().mkpath(path(m_reportFolder + '/' + order[failing])));
        const LogRecorder log;
        EXPECT_FALSE(saveSummary()) << order[failing].toStdString();
        QStringList files = QDir(path(m_reportFolder)).entryList(QDir::Files | QDir::Hidden);
        QStringList expected = order.mid(0, failing);
        files.sort();
        expected.sort();
        EXPECT_EQ(files, expected) << order[failing].toStdString();
        ASSERT_EQ(log.entries().size(), 1);
        EXPECT_TRUE(log.entries().first().text.contains(order[failing]));
    }
}

TEST_F(CalibrationResultTest, SavesWhileOthersHoldAllThreadsOfThePool)
{
    QThreadPool& pool = *QThreadPool::globalInstance();
    QSemaphore busy;
    QSemaphore end;
    QVector<QFuture<void>> others;
    for (int i = 0; i < pool.maxThreadCount(); ++i)
        others << QtConcurrent::run([&] {
            busy.release();
            end.acquire();
        });
    busy.acquire(others.size());
    EXPECT_TRUE(saveSummary());
    end.release(others.size());
    for (QFuture<void>& other : others)
        other.waitForFinished();
    EXPECT_EQ(entries(m_reportFolder).size(), 5);
}

TEST_F(CalibrationResultTest, AnImageWithoutRoomEndsASummaryBehindTheFilesBeforeIt)
{
    const LogRecorder log;
    EXPECT_FALSE(m_result.SaveSummary(m_folder.path(), imageWithoutRoom(), image(qRgb(9, 8, 7)),
                                      sampleResults()));
    EXPECT_EQ(entries(m_reportFolder), (QStringList{"calibrated.cst", "calibrated.png",
                                                    "calibration_report.html", "original.cst"}));
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().text, "Cannot write the file \"" +
                                              path(m_reportFolder + "/original.png") +
                                              "\": there is not enough memory for the image.");
}

TEST_F(CalibrationResultTest, AnImageWithoutRoomDoesNotHideAnEarlierFailure)
{
    const LogRecorder log;
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(m_reportFolder + "/original.cst"));
    EXPECT_FALSE(m_result.SaveSummary(m_folder.path(), imageWithoutRoom(), imageWithoutRoom(),
                                      sampleResults()));
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_TRUE(log.entries().first().text.contains("original.cst"));
}

TEST_F(CalibrationResultTest, SavesNothingWithoutADirectory)
{
    const LogRecorder log;
    EXPECT_FALSE(m_result.SaveSettingsFile(""));
    EXPECT_FALSE(m_result.SaveSummary("", image(0), image(0), sampleResults()));
    EXPECT_EQ(log.entries().size(), 2);
}

} // namespace
