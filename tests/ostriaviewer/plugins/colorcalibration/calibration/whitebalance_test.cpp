// SPDX-License-Identifier: Apache-2.0
// White balance factors: closed forms, what is left out, and input that cannot be balanced.
#include "whitebalance.h"

#include "simulatedcamera.h"
#include "testcolors.h"

#include <cmath>

namespace ColorCalibration {

namespace {

// All patches (10, 20, 30); the three gray ones as given to the tests.
struct LoadedBalance
{
    LoadedBalance(const Color& first, const Color& second, const Color& third)
    {
        PatchColors colors = allPatches(10, 20, 30);
        setPatch(colors, 19, first(0), first(1), first(2));
        setPatch(colors, 20, second(0), second(1), second(2));
        setPatch(colors, 21, third(0), third(1), third(2));
        step.SetColors(colors);
        step.Calculate();
    }

    Color gains() const
    {
        Color values;
        step.GetGains(values(0), values(1), values(2));
        return values;
    }

    WhiteBalance step{TestChart};
};

const Color& saturated()
{
    static const Color color = makeColor(250, 10, 10);
    return color;
}

void expectGains(const LoadedBalance& loaded, double red, double green, double blue,
                 double tolerance = 0.0)
{
    EXPECT_NEAR(loaded.gains()(0), red, tolerance);
    EXPECT_NEAR(loaded.gains()(1), green, tolerance);
    EXPECT_NEAR(loaded.gains()(2), blue, tolerance);
}

} // namespace

TEST(WhiteBalance, LeavesNeutralPatchesAlone)
{
    const LoadedBalance loaded(makeColor(150, 150, 150), makeColor(90.5, 90.5, 90.5),
                               makeColor(49.1, 49.1, 49.1));
    expectGains(loaded, 1.0, 1.0, 1.0);
    expectColors(loaded.step.Output, loaded.step.Input);
}

TEST(WhiteBalance, RaisesTheWeakChannelOfASinglePatch)
{
    const LoadedBalance loaded(makeColor(100, 50, 100), saturated(), saturated());
    expectGains(loaded, 1.0, 2.0, 1.0);
    expectPatch(loaded.step.Output, 0, makeColor(10, 40, 30));
    expectPatch(loaded.step.Output, 19, makeColor(100, 100, 100));
}

// (100, 50, 25) and (10, 8, 10) relative to their peaks are (1, 0.5, 0.25) and (1, 0.8, 1),
// together (2, 1.3, 1.25): bright and dark patches count alike.
TEST(WhiteBalance, IgnoresTheBrightnessOfAPatch)
{
    const LoadedBalance loaded(makeColor(100, 50, 25), makeColor(10, 8, 10), saturated());
    expectGains(loaded, 1.0, 2.0 / 1.3, 2.0 / 1.25, 1e-15);
}

TEST(WhiteBalance, CountsAllThreePatchesAndNoOther)
{
    const LoadedBalance first(makeColor(100, 50, 100), makeColor(100, 100, 100),
                              makeColor(100, 100, 100));
    const LoadedBalance second(makeColor(100, 100, 100), makeColor(100, 50, 100),
                               makeColor(100, 100, 100));
    const LoadedBalance third(makeColor(100, 100, 100), makeColor(100, 100, 100),
                              makeColor(100, 50, 100));
    for (const LoadedBalance* loaded : {&first, &second, &third}) {
        expectGains(*loaded, 1.0, 3.0 / 2.5, 1.0, 1e-15);
    }
}

TEST(WhiteBalance, LeavesOutAPatchAt250)
{
    const Color gray = makeColor(100, 100, 100);
    expectGains(LoadedBalance(makeColor(125, 250, 250), gray, gray), 1.0, 1.0, 1.0);
    expectGains(LoadedBalance(makeColor(255, 100, 10), gray, gray), 1.0, 1.0, 1.0);
}

TEST(WhiteBalance, CountsAPatchJustBelow250)
{
    const Color gray = makeColor(100, 100, 100);
    expectGains(LoadedBalance(makeColor(124.95, 249.9, 249.9), gray, gray), 3.0 / 2.5, 1.0, 1.0,
                1e-15);
}

TEST(WhiteBalance, NoFactorIsBelowOneAndTheStrongestChannelKeepsOne)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        WhiteBalance step(TestChart);
        step.SetColors(simulatedResponse(seed));
        step.Calculate();
        Color gains;
        step.GetGains(gains(0), gains(1), gains(2));
        EXPECT_EQ(dlib::min(gains), 1.0) << seed;
    }
}

TEST(WhiteBalance, ClampsAt255)
{
    LoadedBalance loaded(makeColor(100, 50, 100), saturated(), saturated());
    loaded.step.SetColors(allPatches(200, 200, -3));
    loaded.step.Apply();
    expectColors(loaded.step.Output, allPatches(200, 255, 0));
}

TEST(WhiteBalance, EstimateLeavesTheOutputAlone)
{
    LoadedBalance loaded(makeColor(100, 50, 100), saturated(), saturated());
    loaded.step.SetColors(allPatches(100, 100, 50));
    loaded.step.Estimate();
    expectGains(loaded, 1.0, 1.0, 2.0);
    expectColors(loaded.step.Output, allPatches(100, 100, 50));
}

TEST(WhiteBalance, AllGrayPatchesSaturatedGiveNanAnd255Everywhere)
{
    const LoadedBalance loaded(saturated(), saturated(), saturated());
    for (const double gain : loaded.gains()) {
        EXPECT_TRUE(std::isnan(gain));
    }
    expectColors(loaded.step.Output, allPatches(255, 255, 255));
}

TEST(WhiteBalance, ChannelWithoutSignalGetsAnInfiniteFactorAnd255)
{
    const Color yellow = makeColor(100, 100, 0);
    LoadedBalance loaded(yellow, yellow, yellow);
    EXPECT_EQ(loaded.gains()(2), Infinity);
    expectPatch(loaded.step.Output, 0, makeColor(10, 20, 255));
    // 0 times infinity is no number, and that ends at 255 too.
    expectPatch(loaded.step.Output, 19, makeColor(100, 100, 255));
}

TEST(WhiteBalance, BlackGrayPatchGivesNanThoughItIsBelow250)
{
    const Color gray = makeColor(100, 100, 100);
    const LoadedBalance loaded(gray, makeColor(0, 0, 0), gray);
    for (const double gain : loaded.gains()) {
        EXPECT_TRUE(std::isnan(gain));
    }
    expectColors(loaded.step.Output, allPatches(255, 255, 255));
}

TEST(WhiteBalance, ChannelThatIsNotFiniteSpoilsItsPatchAlone)
{
    LoadedBalance loaded(makeColor(100, 50, 100), saturated(), saturated());
    PatchColors colors = allPatches(10, 20, 30);
    setPatch(colors, 7, NaN, 20, 30);
    setPatch(colors, 8, 10, Infinity, 30);
    loaded.step.SetColors(colors);
    loaded.step.Apply();
    expectPatch(loaded.step.Output, 7, makeColor(255, 255, 255));
    expectPatch(loaded.step.Output, 8, makeColor(255, 255, 255));
    expectPatch(loaded.step.Output, 9, makeColor(10, 40, 30));
}

} // namespace ColorCalibration
