// SPDX-License-Identifier: Apache-2.0
// What tests of several generations of cameras are called.
#pragma once

#include "cameramodel.h"

#include <gtest/gtest.h>

#include <string>

inline std::string
generationName(const testing::TestParamInfo<Cameras::Emulation::FeatureNames>& names)
{
    switch (names.param) {
    case Cameras::Emulation::FeatureNames::FirstGeneration:
        return "FirstGeneration";
    case Cameras::Emulation::FeatureNames::SecondGeneration:
        return "SecondGeneration";
    case Cameras::Emulation::FeatureNames::SecondGenerationMaker:
        return "SecondGenerationMaker";
    }
    return {};
}
