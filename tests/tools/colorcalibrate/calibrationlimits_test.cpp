// SPDX-License-Identifier: Apache-2.0
// What limits a calibration: noise, rounding, non-linearity, the lens, each switched off by itself.
#include "computation.h"
#include "emulatedhost.h"
#include "patchcolorconversion.h"
#include "patchcolors.h"
#include "patchdeltas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iomanip>
#include <iostream>
#include <utility>

using namespace ColorCalibrate;
using ColorCalibration::PatchColors;
using ColorCalibration::PatchCount;

namespace {

/// What the camera shows afterwards, and what the engine has foretold for what it measured.
struct Outcome
{
    Deltas shown;
    Deltas foretold;
};

/// The white patch far below saturation, the gray one near its goal.
constexpr double exposure = 20000.0;

PatchColors measure(ColorCalibration::ColorCorrectionModel& model, bool fromDisplay)
{
    QVector<QColor> colors;
    EXPECT_EQ(model.GetColorPatchValues(colors, true), PatchCount);
    return ColorCalibration::toPatchColors(colors, fromDisplay);
}

/// Cameras of the second generation show their colors by a power law and not by the curve of sRGB
/// that a screen undoes; the engine foretells linear colors.
PatchColors asShown(PatchColors linear, bool isOldGeneration)
{
    if (isOldGeneration)
        return linear;
    QVector<QColor> shown;
    const auto curve = [](double value) {
        return std::pow(std::min(std::max(value / 255.0, 0.0), 1.0), 0.45);
    };
    for (int i = 0; i < PatchCount; ++i)
        shown.append(
            QColor::fromRgbF(curve(linear(i, 0)), curve(linear(i, 1)), curve(linear(i, 2))));
    return ColorCalibration::toPatchColors(shown, true);
}

Outcome calibrate(const Cameras::Emulation::CameraModel& cameraModel)
{
    EmulatedHost host(cameraModel);
    auto& model = host.model();
    EXPECT_TRUE(model.Open(host.pointer()));
    host.setExposure(exposure);
    model.SetGridPosition(host.chartGrid());
    QImage first;
    model.GrabImage(first, false);
    EXPECT_TRUE(model.SetNeutralSettings());
    EXPECT_TRUE(model.ApplyInitialColorPatchValues());
    QVector<QColor> neutral;
    model.GetCurrentColorPatchValues(neutral);
    EXPECT_TRUE(model.ExecuteCalibrationAndApply());
    const Computation computation = compute(ColorCalibration::toPatchColors(neutral, false));
    return {deltasToTargets(measure(model, true)),
            deltasToTargets(asShown(computation.steps.back().colors, host.isOldGeneration()))};
}

/// Without anything that a linear mixing of channels does not explain.
Cameras::Emulation::CameraModel ideal(Cameras::Emulation::CameraModel model)
{
    model.sensor.noiseEnabled = false;
    model.sensor.roundingEnabled = false;
    model.sensor.nonLinearityEnabled = false;
    model.sensor.vignettingEnabled = false;
    model.roundingEnabled = false;
    return model;
}

class CalibrationLimits : public testing::TestWithParam<int>
{
protected:
    Cameras::Emulation::CameraModel m_model = supportedModels().at(GetParam());
};

TEST_P(CalibrationLimits, AnIdealCameraShowsWhatTheEngineForetells)
{
    const Outcome outcome = calibrate(ideal(m_model));
    EXPECT_NEAR(outcome.shown.meanDeltaE(), outcome.foretold.meanDeltaE(), 0.02);
    EXPECT_NEAR(outcome.shown.meanDeltaC(), outcome.foretold.meanDeltaC(), 0.02);
    for (std::size_t i = 0; i < PatchCount; ++i)
        EXPECT_NEAR(outcome.shown.deltaE[i], outcome.foretold.deltaE[i], 0.1) << i + 1;
}

TEST_P(CalibrationLimits, ShowHowMuchEachOfThemCosts)
{
    using Cameras::Emulation::CameraModel;
    const std::pair<const char*, std::function<void(CameraModel&)>> cases[] = {
        {"as it is",
         [](CameraModel&) {
         }},
        {"without noise",
         [](CameraModel& model) {
             model.sensor.noiseEnabled = false;
         }},
        {"without rounding",
         [](CameraModel& model) {
             model.sensor.roundingEnabled = false;
             model.roundingEnabled = false;
         }},
        {"without non-linearity",
         [](CameraModel& model) {
             model.sensor.nonLinearityEnabled = false;
         }},
        {"without vignetting",
         [](CameraModel& model) {
             model.sensor.vignettingEnabled = false;
         }},
        {"without any of them",
         [](CameraModel& model) {
             model = ideal(model);
         }},
    };
    std::cout << m_model.name.toStdString() << "\n| camera | Delta E | Delta C | foretold |\n"
              << "|---|---|---|---|\n";
    for (const auto& [name, change] : cases) {
        CameraModel model = m_model;
        change(model);
        const Outcome outcome = calibrate(model);
        std::cout << "| " << name << " | " << std::fixed << std::setprecision(2)
                  << outcome.shown.meanDeltaE() << " | " << outcome.shown.meanDeltaC() << " | "
                  << outcome.foretold.meanDeltaE() << " |\n";
        EXPECT_LE(outcome.shown.meanDeltaE(), 3.0) << name;
        // Each is a small disturbance of what the mixing of channels leaves.
        EXPECT_NEAR(outcome.shown.meanDeltaE(), outcome.foretold.meanDeltaE(), 0.5) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, CalibrationLimits, testing::Values(0, 1, 2));

} // namespace
