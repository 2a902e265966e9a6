// SPDX-License-Identifier: Apache-2.0
// One run of the engine with all that is to be shown of it.
#include "computation.h"

#include "colorcalibrationv1.h"
#include "command.h"
#include "stepkey.h"

#include <cmath>
#include <stdexcept>

using namespace ColorCalibration;

namespace ColorCalibrate {
namespace {

constexpr std::array<const char*, 5> stepNames{"Original", "DigitalGain", "WhiteBalance",
                                               "Matrix3x3", "Bc6x2"};

/// A camera cannot take an infinite gain, and what follows from one is of no use.
void requireFinite(const std::array<double, 3>& whiteBalance)
{
    constexpr std::array<const char*, 3> channels{"red", "green", "blue"};
    for (std::size_t i = 0; i < channels.size(); ++i)
        if (!std::isfinite(whiteBalance[i]))
            throw CommandError(
                QStringLiteral("no white balance can be computed: the %1 gain is %2, because the "
                               "gray patches 20 to 22 are saturated or black")
                    .arg(QLatin1String(channels[i]), std::isnan(whiteBalance[i])
                                                         ? QStringLiteral("not a number")
                                                         : QStringLiteral("infinite")));
}

/// The patch at which the last step stopped, from 1; 0 if none is gray.
int firstGrayPatch(const PatchColors& colors)
{
    constexpr int coloredPatches = 18;
    for (int i = 0; i < coloredPatches; ++i)
        if (colors(i, 0) == colors(i, 1) && colors(i, 1) == colors(i, 2))
            return i + 1;
    return 0;
}

void executeAll(ColorCalibrationV1& engine)
{
    try {
        engine.ExecuteAll();
    } catch (const std::runtime_error& error) {
        throw CommandError(QStringLiteral("%1 (patch %2 has no color of its own after the color "
                                          "matrix; is the grid on the chart, and the image neither "
                                          "over- nor underexposed?)")
                               .arg(QString::fromUtf8(error.what()))
                               .arg(firstGrayPatch(engine.GetStepColors(StepKey::Matrix3x3))));
    }
}

} // namespace

Computation compute(const PatchColors& measured)
{
    ColorCalibrationV1 engine;
    engine.SetStepColors(StepKey::Original, measured);
    Computation computation{};
    auto& [red, green, blue] = computation.settings.whiteBalance;
    engine.ExecuteStep(StepKey::WhiteBalance, StepKey::Original);
    engine.GetWhiteBalance(red, green, blue);
    requireFinite(computation.settings.whiteBalance);

    executeAll(engine);
    engine.GetWhiteBalance(red, green, blue);
    engine.GetColorMatrix(computation.settings.colorMatrix);
    engine.GetColorAdjustment(computation.settings.colorAdjustment);
    engine.GetGamma(computation.settings.gamma);
    for (std::size_t i = 0; i < stepNames.size(); ++i) {
        const int step = static_cast<int>(i);
        computation.steps[i] = {stepNames[i], engine.GetStepColors(step),
                                engine.GetMeanDelta(step, false, true)};
    }
    computation.meanDeltaE = computation.steps.back().meanDeltaE;
    computation.targets = engine.GetTargetColors();
    computation.before = deltasToTargets(computation.steps.front().colors);
    computation.after = deltasToTargets(computation.steps.back().colors);
    return computation;
}

} // namespace ColorCalibrate
