// SPDX-License-Identifier: Apache-2.0
// "compute" on good and bad patch colours.
#include "charttargets.h"
#include "commandtest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <sstream>

namespace {

class ComputeCommand : public CommandTest
{
protected:
    static Outcome compute(const std::string& lines, const QStringList& options = {})
    {
        return runTool(QStringList{QStringLiteral("compute"), QStringLiteral("-")} + options,
                       lines);
    }

    static QJsonObject computeJson(const std::string& lines)
    {
        const Outcome outcome = compute(lines, {QStringLiteral("--json")});
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    }

    /// The chart's targets with the neutral patches made exactly neutral, so that nothing is left
    /// to be corrected.
    static std::string neutralTargetLines()
    {
        const auto targets = ColorCalibration::ChartTargets().TargetColors();
        std::ostringstream lines;
        lines.precision(17);
        for (int i = 0; i < 24; ++i) {
            const bool neutral = i >= 18;
            lines << targets(i, 0) << "," << targets(i, neutral ? 0 : 1) << ","
                  << targets(i, neutral ? 0 : 2) << "\n";
        }
        return lines.str();
    }

    static void expectNumbers(const QJsonArray& numbers, const std::vector<double>& expected,
                              double tolerance)
    {
        ASSERT_EQ(numbers.size(), static_cast<int>(expected.size()));
        for (int i = 0; i < numbers.size(); ++i)
            EXPECT_NEAR(numbers.at(i).toDouble(), expected[static_cast<std::size_t>(i)], tolerance)
                << i;
    }
};

} // namespace

TEST_F(ComputeCommand, FindsNothingToDoOnAPerfectCamera)
{
    const QJsonObject result = computeJson(neutralTargetLines());
    expectNumbers(result.value(QStringLiteral("whiteBalance")).toArray(), {1, 1, 1}, 0.0);
    const QJsonArray matrix = result.value(QStringLiteral("colorMatrix")).toArray();
    ASSERT_EQ(matrix.size(), 3);
    expectNumbers(matrix.at(0).toArray(), {1, 0, 0}, 1e-12);
    expectNumbers(matrix.at(1).toArray(), {0, 1, 0}, 1e-12);
    expectNumbers(matrix.at(2).toArray(), {0, 0, 1}, 1e-12);
    const QJsonObject adjustment = result.value(QStringLiteral("colorAdjustment")).toObject();
    expectNumbers(adjustment.value(QStringLiteral("hue")).toArray(), {0, 0, 0, 0, 0, 0}, 1e-11);
    expectNumbers(adjustment.value(QStringLiteral("saturation")).toArray(), {1, 1, 1, 1, 1, 1},
                  1e-11);
    EXPECT_EQ(result.value(QStringLiteral("gamma")).toDouble(), 0.45);
}

TEST_F(ComputeCommand, TellsColorsAndMeanOfEachStep)
{
    const QJsonObject result = computeJson(targetLines());
    const QJsonObject steps = result.value(QStringLiteral("steps")).toObject();
    EXPECT_EQ(steps.keys(), QStringList({QStringLiteral("Bc6x2"), QStringLiteral("DigitalGain"),
                                         QStringLiteral("Matrix3x3"), QStringLiteral("Original"),
                                         QStringLiteral("WhiteBalance")}));
    for (const QString& name : steps.keys()) {
        const QJsonArray colors =
            steps.value(name).toObject().value(QStringLiteral("colors")).toArray();
        ASSERT_EQ(colors.size(), 24) << name.toStdString();
        EXPECT_EQ(colors.at(23).toArray().size(), 3);
    }
    const auto mean = [&](const char* step) {
        return steps.value(QLatin1String(step))
            .toObject()
            .value(QStringLiteral("meanDeltaE"))
            .toDouble(-1);
    };
    EXPECT_EQ(mean("Original"), 0.0);
    EXPECT_GT(mean("DigitalGain"), 0.0);
    EXPECT_EQ(mean("Bc6x2"), result.value(QStringLiteral("meanDeltaE")).toDouble(-2));
    // The gray patch's largest channel is 151.31 and is brought to 150.
    expectNumbers(steps.value(QStringLiteral("DigitalGain"))
                      .toObject()
                      .value(QStringLiteral("colors"))
                      .toArray()
                      .at(19)
                      .toArray(),
                  {147.89 * 150 / 151.31, 150.94 * 150 / 151.31, 150.0}, 1e-9);
}

TEST_F(ComputeCommand, PrintsATableOfThePatches)
{
    const Outcome outcome = compute(targetLines());
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    const QString text = QString::fromStdString(outcome.out);
    static const QRegularExpression row(
        QStringLiteral("^ +\\d+  #[0-9a-f]{6}   #[0-9a-f]{6}    #[0-9a-f]{6}( +\\d+\\.\\d\\d){4}$"),
        QRegularExpression::MultilineOption);
    int rows = 0;
    for (auto match = row.globalMatch(text); match.hasNext(); match.next())
        ++rows;
    EXPECT_EQ(rows, 24) << outcome.out;
    for (const char* word : {"Mean", "Max", "White balance", "Color matrix", "Hue", "Saturation",
                             "Gamma             0.4500"})
        EXPECT_TRUE(text.contains(QLatin1String(word))) << word << "\n" << outcome.out;
    // Patch 1 is measured at its target: the sRGB curve makes 44.138, 20.936, 14.471 to #745143.
    EXPECT_TRUE(text.contains(QLatin1String("    1  #745143"))) << outcome.out;
}

