// SPDX-License-Identifier: Apache-2.0
// The gain that brings the gray patch to its level.
#include "digitalgain.h"

#include "testcolors.h"

#include <cmath>

namespace ColorCalibration {

namespace {

struct LoadedGain
{
    LoadedGain(double red, double green, double blue)
    {
        PatchColors colors = allPatches(10, 20, 200);
        setPatch(colors, 19, red, green, blue);
        step.SetColors(colors);
    }

    double gain() const
    {
        double value = -1.0;
        step.GetGain(value);
        return value;
    }

    DigitalGain step{TestChart};
};

} // namespace

TEST(DigitalGain, BlackGrayPatchLeavesTheColorsAlone)
{
    LoadedGain loaded(0, 0, 0);
    loaded.step.Calculate();
    EXPECT_EQ(loaded.gain(), 1.0);
    expectColors(loaded.step.Output, loaded.step.Input);
}

TEST(DigitalGain, ScalesAllPatchesWith255AsTheCeiling)
{
    LoadedGain loaded(75, 100, 50);
    loaded.step.Calculate();
    EXPECT_EQ(loaded.gain(), 1.5);
    expectPatch(loaded.step.Output, 19, makeColor(112.5, 150, 75));
    for (const int patch : {0, 12, 18, 20, 23}) {
        expectPatch(loaded.step.Output, patch, makeColor(15, 30, 255));
    }
}

TEST(DigitalGain, DarkensABrightGrayPatch)
{
    LoadedGain loaded(10, 250, 20);
    loaded.step.Calculate();
    EXPECT_EQ(loaded.gain(), 0.6);
    expectPatch(loaded.step.Output, 0, makeColor(6, 12, 120), 1e-13);
}

TEST(DigitalGain, EstimateLeavesTheOutputAlone)
{
    LoadedGain loaded(75, 100, 50);
    loaded.step.Estimate();
    EXPECT_EQ(loaded.gain(), 1.5);
    expectColors(loaded.step.Output, loaded.step.Input);
}

TEST(DigitalGain, ApplyUsesTheGainOfTheLastEstimate)
{
    LoadedGain loaded(75, 100, 50);
    loaded.step.Estimate();
    loaded.step.SetColors(allPatches(4, 6, 8));
    loaded.step.Apply();
    EXPECT_EQ(loaded.gain(), 1.5);
    expectColors(loaded.step.Output, allPatches(6, 9, 12));
}

TEST(DigitalGain, InfiniteGrayPatchMakesEverythingBlackButItself)
{
    LoadedGain loaded(100, Infinity, 100);
    loaded.step.Calculate();
    EXPECT_EQ(loaded.gain(), 0.0);
    expectPatch(loaded.step.Output, 0, makeColor(0, 0, 0));
    expectPatch(loaded.step.Output, 19, makeColor(255, 255, 255));
}

// As in any product with a diagonal matrix, 0 times infinity reaches the other channels.
TEST(DigitalGain, ChannelThatIsNotFiniteSpoilsItsPatch)
{
    for (const double spoiled : {NaN, Infinity, -Infinity}) {
        LoadedGain loaded(75, 100, 50);
        loaded.step.Input(3, 1) = spoiled;
        loaded.step.Calculate();
        const double own = spoiled == -Infinity ? 0.0 : 255.0;
        expectPatch(loaded.step.Output, 3, makeColor(255, own, 255));
        expectPatch(loaded.step.Output, 4, makeColor(15, 30, 255));
    }
}

} // namespace ColorCalibration
