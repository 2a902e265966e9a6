// SPDX-License-Identifier: Apache-2.0
// Tests of the report as a page.
#include "reporthtml.h"

#include "logrecorder.h"
#include "markingtranslator.h"
#include "reportdata.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

using ColorCalibration::BuildHtml;

namespace {

const QDateTime fixedTime(QDate(2031, 2, 3), QTime(23, 5, 9));

QString report(const QString& model, const QJsonObject& results = sampleResults())
{
    return BuildHtml(model, results, fixedTime);
}

/// The report with marks in place of style sheet and logos.
QString withoutResources(QString html)
{
    html.replace(
        QRegularExpression("<style>\n.*\n</style>", QRegularExpression::DotMatchesEverythingOption),
        "<style>\nSTYLE\n</style>");
    html.replace(QRegularExpression("base64,[A-Za-z0-9+/=]+(?=\" alt)"), "base64,LOGO");
    html.replace(QRegularExpression("base64,[A-Za-z0-9+/=]+(?=\" align)"), "base64,SMALL LOGO");
    return html;
}

TEST(BuildHtml, GivesTheReportThatThePlainScriptGives)
{
    const QStringList expected = QString::fromUtf8(fileBytes(testData("report.html"))).split('\n');
    const QStringList lines =
        withoutResources(report(QStringLiteral("Model \"A\" <1> & Söhne"))).split('\n');
    ASSERT_EQ(lines.size(), expected.size());
    for (int line = 0; line < lines.size(); ++line)
        ASSERT_EQ(lines.at(line).toStdString(), expected.at(line).toStdString())
            << "line " << line + 1;
}

TEST(BuildHtml, CarriesStyleAndLogosInside)
{
    const LogRecorder log;
    const QString html = report("M");
    EXPECT_TRUE(html.contains(QString::fromUtf8(fileBytes(":/ColCal/resources/summary.css"))));
    for (const char* logo : {":/ColCal/resources/logo.png", ":/ColCal/resources/logo_s.png"})
        EXPECT_TRUE(html.contains(QString::fromLatin1(fileBytes(logo).toBase64()))) << logo;
    EXPECT_TRUE(log.entries().isEmpty());
    EXPECT_FALSE(html.contains("http:") || html.contains("https:") || html.contains("file:"));
}

TEST(BuildHtml, StyleSheetNamesEveryClass)
{
    const QByteArray style = fileBytes(":/ColCal/resources/summary.css");
    for (const char* name : {".row", ".logo", ".title", ".subtitle", ".separator", ".container",
                             ".report-info", ".report-camera-info", ".info-text", "#results"})
        EXPECT_TRUE(style.contains(name)) << name;
}

TEST(BuildHtml, EscapesTheModelWhereverItStands)
{
    const QString html = report("</title><script>alert(1)</script>\"&%1");
    EXPECT_FALSE(html.contains("<script>"));
    EXPECT_EQ(html.count("&lt;/title&gt;&lt;script&gt;alert(1)&lt;/script&gt;&quot;&amp;%1"), 2);
}

TEST(BuildHtml, EscapesResults)
{
    QJsonObject results = sampleResults();
    QJsonObject settings = results.value("Calibrated").toObject();
    settings.insert("Gamma", "<img src=x onerror=alert(1)>");
    results.insert("Calibrated", settings);
    const QString html = report("M", results);
    EXPECT_FALSE(html.contains("<img src=x"));
    EXPECT_TRUE(html.contains("<td>&lt;img src=x onerror=alert(1)&gt;</td>"));
}

TEST(BuildHtml, PaintsNoRowInTheColorsOfAnotherPatch)
{
    QJsonObject results = sampleResults();
    QJsonObject colors = results.value("Colors").toObject();
    colors.remove("Patch01");
    results.insert("Colors", colors);
    const QString html = report("M", results);
    EXPECT_TRUE(html.contains("tr:nth-child(2){}"));
    EXPECT_TRUE(html.contains("tr:nth-child(3){--initial:" +
                              colors["Patch02"].toObject()["Initial"].toString()));
}

TEST(BuildHtml, TranslatesTitlesLabelsAndTheTextOnTheLut)
{
    const MarkingTranslator translator;
    const QString html = report("M");
    static const QRegularExpression title("<h2>(.*)</h2>");
    QStringList titles;
    for (auto match = title.globalMatch(html); match.hasNext();)
        titles << match.next().captured(1);
    EXPECT_EQ(titles,
              (QStringList{"QObject:Colors", "QObject:Black Level", "QObject:White Balance",
                           "QObject:Color Transformation", "QObject:Color Adjustment Hue",
                           "QObject:Color Adjustment Saturation", "QObject:Gamma",
                           "QObject:Hue, Saturation, Brightness, Contrast", "QObject:LUT"}));
    EXPECT_TRUE(html.contains("\nQObject:To use the Color Calibrator, the LUT had to be disabled. "
                              "Using a LUT and the Color Calibrator at the same time, would "
                              "adversely affect the color calibration.\n"));
    EXPECT_EQ(html.count("<th>QObject:Original</th>"), 8)
        << "a column of the colors, a row of each of seven tables";
    EXPECT_EQ(html.count("<th>QObject:Current</th>"), 7);
    EXPECT_EQ(html.count("<th>QObject:Delta E</th>"), 1);
}

TEST(BuildHtml, StaysWholeWithoutResults)
{
    const QString html = report("M", {});
    EXPECT_EQ(html.count("<div class=\"subtitle\">"), 9);
    EXPECT_TRUE(html.endsWith("</body></html>"));
}

// The report's texts repeat an id, put alignment into the tag, and close a line break; programs
// that read reports rely on them.
TEST(BuildHtml, PassesTidyApartFromThreeThingsThatAreMeant)
{
    const QString tidy = QStandardPaths::findExecutable("tidy");
    if (tidy.isEmpty())
        GTEST_SKIP() << "tidy is not installed";
    const QTemporaryDir folder;
    QFile file(folder.filePath("report.html"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(report("M").toUtf8());
    file.close();
    QProcess process;
    process.start(tidy, {"-quiet", "-errors", "-utf8", file.fileName()});
    ASSERT_TRUE(process.waitForFinished());
    const QRegularExpression meant("<table> anchor \"results\" already defined|"
                                   "<img> attribute \"align\" not allowed for HTML5|</br>");
    const QString complaints = QString::fromUtf8(process.readAllStandardError());
    for (const QString& complaint : complaints.split('\n', Qt::SkipEmptyParts))
        EXPECT_TRUE(complaint.contains(meant)) << complaint.toStdString();
    EXPECT_LE(process.exitCode(), 1) << "errors, not warnings alone";
}

} // namespace
