// SPDX-License-Identifier: Apache-2.0
// Which patch files are read and what is said of the others.
#include "patchfile.h"

#include "command.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

using namespace ColorCalibrate;
using ColorCalibration::PatchColors;

namespace {

QByteArray lines(int count, const QByteArray& line = "1,2,3")
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += line + "\n";
    return text;
}

/// 24 good lines with one replaced, counted from 1.
QByteArray withLine(int number, const QByteArray& line)
{
    return lines(number - 1) + line + "\n" + lines(24 - number);
}

QString failureOf(const QByteArray& text)
{
    try {
        parsePatchColors(text, QStringLiteral("file.csv"));
    } catch (const CommandError& error) {
        EXPECT_EQ(error.code(), WorkFailed);
        return QString::fromUtf8(error.what());
    }
    ADD_FAILURE() << "accepted: " << text.constData();
    return {};
}

void expectFailure(const QByteArray& text, const QString& message)
{
    EXPECT_EQ(failureOf(text).toStdString(), message.toStdString());
}

} // namespace

TEST(PatchFile, ReadsTwentyFourLines)
{
    const PatchColors colors =
        parsePatchColors(withLine(24, "0,127.5,255"), QStringLiteral("file.csv"));
    EXPECT_EQ(colors(0, 0), 1.0);
    EXPECT_EQ(colors(0, 1), 2.0);
    EXPECT_EQ(colors(0, 2), 3.0);
    EXPECT_EQ(colors(23, 0), 0.0);
    EXPECT_EQ(colors(23, 1), 127.5);
    EXPECT_EQ(colors(23, 2), 255.0);
}

TEST(PatchFile, ForgivesBlanksAndForeignLineEnds)
{
    const QByteArray text = withLine(2, " 4 ,\t5.5,6 ");
    for (QByteArray variant :
         {QByteArray("\xEF\xBB\xBF") + text, QByteArray(text).replace("\n", "\r\n"),
          QByteArray(text).replace("\n", "\r"), text + "\n  \n", text.left(text.size() - 1)})
        EXPECT_EQ(parsePatchColors(variant, QStringLiteral("file.csv"))(1, 1), 5.5);
}

TEST(PatchFile, ReadsExponents)
{
    EXPECT_EQ(parsePatchColors(withLine(1, "1e2,2.5E1,1e-300"), QString())(0, 0), 100.0);
}

TEST(PatchFile, RefusesAnyOtherNumberOfLines)
{
    expectFailure(lines(23), QStringLiteral("file.csv has 23 lines; the chart has 24 patches"));
    expectFailure(lines(25), QStringLiteral("file.csv has 25 lines; the chart has 24 patches"));
}

TEST(PatchFile, RefusesAnEmptyFile)
{
    const auto message = QStringLiteral("file.csv is empty; 24 lines \"R,G,B\" are expected");
    expectFailure({}, message);
    expectFailure("\n\r\n  \n", message);
    expectFailure("\xEF\xBB\xBF", message);
}

TEST(PatchFile, NamesTheLineThatHasNotThreeNumbers)
{
    const auto expected = QStringLiteral("file.csv, line %1: three numbers \"R,G,B\" are expected, "
                                         "found %2");
    expectFailure(withLine(3, "1;2;3"), expected.arg(3).arg(QStringLiteral("\"1;2;3\"")));
    expectFailure(withLine(5, "1 2 3"), expected.arg(5).arg(QStringLiteral("\"1 2 3\"")));
    expectFailure(withLine(24, "1,2"), expected.arg(24).arg(QStringLiteral("\"1,2\"")));
    expectFailure(withLine(1, "1,2,3,4"), expected.arg(1).arg(QStringLiteral("\"1,2,3,4\"")));
    expectFailure(withLine(7, "1,5,2,5,3,5"),
                  expected.arg(7).arg(QStringLiteral("\"1,5,2,5,3,5\"")));
    expectFailure(withLine(2, ""), expected.arg(2).arg(QStringLiteral("\"\"")));
}

