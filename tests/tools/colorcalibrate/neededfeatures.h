// SPDX-License-Identifier: Apache-2.0
// The features of the emulated color cameras that the calibrator cannot do without.
#pragma once

#include <string>
#include <vector>

/// \param camera  index in supportedModels
inline std::vector<std::string> neededFeatures(int camera)
{
    if (camera == 0)
        return {"BlackLevelSelector",
                "BlackLevelRaw",
                "GammaSelector",
                "Gamma",
                "GammaEnable",
                "LightSourceSelector",
                "LUTSelector",
                "LUTEnable",
                "BalanceRatioSelector",
                "BalanceRatioAbs",
                "ExposureTimeAbs",
                "GainRaw",
                "AutoExposureTimeAbsLowerLimit",
                "AutoExposureTimeAbsUpperLimit",
                "AutoGainRawLowerLimit",
                "AutoGainRawUpperLimit",
                "DeviceColorPipelineVersion"};
    std::vector<std::string> features{"BlackLevelSelector",
                                      "BlackLevel",
                                      "Gamma",
                                      "LUTSelector",
                                      "LUTEnable",
                                      "BalanceRatioSelector",
                                      "BalanceRatio",
                                      "ExposureTime",
                                      "Gain",
                                      "AutoExposureTimeLowerLimit",
                                      "AutoExposureTimeUpperLimit",
                                      "AutoGainLowerLimit",
                                      "AutoGainUpperLimit"};
    if (camera == 1)
        features.emplace_back("DeviceColorPipelineVersion");
    return features;
}