TEST_F(ComputeCommand, ReadsAFile)
{
    const QString file =
        writeFile(QStringLiteral("patches.csv"), QByteArray::fromStdString(targetLines()));
    const Outcome fromFile = runTool({QStringLiteral("compute"), file});
    EXPECT_EQ(fromFile.code, 0) << fromFile.err;
    EXPECT_EQ(fromFile.out, compute(targetLines()).out);
}

TEST_F(ComputeCommand, CorrectsTheExamplePicture)
{
    QFile gridFile(QStringLiteral(EXAMPLES_DIR "/chart-16bit.grid"));
    ASSERT_TRUE(gridFile.open(QIODevice::ReadOnly));
    const Outcome measured =
        runTool({QStringLiteral("measure"), QStringLiteral(EXAMPLES_DIR "/chart-16bit.png"),
                 QStringLiteral("--grid"), QString::fromUtf8(gridFile.readAll())});
    ASSERT_EQ(measured.code, 0) << measured.err;
    const QJsonObject result = computeJson(measured.out);
    const double before = result.value(QStringLiteral("steps"))
                              .toObject()
                              .value(QStringLiteral("Original"))
                              .toObject()
                              .value(QStringLiteral("meanDeltaE"))
                              .toDouble();
    EXPECT_GT(before, 8.0);
    EXPECT_LT(result.value(QStringLiteral("meanDeltaE")).toDouble(), 1.5);
}

TEST_F(ComputeCommand, NamesFileAndLineOfAWrongValue)
{
    const QString file = writeFile(QStringLiteral("patches.csv"), "1,2,3\n4,5,x\n");
    expectFailure(runTool({QStringLiteral("compute"), file}), 1,
                  {file, QStringLiteral("line 2"), QStringLiteral("blue")});
    expectFailure(compute("1,2,3\n"), 1, {QStringLiteral("standard input has 1 lines")});
    expectFailure(compute(""), 1, {QStringLiteral("standard input is empty")});
    expectFailure(runTool({QStringLiteral("compute"), path(QStringLiteral("missing"))}), 1,
                  {QStringLiteral("missing")});
}

TEST_F(ComputeCommand, RefusesAChartWithoutColor)
{
    std::string gray;
    for (int i = 1; i <= 24; ++i)
        gray += std::to_string(i) + "," + std::to_string(i) + "," + std::to_string(i) + "\n";
    expectFailure(
        compute(gray), 1,
        {QStringLiteral("Cannot determine hue sector on gray image"), QStringLiteral("patch 1 ")});
}

TEST_F(ComputeCommand, RefusesGrayPatchesWithoutAWhiteBalance)
{
    const auto withGrayPatches = [](const std::string& gray) {
        std::string lines;
        for (int i = 0; i < 24; ++i)
            lines += i >= 18 ? gray : "100," + std::to_string(i) + ",50\n";
        return lines;
    };
    expectFailure(compute(withGrayPatches("255,255,255\n")), 1, {QStringLiteral("not a number")});
    expectFailure(compute(withGrayPatches("0,0,0\n")), 1, {QStringLiteral("not a number")});
    expectFailure(compute(withGrayPatches("0,100,100\n")), 1,
                  {QStringLiteral("red gain is infinite")});
}

TEST_F(ComputeCommand, WantsExactlyOneFile)
{
    expectFailure(runTool({QStringLiteral("compute")}), 2, {QStringLiteral("argument is missing")});
    expectFailure(runTool({QStringLiteral("compute"), QStringLiteral("a"), QStringLiteral("b")}), 2,
                  {QStringLiteral("too many")});
    expectFailure(compute(targetLines(), {QStringLiteral("--xml")}), 2, {QStringLiteral("xml")});
}

TEST_F(ComputeCommand, PrintsWhatTheReadmeShows)
{
    QFile readme(QStringLiteral(EXAMPLES_DIR "/../README.md"));
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(readme.readAll());
    const QString sample = text.section(QStringLiteral("```"), 7, 7);
    QFile gridFile(QStringLiteral(EXAMPLES_DIR "/chart-16bit.grid"));
    ASSERT_TRUE(gridFile.open(QIODevice::ReadOnly));
    const Outcome measured =
        runTool({QStringLiteral("measure"), QStringLiteral(EXAMPLES_DIR "/chart-16bit.png"),
                 QStringLiteral("--grid"), QString::fromUtf8(gridFile.readAll())});
    const QString printed = QString::fromStdString(compute(measured.out).out);
    int compared = 0;
    for (const QString& line : sample.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line == QLatin1String("..."))
            continue;
        EXPECT_TRUE(printed.contains(line)) << line.toStdString();
        ++compared;
    }
    EXPECT_GE(compared, 9);
}