TEST(PatchFile, NamesTheValueThatIsNoNumber)
{
    const auto expected = QStringLiteral("file.csv, line %1: the %2 value \"%3\" is not a number");
    expectFailure(withLine(4, "red,2,3"),
                  expected.arg(4).arg(QStringLiteral("red"), QStringLiteral("red")));
    expectFailure(withLine(4, "1,2x,3"),
                  expected.arg(4).arg(QStringLiteral("green"), QStringLiteral("2x")));
    expectFailure(withLine(4, "1,2,"), expected.arg(4).arg(QStringLiteral("blue"), QString()));
    expectFailure(withLine(4, "1,0x10,3"),
                  expected.arg(4).arg(QStringLiteral("green"), QStringLiteral("0x10")));
}

TEST(PatchFile, RefusesNumbersThatAreNotFinite)
{
    const auto expected = QStringLiteral("file.csv, line 9: the green value \"%1\" is not finite");
    for (const char* value : {"nan", "NaN", "inf", "-inf", "infinity"})
        expectFailure(withLine(9, QByteArray("1,") + value + ",3"),
                      expected.arg(QLatin1String(value)));
}

TEST(PatchFile, RefusesNumbersOutsideOfTheScale)
{
    const auto expected =
        QStringLiteral("file.csv, line 9: the blue value \"%1\" lies outside 0 to 255");
    for (const char* value : {"-1", "-0.0001", "255.0001", "1e300", "65535"})
        expectFailure(withLine(9, QByteArray("1,2,") + value), expected.arg(QLatin1String(value)));
    EXPECT_TRUE(
        failureOf(withLine(9, "1,2,1e400")).contains(QLatin1String("beyond what a number")));
}

TEST(PatchFile, ShowsNamesWithPlaceholdersAsTheyAre)
{
    const auto failure = [](const QByteArray& text) {
        try {
            parsePatchColors(text, QStringLiteral("a%1%2%3.csv"));
        } catch (const CommandError& error) {
            return QString::fromUtf8(error.what());
        }
        return QString();
    };
    EXPECT_EQ(failure(lines(3)),
              QStringLiteral("a%1%2%3.csv has 3 lines; the chart has 24 patches"));
    EXPECT_EQ(failure(withLine(3, "1,%1,999")),
              QStringLiteral("a%1%2%3.csv, line 3: the green value \"%1\" is not a number"));
}

TEST(PatchFile, KeepsMessagesShortAndPrintable)
{
    const QString binary = failureOf(QByteArray("\x00\x01\x7f\xff\n", 5));
    EXPECT_TRUE(binary.contains(QLatin1String("line 1"))) << binary.toStdString();
    for (const QChar character : binary)
        EXPECT_TRUE(character.isPrint() || character == QChar(QChar::ReplacementCharacter));
    EXPECT_LT(failureOf(lines(1, QByteArray(100000, 'x'))).size(), 200);
}

TEST(PatchFile, ReadsStandardInputAndFilesUpToALimit)
{
    std::istringstream in("some text");
    EXPECT_EQ(readPatchText(QStringLiteral("-"), in), "some text");
    std::istringstream endless(std::string(2 << 20, '1'));
    try {
        readPatchText(QStringLiteral("-"), endless);
        ADD_FAILURE() << "accepted";
    } catch (const CommandError& error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).startsWith(QLatin1String("standard input")));
    }
    std::istringstream unused;
    EXPECT_THROW(readPatchText(QStringLiteral("/no/such/file"), unused), CommandError);
    EXPECT_THROW(readPatchText(QStringLiteral("/"), unused), CommandError);
}

TEST(PatchFile, WritesWhatItReadsBackToTheLastBit)
{
    std::mt19937_64 generator(1);
    std::uniform_real_distribution<double> level(0.0, 255.0);
    PatchColors colors;
    for (int i = 0; i < 24; ++i)
        for (int channel = 0; channel < 3; ++channel)
            colors(i, channel) = level(generator);
    std::ostringstream out;
    writePatchColors(out, colors);
    EXPECT_EQ(parsePatchColors(QByteArray::fromStdString(out.str()), QString()), colors);
}
