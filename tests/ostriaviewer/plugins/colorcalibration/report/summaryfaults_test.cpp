// SPDX-License-Identifier: Apache-2.0
// Tests of saving where it cannot be done.
#include "calibrationresult.h"
#include "logrecorder.h"
#include "pngencoder.h"
#include "reportdata.h"
#include "summaryfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <random>

using namespace ColorCalibration;

namespace {

class SummaryFaults : public testing::Test
{
protected:
    bool saveSettings(const QString& directory) const
    {
        CalibrationResult result("M", [] { return QDateTime({2031, 2, 3}, {23, 5, 9}); });
        result.SetCalibratedSettings("Gamma\t0.45");
        return result.SaveSettingsFile(directory);
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QStringList logTexts() const
    {
        QStringList texts;
        for (const LogEntry& entry : m_log.entries()) {
            EXPECT_EQ(entry.level, Core::Logging::Warning);
            EXPECT_EQ(entry.category,
                      "ostria.viewer.plugins.colorCalibration.colorCorrectionModel");
            texts << entry.text;
        }
        return texts;
    }

    QTemporaryDir m_folder;
    LogRecorder m_log;
};

TEST_F(SummaryFaults, AFileInPlaceOfTheDirectoryIsReported)
{
    QFile file(path("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(saveSettings(path("file")));
    ASSERT_EQ(logTexts().size(), 2);
    EXPECT_TRUE(logTexts().first().startsWith("Cannot make the folder \"" + path("file")));
    EXPECT_TRUE(logTexts().first().endsWith(
        "\": Not a directory. Choose a folder that may be written to."));
    EXPECT_TRUE(logTexts().last().startsWith("Cannot write the file \"" + path("file")));
    EXPECT_TRUE(logTexts().last().contains("Not a directory")) << logTexts().last().toStdString();
}

TEST_F(SummaryFaults, AFolderInPlaceOfAFileIsReported)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkpath("f.cst"));
    EXPECT_FALSE(WriteTextFile(path("f.cst"), "text"));
    ASSERT_EQ(logTexts().size(), 1);
    EXPECT_TRUE(logTexts().first().contains("f.cst"));
}

TEST_F(SummaryFaults, APlaceThatNobodyMayWriteToIsReported)
{
    // A folder of the kernel's, which refuses even the administrator.
    if (!QDir("/proc/self").exists())
        GTEST_SKIP() << "there is no /proc";
    EXPECT_FALSE(saveSettings("/proc/self"));
    ASSERT_EQ(logTexts().size(), 2);
    EXPECT_TRUE(logTexts().last().contains("No such file or directory"));
}

/// As many pixels wide and high, and no smaller as PNG.
QImage noise(int size)
{
    QImage image(size, size, QImage::Format_RGB32);
    std::mt19937 generator(1);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            image.setPixel(x, y, static_cast<QRgb>(generator()));
    return image;
}

/// Runs a test below again, in a shell that has done something before, with the folder in the
/// environment.
void runAfter(const QString& preparation, const QStringList& shell, const QString& test)
{
    const QTemporaryDir place;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("REPORT_TEST_DISK", place.path());
    // This process may run a share of the tests alone.
    environment.remove("GTEST_TOTAL_SHARDS");
    environment.remove("GTEST_SHARD_INDEX");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QStringList arguments =
        shell + QStringList{"-c", preparation + " || exit 77; exec \"$0\" \"$@\"",
                            QCoreApplication::applicationFilePath(), "--gtest_filter=" + test};
    process.start(arguments.first(), arguments.mid(1));
    ASSERT_TRUE(process.waitForFinished(60000));
    const QByteArray output = process.readAll();
    if (process.exitCode() == 77)
        GTEST_SKIP() << "this system does not let it be tried: " << output.constData();
    EXPECT_EQ(process.exitCode(), 0) << output.constData();
    EXPECT_TRUE(output.contains("[  PASSED  ] 1 test.")) << output.constData();
}

const QStringList inOwnMounts{"unshare", "-rm", "sh"};

TEST_F(SummaryFaults, AFullDiskIsReported)
{
    // Not every kernel heeds the size.
    runAfter("mount -t tmpfs -o size=64k tmpfs \"$REPORT_TEST_DISK\" && "
             "! head -c 100000 /dev/zero > \"$REPORT_TEST_DISK/probe\" && "
             "rm \"$REPORT_TEST_DISK/probe\"",
             inOwnMounts, "SummaryFaults.InsideWhatTakesLittle");
}

TEST_F(SummaryFaults, ALimitOnFilesIsReported)
{
    runAfter("trap '' XFSZ; ulimit -f 8", {"sh"}, "SummaryFaults.InsideWhatTakesLittle");
}

TEST_F(SummaryFaults, AReadOnlyDiskIsReported)
{
    runAfter("mount -t tmpfs -o ro tmpfs \"$REPORT_TEST_DISK\"", inOwnMounts,
             "SummaryFaults.InsideAReadOnlyDisk");
}

TEST_F(SummaryFaults, ADiskThatFillsUpEndsASummaryInItsMiddle)
{
    runAfter("mount -t tmpfs -o size=1m tmpfs \"$REPORT_TEST_DISK\" && "
             "! head -c 2000000 /dev/zero > \"$REPORT_TEST_DISK/probe\" && "
             "rm \"$REPORT_TEST_DISK/probe\"",
             inOwnMounts, "SummaryFaults.InsideWhatTakesHalfOfASummary");
}

TEST_F(SummaryFaults, InsideWhatTakesHalfOfASummary)
{
    const QString disk = qEnvironmentVariable("REPORT_TEST_DISK");
    if (disk.isEmpty())
        GTEST_SKIP() << "runs where another test has made room for half of a summary";
    CalibrationResult result("M", [] { return QDateTime({2031, 2, 3}, {23, 5, 9}); });
    const QImage image = noise(1000);
    EXPECT_FALSE(result.SaveSummary(disk, image, image, sampleResults()));
    EXPECT_EQ(
        QDir(disk + "/Calibration_Report_M_20310203_230509").entryList(QDir::Files | QDir::Hidden),
        (QStringList{"calibrated.cst", "calibration_report.html", "original.cst"}));
    ASSERT_EQ(logTexts().size(), 1);
    EXPECT_TRUE(logTexts().first().endsWith("calibrated.png\": No space left on device."))
        << logTexts().first().toStdString();
}

TEST_F(SummaryFaults, InsideWhatTakesLittle)
{
    const QString disk = qEnvironmentVariable("REPORT_TEST_DISK");
    if (disk.isEmpty())
        GTEST_SKIP() << "runs where another test has made room for little";
    ASSERT_TRUE(WriteTextFile(disk + "/f.cst", "before"));
    EXPECT_FALSE(WriteTextFile(disk + "/f.cst", QString(200000, 'x')));
    EXPECT_EQ(fileBytes(disk + "/f.cst"), "before\n") << "what was there stays";
    const Saving::EncodedPng png = Saving::encodePng(noise(200));
    ASSERT_GT(png.bytes.size(), 65536);
    EXPECT_FALSE(WritePngFile(disk + "/i.png", png));
    EXPECT_EQ(QDir(disk).entryList(QDir::Files | QDir::Hidden), QStringList("f.cst"))
        << "no half of a file, under whatever name";
    ASSERT_EQ(logTexts().size(), 2);
    const QRegularExpression reason("\"[^\"]+\": (No space left on device|File too large)\\.$");
    for (const QString& text : logTexts())
        EXPECT_TRUE(text.contains(reason)) << text.toStdString();
}

TEST_F(SummaryFaults, InsideAReadOnlyDisk)
{
    const QString disk = qEnvironmentVariable("REPORT_TEST_DISK");
    if (disk.isEmpty())
        GTEST_SKIP() << "runs where another test has mounted a disk";
    EXPECT_FALSE(saveSettings(disk));
    EXPECT_FALSE(WriteTextFile(disk + "/f.cst", "text"));
    ASSERT_EQ(logTexts().size(), 3);
    EXPECT_TRUE(logTexts().first().startsWith("Cannot make the folder"));
    EXPECT_TRUE(logTexts().first().contains("\": Read-only file system. Choose"));
    EXPECT_TRUE(logTexts().last().contains("Read-only file system"));
}

} // namespace
