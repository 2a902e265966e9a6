// SPDX-License-Identifier: Apache-2.0
// Tests of the report's tables and labels.
#include "reporttables.h"

#include "markingtranslator.h"

#include <gtest/gtest.h>

using namespace ColorCalibration;

namespace {

std::string table(const QString& key, const QJsonObject& object, const QString& label,
                  bool withHeader)
{
    QStringList lines;
    AppendTable(lines, key, object, label, withHeader);
    return lines.join("").toStdString();
}

TEST(TranslateLabel, KnowsSevenKeysAndReturnsTheOthers)
{
    EXPECT_EQ(TranslateLabel("DeltaE"), "Delta E");
    EXPECT_EQ(TranslateLabel("DeltaC"), "Delta C");
    EXPECT_EQ(TranslateLabel("Initial"), "Original");
    EXPECT_EQ(TranslateLabel("Target"), "Target");
    EXPECT_EQ(TranslateLabel("BlackLevel"), "Black Level");
    EXPECT_EQ(TranslateLabel("Original"), "Original");
    EXPECT_EQ(TranslateLabel("Calibrated"), "Current");
    EXPECT_EQ(TranslateLabel("Gain00"), "Gain00");
    EXPECT_EQ(TranslateLabel(""), "");
}

TEST(TranslateLabel, TranslatesWhatItKnowsInTheCommonContext)
{
    const MarkingTranslator translator;
    EXPECT_EQ(TranslateLabel("Initial"), "QObject:Original");
    EXPECT_EQ(TranslateLabel("Calibrated"), "QObject:Current");
    EXPECT_EQ(TranslateLabel("Current"), "Current") << "a key of its own, and unknown";
}

TEST(AppendTable, MakesOneColumnOfAScalar)
{
    const QJsonObject object{{"BlackLevel", "3"}};
    EXPECT_EQ(table("BlackLevel", object, "L", true),
              "<tr><th>&nbsp;</th><th>Black Level</th></tr><tr><th>L</th><td>3</td></tr>");
    EXPECT_EQ(table("BlackLevel", object, "L", false), "<tr><th>L</th><td>3</td></tr>");
}

TEST(AppendTable, MakesAColumnOfEachSubkeyInTheirOrder)
{
    const QJsonObject object{{"WhiteBalance", QJsonObject{{"Red", "1"}, {"Blue", "2"}}}};
    EXPECT_EQ(table("WhiteBalance", object, "L", true),
              "<tr><th>&nbsp;</th><th>Blue</th><th>Red</th></tr>"
              "<tr><th>L</th><td>2</td><td>1</td></tr>");
}

TEST(AppendTable, DescendsAlongTheKey)
{
    const QJsonObject object{
        {"a", QJsonObject{{"b", QJsonObject{{"c", QJsonObject{{"x", "1"}}}}}}}};
    EXPECT_EQ(table("a/b/c", object, "L", false), "<tr><th>L</th><td>1</td></tr>");
}

TEST(AppendTable, PutsBeforeAndAfterIntoOneTable)
{
    const QJsonObject results{{"Original", QJsonObject{{"Gamma", "1"}}},
                              {"Calibrated", QJsonObject{{"Gamma", "0.45"}}}};
    const std::string header = "<tr><th>&nbsp;</th><th>Gamma</th></tr>";
    const std::string before = "<tr><th>Original</th><td>1</td></tr>";
    const std::string after = "<tr><th>Current</th><td>0.45</td></tr>";
    EXPECT_EQ(table("Gamma", results, "unused", false),
              "<table id=\"results\">" + header + before + after + "</table>");
    EXPECT_EQ(table("Gamma", results, "unused", true),
              "<table id=\"results\">" + header + before + header + after + "</table>");
}

// Rows alone, as for any other object: a table is made for both sides alone.
TEST(AppendTable, MakesNoTableOfOneSide)
{
    const QJsonObject settings{{"Gamma", "1"}};
    for (const char* side : {"Original", "Calibrated"}) {
        const QJsonObject results{{side, settings}};
        EXPECT_EQ(table("Gamma", results, "L", false), "<tr><th>L</th><td></td></tr>") << side;
        EXPECT_EQ(table(QString(side) + "/Gamma", results, "L", true),
                  "<tr><th>&nbsp;</th><th>Gamma</th></tr><tr><th>L</th><td>1</td></tr>")
            << side;
    }
}

TEST(AppendTable, LooksForBothSidesAtEachDepth)
{
    const QJsonObject sides{{"Original", QJsonObject{{"b", "1"}}},
                            {"Calibrated", QJsonObject{{"b", "2"}}}};
    EXPECT_EQ(table("a/b", QJsonObject{{"a", sides}}, "L", false),
              "<table id=\"results\"><tr><th>&nbsp;</th><th>b</th></tr>"
              "<tr><th>Original</th><td>1</td></tr><tr><th>Current</th><td>2</td></tr></table>");
}

TEST(AppendTable, EscapesLabelsKeysAndValues)
{
    const QJsonObject object{{"k", QJsonObject{{"<b>", "\"1\" & <2>"}}}};
    EXPECT_EQ(table("k", object, "<i>", true),
              "<tr><th>&nbsp;</th><th>&lt;b&gt;</th></tr>"
              "<tr><th>&lt;i&gt;</th><td>&quot;1&quot; &amp; &lt;2&gt;</td></tr>");
}

TEST(AppendTable, LeavesTheCellEmptyForAKeyThatIsNotThere)
{
    EXPECT_EQ(table("Gamma", {}, "L", false), "<tr><th>L</th><td></td></tr>");
    EXPECT_EQ(table("a/b", {}, "L", false), "<tr><th>L</th><td></td></tr>");
}

TEST(AppendColorTable, HasOneHeaderAndOneRowAPatchInOneTable)
{
    const QJsonObject results{
        {"PreciseColors", QJsonObject{{"Patch01", QJsonObject{{"Current", "R: 1"}}},
                                      {"Patch02", QJsonObject{{"Current", "#0a0b0c"}}}}}};
    QStringList lines;
    AppendColorTable(lines, results);
    EXPECT_EQ(lines.join("").toStdString(),
              "<table id=\"results\"><tr><th>&nbsp;</th><th>Current</th></tr>"
              "<tr><th>Patch01</th><td>R: 1</td></tr>"
              "<tr><th>Patch02</th><td>R: 10 G: 11 B: 12</td></tr></table>");
}

} // namespace
