// SPDX-License-Identifier: Apache-2.0
// Tests of which lines of a camera's settings are kept.
#include "settingsfilter.h"

#include <gtest/gtest.h>

using ColorCalibration::FilterSettings;

namespace {

std::string filtered(const char* text)
{
    return FilterSettings(QString::fromUtf8(text)).toStdString();
}

TEST(FilterSettings, KeepsWhatBelongsToColorsAndDropsTheRest)
{
    EXPECT_EQ(filtered("Width\t1920\nGamma\t0.45\nExposureTime\t100\nBalanceRatioSelector\tRed\n"
                       "BalanceRatio\t1.5\nOffsetX\t0\nTestImageSelector\tOff\n"),
              "Gamma\t0.45\nBalanceRatioSelector\tRed\nBalanceRatio\t1.5\nTestImageSelector\tOff");
}

TEST(FilterSettings, KeepsEveryNameOfItsList)
{
    // Written down once more, so that a name that gets lost is noticed.
    const char* const names[] = {"LightSourceSelector",
                                 "ProcessedRawEnable",
                                 "LightSourcePreset",
                                 "ColorTransformationValueSelector",
                                 "ColorTransformationValue",
                                 "TvrLightSourcePreset",
                                 "BalanceRatioSelector",
                                 "BalanceRatioRaw",
                                 "BalanceRatio",
                                 "Gamma",
                                 "GammaSelector",
                                 "GammaEnable",
                                 "ColorAdjustmentEnable",
                                 "TvrColorAdjustmentEnable",
                                 "ColorAdjustmentHue",
                                 "TvrColorAdjustmentHue",
                                 "ColorAdjustmentSaturation",
                                 "TvrColorAdjustmentSaturation",
                                 "ColorAdjustmentSelector",
                                 "TvrColorAdjustmentSelector",
                                 "BlackLevelSelector",
                                 "BlackLevelRaw",
                                 "BlackLevel",
                                 "TvrHue",
                                 "TvrSaturation",
                                 "TvrBrightness",
                                 "TvrContrast",
                                 "LUTEnable",
                                 "LUTSelector",
                                 "LUTValueAll",
                                 "GainAuto",
                                 "BalanceWhiteAuto",
                                 "TonalRangeAuto",
                                 "ExposureAuto",
                                 "TonalRangeEnable",
                                 "PixelFormat",
                                 "TvrContrastMode",
                                 "TestImageSelector"};
    for (const char* name : names)
        EXPECT_EQ(filtered(name), name);
}

TEST(FilterSettings, FindsNamesAnywhereInALineAndHeedsCase)
{
    EXPECT_EQ(filtered("OldGammaThing\t1\nX\tBalanceRatio\ngamma\t1\nGAMMA\t1"),
              "OldGammaThing\t1\nX\tBalanceRatio");
}

TEST(FilterSettings, KeepsComments)
{
    EXPECT_EQ(filtered("# Feature stream 1\nWidth\t3\nOffset\t#7"),
              "# Feature stream 1\nOffset\t#7");
}

TEST(FilterSettings, DropsCarriageReturnsAtLineEnds)
{
    EXPECT_EQ(filtered("Gamma\t1\r\nWidth\t2\r\nGainAuto\tOff\r\n"), "Gamma\t1\nGainAuto\tOff");
}

TEST(FilterSettings, MakesNothingOfNothing)
{
    EXPECT_EQ(filtered(""), "");
    EXPECT_EQ(filtered("\n\n\n"), "");
}

} // namespace
