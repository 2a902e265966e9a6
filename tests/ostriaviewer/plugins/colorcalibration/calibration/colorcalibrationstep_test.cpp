// SPDX-License-Identifier: Apache-2.0
// What all steps share: loading colours, distances from the targets; and the step that only passes
// on.
#include "original.h"
#include "referencecalibration.h"
#include "simulatedcamera.h"
#include "testcolors.h"

#include <cmath>

namespace ColorCalibration {

namespace {

// Input and Output of a step, set apart from each other.
struct LoadedStep
{
    LoadedStep()
    {
        step.SetColors(simulatedResponse(1));
        step.Output = simulatedResponse(2);
    }

    Original step{TestChart, 1.0};
};

} // namespace

TEST(ColorCalibrationStep, IsBlackBeforeColorsAreLoaded)
{
    const Original step(TestChart, 1.0);
    expectColors(step.Input, allPatches(0, 0, 0));
    expectColors(step.Output, allPatches(0, 0, 0));
}

TEST(ColorCalibrationStep, SetColorsLoadsInputAndOutput)
{
    LoadedStep loaded;
    loaded.step.SetColors(simulatedResponse(3));
    expectColors(loaded.step.Input, simulatedResponse(3));
    expectColors(loaded.step.Output, simulatedResponse(3));
    EXPECT_EQ(loaded.step.Delta(3, false, false), loaded.step.Delta(3, false, true));
}

TEST(ColorCalibrationStep, DeltaReadsTheColorsItIsAskedFor)
{
    const LoadedStep loaded;
    const auto input = Reference::fromPatchColors(loaded.step.Input);
    const auto output = Reference::fromPatchColors(loaded.step.Output);
    for (int patch = 0; patch < PatchCount; ++patch) {
        EXPECT_NEAR(loaded.step.Delta(patch, false, false),
                    static_cast<double>(Reference::distanceFromTarget(input, patch)), 1e-10);
        EXPECT_NEAR(loaded.step.Delta(patch, false, true),
                    static_cast<double>(Reference::distanceFromTarget(output, patch)), 1e-10);
    }
    EXPECT_NE(loaded.step.Delta(3, false, false), loaded.step.Delta(3, false, true));
}

TEST(ColorCalibrationStep, DeltaIsZeroAtTheTargets)
{
    Original step(TestChart, 1.0);
    step.SetColors(targetColors());
    EXPECT_EQ(step.MeanDelta(false, false), 0.0);
    EXPECT_EQ(step.MeanDelta(true, true), 0.0);
}

TEST(ColorCalibrationStep, DeltaOfChromaLeavesOutTheLightness)
{
    // Half of the light: the same hue and a little less chroma, but much darker.
    Original step(TestChart, 1.0);
    step.SetColors(targetColors() * 0.5);
    for (int patch = 18; patch < PatchCount; ++patch) {
        EXPECT_LT(step.Delta(patch, true, false), 0.5) << patch;
        EXPECT_GT(step.Delta(patch, false, false), 2.0) << patch;
    }
}

TEST(ColorCalibrationStep, MeanDeltaIsTheMeanOverTheChart)
{
    const LoadedStep loaded;
    for (const bool chromaOnly : {false, true}) {
        for (const bool useOutput : {false, true}) {
            double sum = 0.0;
            for (int patch = 0; patch < PatchCount; ++patch) {
                sum += loaded.step.Delta(patch, chromaOnly, useOutput);
            }
            EXPECT_DOUBLE_EQ(loaded.step.MeanDelta(chromaOnly, useOutput), sum / 24.0);
        }
    }
}

TEST(ColorCalibrationStep, NanInOnePatchSpoilsItsDeltaAndTheMeanAlone)
{
    LoadedStep loaded;
    loaded.step.Input(5, 1) = NaN;
    EXPECT_TRUE(std::isnan(loaded.step.Delta(5, false, false)));
    EXPECT_TRUE(std::isnan(loaded.step.MeanDelta(false, false)));
    EXPECT_TRUE(std::isfinite(loaded.step.Delta(4, false, false)));
    EXPECT_TRUE(std::isfinite(loaded.step.MeanDelta(false, true)));
}

TEST(Original, PassesColorsOnTheScaleUnchanged)
{
    Original step(TestChart, 1.0);
    step.SetColors(simulatedResponse(1));
    step.Output = allPatches(1, 2, 3);
    step.Calculate();
    expectColors(step.Output, simulatedResponse(1));
    expectColors(step.Input, simulatedResponse(1));
}

TEST(Original, MultipliesByItsGain)
{
    Original step(TestChart, 2.5);
    step.SetColors(allPatches(10, 100, 102.5));
    step.Calculate();
    expectColors(step.Output, allPatches(25, 250, 255));
}

TEST(Original, ClampsToTheScaleAndTurnsNanInto255)
{
    Original step(TestChart, 1.0);
    PatchColors colors = allPatches(100, 100, 100);
    setPatch(colors, 0, -1, 256, 255);
    setPatch(colors, 1, Infinity, -Infinity, NaN);
    setPatch(colors, 2, 1e308, -1e308, 5e-324);
    step.SetColors(colors);
    step.Calculate();
    expectPatch(step.Output, 0, makeColor(0, 255, 255));
    expectPatch(step.Output, 1, makeColor(255, 0, 255));
    expectPatch(step.Output, 2, makeColor(255, 0, 5e-324));
    expectPatch(step.Output, 3, makeColor(100, 100, 100));
}

} // namespace ColorCalibration
