// SPDX-License-Identifier: Apache-2.0
// Tests of a saved calibration's folder and files.
#include "summaryfiles.h"

#include "logrecorder.h"
#include "reportdata.h"

#include <QDir>
#include <QTemporaryDir>

using namespace ColorCalibration;

namespace {

const QDateTime fixedTime(QDate(2031, 2, 3), QTime(23, 5, 9));

class SummaryFiles : public testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString make(const QString& directory, const QString& model = "M1") const
    {
        return MakeOutputFolder(directory, "Stem", model, fixedTime);
    }
    void expectNoLog() const { EXPECT_TRUE(m_log.entries().isEmpty()); }

    QTemporaryDir m_folder;
    LogRecorder m_log;
};

TEST_F(SummaryFiles, FolderIsNamedByStemModelAndTime)
{
    EXPECT_EQ(make(path("")), path("Stem_M1_20310203_230509"));
    EXPECT_EQ(make(m_folder.path()), path("Stem_M1_20310203_230509"));
    EXPECT_TRUE(QDir(path("Stem_M1_20310203_230509")).exists());
    expectNoLog();
}

TEST_F(SummaryFiles, FolderIsMadeWithAllThatItLiesIn)
{
    EXPECT_TRUE(QDir(make(path("a/b c/d"))).exists());
    expectNoLog();
}

TEST_F(SummaryFiles, FoldersMayHaveAnyName)
{
    for (const QString& name :
         {QStringLiteral("with space"), QStringLiteral("quote\"and'tick"), QStringLiteral("Müller"),
          QStringLiteral("校正"), QStringLiteral("%1 %2")}) {
        const QString folder = make(path(name));
        EXPECT_TRUE(WriteTextFile(folder + "/f.cst", name)) << name.toStdString();
        EXPECT_EQ(QString::fromUtf8(fileBytes(folder + "/f.cst")), name + "\n");
    }
    expectNoLog();
}

TEST_F(SummaryFiles, CharactersThatAFileSystemRefusesAreReplacedInTheModel)
{
    EXPECT_EQ(make(m_folder.path(), "a/b\\c:d<e>f&g\"h|i?j*k"),
              path("Stem_a_b_c_d_e_f&g_h_i_j_k_20310203_230509"));
    EXPECT_EQ(make(m_folder.path(), QString("x\n\t") + QChar(0) + "y"),
              path("Stem_x___y_20310203_230509"));
    EXPECT_EQ(make(m_folder.path(), "../../etc"), path("Stem_.._.._etc_20310203_230509"));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 3);
    expectNoLog();
}

TEST_F(SummaryFiles, TextEndsWithALineEndAndIsUtf8)
{
    ASSERT_TRUE(WriteTextFile(path("t"), QStringLiteral("# Ü\nGamma\t0.45")));
    EXPECT_EQ(fileBytes(path("t")), QByteArray("# \xc3\x9c\nGamma\t0.45\n"));
    ASSERT_TRUE(WriteTextFile(path("t"), ""));
    EXPECT_EQ(fileBytes(path("t")), "\n");
}

TEST_F(SummaryFiles, AShorterTextKeepsNoTailOfALongerOne)
{
    ASSERT_TRUE(WriteTextFile(path("t"), QString(100000, 'x')));
    ASSERT_TRUE(WriteTextFile(path("t"), "short"));
    EXPECT_EQ(fileBytes(path("t")), "short\n");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("t"));
}

TEST_F(SummaryFiles, ImagesComeBackPixelByPixel)
{
    QImage image(33, 7, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7, y * 30, x ^ y));
    ASSERT_TRUE(WritePngFile(path("i.png"), Saving::encodePng(image)));
    EXPECT_EQ(QImage(path("i.png"), "PNG").convertToFormat(QImage::Format_RGB32), image);
    expectNoLog();
}

TEST_F(SummaryFiles, ThereIsNoFileWithoutAnImage)
{
    EXPECT_FALSE(WritePngFile(path("i.png"), Saving::encodePng(QImage())));
    EXPECT_FALSE(QFile::exists(path("i.png")));
    ASSERT_EQ(m_log.entries().size(), 1);
    EXPECT_EQ(m_log.entries().first().text,
              "Cannot write the file \"" + path("i.png") + "\": there is no image.");
}

} // namespace
