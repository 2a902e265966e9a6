// SPDX-License-Identifier: Apache-2.0
// The whole engine against a second implementation, on many simulated cameras.
#include "colorcalibrationv1.h"

#include "referencecalibration.h"
#include "simulatedcamera.h"
#include "testcolors.h"

#include <algorithm>
#include <cmath>

namespace ColorCalibration {

namespace {

constexpr unsigned Cameras = 200;
constexpr double Tolerance = 1e-9;

void expectClose(double actual, Reference::Real expected)
{
    const auto value = static_cast<double>(expected);
    ASSERT_NEAR(actual, value, Tolerance * std::abs(value));
}

// A camera, calibrated by the engine and by the second implementation.
struct CalibratedTwice
{
    explicit CalibratedTwice(unsigned seed)
        : measured(simulatedResponse(seed))
        , expected(Reference::calibrate(Reference::fromPatchColors(measured)))
    {
        engine.SetStepColors(0, measured);
        mean = engine.ExecuteAll();
    }

    PatchColors measured;
    Reference::Calibration expected;
    ColorCalibrationV1 engine;
    double mean = -1.0;
};

} // namespace

TEST(EngineReference, SolverFindsAKnownParabola)
{
    // y = 2 - 3 t + t^2 / 2 with errors that are orthogonal to 1, t and t^2: they change nothing.
    const double errors[] = {1, -3, 3, -1};
    std::vector<std::vector<Reference::Real>> rows;
    std::vector<Reference::Real> right;
    for (int t = 0; t < 4; ++t) {
        rows.push_back({1, static_cast<Reference::Real>(t), static_cast<Reference::Real>(t * t)});
        right.push_back(2 - 3 * t + 0.5L * t * t + errors[t]);
    }
    const std::vector<Reference::Real> x = Reference::leastSquares(rows, right);
    EXPECT_NEAR(static_cast<double>(x[0]), 2.0, 1e-15);
    EXPECT_NEAR(static_cast<double>(x[1]), -3.0, 1e-15);
    EXPECT_NEAR(static_cast<double>(x[2]), 0.5, 1e-15);
}

TEST(EngineReference, CalibrationMoreThanHalvesTheDistanceFromTheTargets)
{
    for (unsigned seed = 0; seed < Cameras; ++seed) {
        const CalibratedTwice camera(seed);
        EXPECT_GT(camera.engine.GetMeanDelta(0, false, true), 3.0) << seed;
        EXPECT_LT(camera.mean, 0.5 * camera.engine.GetMeanDelta(2, false, true)) << seed;
    }
}

TEST(EngineReference, SettingsAgree)
{
    for (unsigned seed = 0; seed < Cameras; ++seed) {
        SCOPED_TRACE(seed);
        const CalibratedTwice camera(seed);
        Color gains;
        camera.engine.GetWhiteBalance(gains(0), gains(1), gains(2));
        ColorMatrix matrix;
        camera.engine.GetColorMatrix(matrix);
        ColorAdjustment adjustment;
        camera.engine.GetColorAdjustment(adjustment);
        for (int r = 0; r < 3; ++r) {
            expectClose(gains(r), camera.expected.gains[r]);
            for (int c = 0; c < 3; ++c) {
                expectClose(matrix(r, c), camera.expected.matrix[r][c]);
            }
        }
        for (int i = 0; i < 12; ++i) {
            expectClose(adjustment(i), camera.expected.adjustment[i]);
        }
    }
}

TEST(EngineReference, ColorsOfEveryStepAgree)
{
    for (unsigned seed = 0; seed < Cameras; ++seed) {
        const CalibratedTwice camera(seed);
        for (int step = 0; step < 5; ++step) {
            SCOPED_TRACE(::testing::Message() << "camera " << seed << " step " << step);
            const PatchColors colors = camera.engine.GetStepColors(step);
            for (int patch = 0; patch < PatchCount; ++patch) {
                for (int channel = 0; channel < 3; ++channel) {
                    expectClose(colors(patch, channel),
                                camera.expected.stepColors[step][patch][channel]);
                }
            }
        }
    }
}

TEST(EngineReference, DistancesFromTheTargetsAgree)
{
    for (unsigned seed = 0; seed < Cameras; ++seed) {
        const CalibratedTwice camera(seed);
        expectClose(camera.mean, Reference::meanDistanceFromTargets(camera.expected.stepColors[4]));
        for (int step = 0; step < 5; ++step) {
            SCOPED_TRACE(::testing::Message() << "camera " << seed << " step " << step);
            const Reference::Colors& colors = camera.expected.stepColors[step];
            expectClose(camera.engine.GetMeanDelta(step, false, true),
                        Reference::meanDistanceFromTargets(colors));
            for (int patch = 0; patch < PatchCount; ++patch) {
                expectClose(camera.engine.GetPatchDelta(step, patch, false, true),
                            Reference::distanceFromTarget(colors, patch));
            }
        }
    }
}

} // namespace ColorCalibration
