// SPDX-License-Identifier: Apache-2.0
// Tests of colors in words.
#include "rgbtext.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace ColorCalibration;

namespace {

TEST(HexToRgbText, ReadsTheBytesFromTheHighEndDown)
{
    EXPECT_EQ(HexToRgbText("#735244"), "R: 115 G: 82 B: 68");
    EXPECT_EQ(HexToRgbText("#000000"), "R: 0 G: 0 B: 0");
    EXPECT_EQ(HexToRgbText("#ffffff"), "R: 255 G: 255 B: 255");
    EXPECT_EQ(HexToRgbText("#0000FF"), "R: 0 G: 0 B: 255");
}

TEST(HexToRgbText, LeavesOtherTextsAlone)
{
    EXPECT_EQ(HexToRgbText("1.2345"), "1.2345");
    EXPECT_EQ(HexToRgbText("N/A"), "N/A");
    EXPECT_EQ(HexToRgbText(""), "");
}

TEST(HexToRgbText, MakesBlackOfWhatIsNoNumber)
{
    EXPECT_EQ(HexToRgbText("#nonsense"), "R: 0 G: 0 B: 0");
}

TEST(ConvertColorsToRgb, ReachesEveryDepth)
{
    const QJsonObject nested{
        {"a", "#010203"},
        {"b", QJsonObject{{"c", QJsonObject{{"d", "#ff0000"}, {"e", "0.5"}}}, {"f", 3}}},
        {"g", QJsonArray{"#010203"}}};
    const QJsonObject expected{
        {"a", "R: 1 G: 2 B: 3"},
        {"b", QJsonObject{{"c", QJsonObject{{"d", "R: 255 G: 0 B: 0"}, {"e", "0.5"}}}, {"f", 3}}},
        {"g", QJsonArray{"#010203"}}};
    EXPECT_EQ(ConvertColorsToRgb(nested), expected);
}

} // namespace
