// SPDX-License-Identifier: Apache-2.0
// Which lines of a camera's settings belong to its colours.
#include "settingsfilter.h"

#include "featurelines.h"

#include <algorithm>
#include <array>

namespace ColorCalibration {
namespace {

// Found anywhere in a line, so that a name also keeps the features whose names it begins.
constexpr std::array<const char*, 38> keptNames{"LightSourceSelector",
                                                "ProcessedRawEnable",
                                                "ColorTransformationValueSelector",
                                                "ColorTransformationValue",
                                                "LightSourcePreset",
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

bool isKept(const QString& line)
{
    return line.contains(QLatin1Char('#')) ||
           std::any_of(keptNames.begin(), keptNames.end(),
                       [&line](const char* name) { return line.contains(QLatin1String(name)); });
}

} // namespace

QString FilterSettings(const QString& text)
{
    QStringList kept;
    for (const QString& line : featureLines(text)) {
        if (isKept(line))
            kept.append(line);
    }
    return kept.join(QLatin1Char('\n'));
}

} // namespace ColorCalibration
