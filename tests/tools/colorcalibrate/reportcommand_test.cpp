// SPDX-License-Identifier: Apache-2.0
// "report" makes the report of a saved results object again.
#include "commandtest.h"
#include "resultsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/// As small as a results object can be.
const QByteArray smallest = R"({"Original":{"Gamma":"1","Matrix":{"Gain00":"1"}},)"
                            R"("Calibrated":{"Gamma":"0.45","Matrix":{"Gain00":"1.5"}},)"
                            R"("PreciseColors":{"Patch01":{"Current":"R: 1.0000 G: 2.0000 B: )"
                            R"(3.0000","DeltaE":"0.123456","DeltaC":"0.1","Initial":"#010203",)"
                            R"("Target":"#73524a"}}})";

class ReportCommand : public CommandTest
{
protected:
    Outcome report(const QByteArray& results, const QStringList& options = {}) const
    {
        return runTool(QStringList{QStringLiteral("report"),
                                   writeFile(QStringLiteral("results.json"), results),
                                   QStringLiteral("--out"), path(QStringLiteral("out"))} +
                       options);
    }

    static QString textOf(const Outcome& outcome)
    {
        QFile file(QString::fromStdString(outcome.out).trimmed());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << outcome.out << outcome.err;
        return QString::fromUtf8(file.readAll());
    }

    const QStringList namedCamera{QStringLiteral("--camera"), QStringLiteral("Model <1>")};
};

} // namespace

TEST_F(ReportCommand, MakesTheReportOfAResultsObject)
{
    const Outcome outcome = report(smallest, namedCamera);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const QString html = textOf(outcome);
    EXPECT_TRUE(html.startsWith(QStringLiteral("<!DOCTYPE html><html>")));
    EXPECT_TRUE(html.contains(QStringLiteral("Model &lt;1&gt;")));
    EXPECT_TRUE(html.contains(QStringLiteral("0.123456")));
    EXPECT_TRUE(html.contains(QStringLiteral("0.45")));
}

TEST_F(ReportCommand, TakesTheCameraFromWhatCalibratePrinted)
{
    const Outcome outcome =
        report(R"({"camera":"Camera 7 no. 12","model":"Camera 7","sfnc":"2.3.0","results":)" +
               smallest + "}");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_TRUE(textOf(outcome).contains(QStringLiteral("Calibration Report for Camera 7")));
    EXPECT_TRUE(QFileInfo(QString::fromStdString(outcome.out).trimmed())
                    .dir()
                    .dirName()
                    .startsWith(QStringLiteral("Calibration_Report_Camera 7_")));
}

TEST_F(ReportCommand, TakesTheCamerasNameWhereItsModelIsNotTold)
{
    const Outcome outcome = report(R"({"camera":"Camera 7 no. 12","results":)" + smallest + "}");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_TRUE(textOf(outcome).contains(QStringLiteral("Calibration Report for Camera 7 no. 12")));
}

TEST_F(ReportCommand, AsksForACameraThatNobodyNamed)
{
    expectFailure(report(smallest), 2, {QStringLiteral("--camera MODEL")});
    expectFailure(runTool({QStringLiteral("report"), path(QStringLiteral("none.json"))}), 2,
                  {QStringLiteral("--out")});
}

TEST_F(ReportCommand, SaysWhatIsWrongWithAFile)
{
    expectFailure(report("", namedCamera), 1, {QStringLiteral("no JSON")});
    expectFailure(report("{", namedCamera), 1, {QStringLiteral("no JSON")});
    expectFailure(report("[]", namedCamera), 1, {QStringLiteral("\"Original\" is missing")});
    expectFailure(report(R"({"results":3})", namedCamera), 1,
                  {QStringLiteral("\"Original\" is missing")});
    QByteArray number = smallest;
    number.replace(R"("0.123456")", "0.123456");
    expectFailure(report(number, namedCamera), 1,
                  {QStringLiteral("\"PreciseColors/Patch01/DeltaE\" is neither")});
    expectFailure(report(QByteArray(2'000'000, ' '), namedCamera), 1, {QStringLiteral("too long")});
    expectFailure(runTool({QStringLiteral("report"), path(QStringLiteral("none.json")),
                           QStringLiteral("--out"), path(QStringLiteral("out"))}),
                  1, {QStringLiteral("none.json")});
}

TEST_F(ReportCommand, SaysSoWhereItCannotWrite)
{
    writeFile(QStringLiteral("out"), "a file");
    expectFailure(report(smallest, namedCamera), 1,
                  {QStringLiteral("could not be written"), QStringLiteral("Cannot make the folder"),
                   QStringLiteral("Not a directory")});
}
