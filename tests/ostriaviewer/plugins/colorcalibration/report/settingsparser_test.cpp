// SPDX-License-Identifier: Apache-2.0
// Tests of settings text becoming an object.
#include "settingsparser.h"

#include "settingsfilter.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace ColorCalibration;

namespace {

/// The leaf at a path like "BC6x2/Hue/Red".
std::string leaf(const QString& text, const QString& path)
{
    QJsonValue value = ParseSettings(text);
    for (const QString& key : path.split('/'))
        value = value.toObject().value(key);
    return value.toString("missing").toStdString();
}

QStringList leaves(const QJsonObject& object, const QString& prefix = {})
{
    QStringList paths;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry.value().isObject())
            paths += leaves(entry.value().toObject(), prefix + entry.key() + '/');
        else
            paths << prefix + entry.key();
    }
    return paths;
}

TEST(ParseSettings, HasAllLeavesWithTheirDefaults)
{
    const QStringList paths = leaves(ParseSettings(""));
    // 2 single values, 9 of the matrix, 12 of six colors, 4 of HSBC, 3 of the white balance.
    EXPECT_EQ(paths.size(), 30);
    for (const QString& path : paths)
        EXPECT_EQ(leaf("", path), "N/A") << path.toStdString();
    for (const char* path :
         {"BlackLevel", "Gamma", "Matrix/Gain00", "Matrix/Gain12", "Matrix/Gain22", "BC6x2/Hue/Red",
          "BC6x2/Hue/Magenta", "BC6x2/Saturation/Cyan", "BC6x2/Saturation/Yellow", "HSBC/Hue",
          "HSBC/Saturation", "HSBC/Brightness", "HSBC/Contrast", "WhiteBalance/Red",
          "WhiteBalance/Green", "WhiteBalance/Blue"})
        EXPECT_TRUE(paths.contains(path)) << path;
}

TEST(ParseSettings, ReadsSingleValuesUnderBothNames)
{
    EXPECT_EQ(leaf("BlackLevel\t1.5", "BlackLevel"), "1.5");
    EXPECT_EQ(leaf("BlackLevelRaw\t64", "BlackLevel"), "64");
    EXPECT_EQ(leaf("Gamma\t0.45", "Gamma"), "0.45");
    EXPECT_EQ(leaf("TvrBrightness\t-0.5", "HSBC/Brightness"), "-0.5");
}

TEST(ParseSettings, PutsValuesBehindTheirSelectors)
{
    const QString text = "BalanceRatioSelector\tRed\nBalanceRatio\t1.1\n"
                         "BalanceRatioSelector\tBlue\nBalanceRatioRaw\t140\n"
                         "ColorTransformationValueSelector\tGain12\nColorTransformationValue\t-1\n"
                         "ColorTransformationValueSelector\tGain20\nColorTransformationValueRaw\t7";
    EXPECT_EQ(leaf(text, "WhiteBalance/Red"), "1.1");
    EXPECT_EQ(leaf(text, "WhiteBalance/Green"), "N/A");
    EXPECT_EQ(leaf(text, "WhiteBalance/Blue"), "140");
    EXPECT_EQ(leaf(text, "Matrix/Gain12"), "-1");
    EXPECT_EQ(leaf(text, "Matrix/Gain20"), "7");
}

TEST(ParseSettings, SharesOneMemoryBetweenBothSelectorNames)
{
    const QString text = "ColorAdjustmentSelector\tRed\nTvrColorAdjustmentHue\t0.1\n"
                         "ColorAdjustmentSaturationRaw\t5\n"
                         "TvrColorAdjustmentSelector\tCyan\nColorAdjustmentHueRaw\t3\n"
                         "TvrColorAdjustmentSaturation\t1.25\n"
                         "ColorAdjustmentSelector\tBlue\nTvrColorAdjustmentHueRaw\t9\n"
                         "TvrColorAdjustmentSaturationRaw\t8\n";
    EXPECT_EQ(leaf(text, "BC6x2/Hue/Red"), "0.1");
    EXPECT_EQ(leaf(text, "BC6x2/Saturation/Red"), "5");
    EXPECT_EQ(leaf(text, "BC6x2/Hue/Cyan"), "3");
    EXPECT_EQ(leaf(text, "BC6x2/Saturation/Cyan"), "1.25");
    EXPECT_EQ(leaf(text, "BC6x2/Hue/Blue"), "9");
    EXPECT_EQ(leaf(text, "BC6x2/Saturation/Blue"), "8");
}

TEST(ParseSettings, LosesAValueThatComesBeforeItsSelector)
{
    EXPECT_EQ(ParseSettings("BalanceRatio\t2\nColorTransformationValue\t3\nColorAdjustmentHue\t4\n"
                            "BalanceRatioSelector\tRed\nColorAdjustmentSelector\tRed"),
              ParseSettings(""));
}

TEST(ParseSettings, LeavesHueAndItsKinOpenForACameraWithoutThem)
{
    const QJsonObject settings = ParseSettings("Gamma\t1\nBlackLevelRaw\t32");
    for (const QJsonValue& value : settings["HSBC"].toObject())
        EXPECT_EQ(value.toString(), "N/A");
}

TEST(ParseSettings, CommentsPassTheFilterAndMatchNothing)
{
    const QString text = FilterSettings("# Gamma\t3\n#Gamma\t3\n#BlackLevel\t9");
    EXPECT_EQ(text, "# Gamma\t3\n#Gamma\t3\n#BlackLevel\t9");
    EXPECT_EQ(ParseSettings(text), ParseSettings(""));
}

TEST(ParseSettings, WantsTheNameExactlyAndKeepsTheWholeValue)
{
    EXPECT_EQ(ParseSettings("GammaEnable\t1\ngamma\t1\n Gamma\t1"), ParseSettings(""));
    EXPECT_EQ(leaf("Gamma", "Gamma"), "");
    EXPECT_EQ(leaf("Gamma\t1\t2", "Gamma"), "1\t2");
    EXPECT_EQ(leaf("Gamma\t1\r\nX\t2", "Gamma"), "1");
    EXPECT_EQ(leaf("Gamma\t1\nGamma\t2", "Gamma"), "2") << "the last line counts";
}

TEST(ParseSettings, HasNoPlaceForUnknownSelectorEntries)
{
    EXPECT_EQ(ParseSettings("BalanceRatioSelector\tInfrared\nBalanceRatio\t2\n"
                            "ColorTransformationValueSelector\tOffset0\n"
                            "ColorTransformationValue\t1\nTvrContrastMode\tLinear"),
              ParseSettings(""));
}

} // namespace
