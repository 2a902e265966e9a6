// SPDX-License-Identifier: Apache-2.0
// Look-up table and gamma against their formulas.
#include "tonecurve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace Cameras::Emulation {
namespace {

/// Output as a share of full scale.
double toned(const PipelineSettings& settings, double input)
{
    Word word = static_cast<Word>(input * wordFullScale + 0.5);
    ToneCurve(settings).apply(&word, 1);
    return static_cast<double>(word) / wordFullScale;
}

PipelineSettings withGamma(double gamma)
{
    PipelineSettings settings;
    settings.gammaCurve = GammaCurve::User;
    settings.gamma = gamma;
    return settings;
}

PipelineSettings withLut(int (*entry)(int))
{
    PipelineSettings settings;
    settings.lutEnabled = true;
    for (int i = 0; i <= fullScale; ++i)
        settings.lut.push_back(static_cast<std::uint16_t>(entry(i)));
    return settings;
}

constexpr double tolerance = 0.6 / wordFullScale;

TEST(ToneCurve, IsNeutralByDefaultAndAtGammaOne)
{
    EXPECT_TRUE(ToneCurve().isNeutral());
    EXPECT_TRUE(ToneCurve(PipelineSettings()).isNeutral());
    EXPECT_TRUE(ToneCurve(withGamma(1.0)).isNeutral());
    EXPECT_FALSE(ToneCurve(withGamma(0.9)).isNeutral());
    PipelineSettings off = withGamma(0.45);
    off.gammaCurve = GammaCurve::Off;
    EXPECT_TRUE(ToneCurve(off).isNeutral());
    off = withLut([](int i) { return i; });
    off.lutEnabled = false;
    EXPECT_TRUE(ToneCurve(off).isNeutral());
}

TEST(ToneCurve, RaisesToTheGamma)
{
    EXPECT_NEAR(toned(withGamma(0.45), 0.25), 0.535887, 1e-5); // 4^-0.45
    EXPECT_NEAR(toned(withGamma(0.45), 0.5), 0.732043, 1e-5);  // 2^-0.45
    EXPECT_NEAR(toned(withGamma(2.0), 0.5), 0.25, 1e-5);
    EXPECT_EQ(toned(withGamma(0.45), 0.0), 0.0);
    EXPECT_EQ(toned(withGamma(0.45), 1.0), 1.0);
}

// IEC 61966-2-1: 0.5 becomes 0.735357, 0.18 becomes 0.461356, 0.002 lies on the straight part.
TEST(ToneCurve, FollowsSrgb)
{
    PipelineSettings settings;
    settings.gammaCurve = GammaCurve::Srgb;
    EXPECT_NEAR(toned(settings, 0.5), 0.735357, 2e-5);
    EXPECT_NEAR(toned(settings, 0.18), 0.461356, 2e-5);
    EXPECT_NEAR(toned(settings, 131.0 / wordFullScale), 131.0 * 12.92 / wordFullScale, tolerance);
    EXPECT_EQ(toned(settings, 0.0), 0.0);
    EXPECT_NEAR(toned(settings, 1.0), 1.0, tolerance);
    settings.gamma = 0.1; // belongs to the other curve
    EXPECT_NEAR(toned(settings, 0.5), 0.735357, 2e-5);
}

TEST(ToneCurve, InvertsByItsLookUpTable)
{
    const PipelineSettings settings = withLut([](int i) { return 4095 - i; });
    std::vector<Word> words = {
        0, 16 * 4095, 16 * 1000, 16 * 1000 + 7, 16 * 1000 + 8, 16 * 4095 - 8};
    ToneCurve(settings).apply(words.data(), static_cast<int>(words.size()));
    EXPECT_EQ(words, (std::vector<Word>{16 * 4095, 0, 16 * 3095, 16 * 3095, 16 * 3094, 0}));
}

TEST(ToneCurve, LooksUpBeforeItRaises)
{
    PipelineSettings settings = withLut([](int i) { return i / 2; });
    settings.gammaCurve = GammaCurve::User;
    settings.gamma = 0.5;
    EXPECT_NEAR(toned(settings, 1.0), std::sqrt(2047.0 / 4095.0), tolerance);
}

TEST(ToneCurve, KnowsItsSettings)
{
    const PipelineSettings inverting = withLut([](int i) { return 4095 - i; });
    const ToneCurve curve(inverting);
    EXPECT_TRUE(curve.isFor(inverting));
    EXPECT_FALSE(curve.isFor(PipelineSettings()));
    EXPECT_FALSE(curve.isFor(withLut([](int i) { return i; })));
    PipelineSettings changed = inverting;
    changed.gamma = 0.5;
    EXPECT_FALSE(curve.isFor(changed));
    changed = inverting;
    changed.gammaCurve = GammaCurve::Srgb;
    EXPECT_FALSE(curve.isFor(changed));
    changed = inverting;
    changed.lutEnabled = false;
    EXPECT_FALSE(curve.isFor(changed));
    EXPECT_TRUE(ToneCurve(PipelineSettings()).isFor(PipelineSettings()));
}

} // namespace
} // namespace Cameras::Emulation
