// SPDX-License-Identifier: Apache-2.0
// What a calibration costs once the colours are measured, and its pieces.
//
// Baselines, each in the group of its figure: the least that the task needs.
#include "bc6x2.h"
#include "colorcalibrationv1.h"
#include "labfit.h"
#include "matrix3x3.h"
#include "whitebalance.h"

#include <benchmark/benchmark.h>

namespace ColorCalibration {

namespace {

// The targets, seen by a camera that mixes its channels under a reddish light.
PatchColors measured()
{
    ColorMatrix crosstalk;
    crosstalk = 0.82, 0.12, 0.06, 0.08, 0.74, 0.08, 0.03, 0.12, 0.55;
    return ChartTargets().TargetColors() * dlib::trans(crosstalk);
}

PatchColors stepColors(int step)
{
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(0, measured());
    calibration.ExecuteAll();
    return calibration.GetStepColors(step);
}

template <long Columns>
dlib::matrix<double, FitRows, Columns> someDesign()
{
    dlib::matrix<double, FitRows, Columns> design;
    for (long row = 0; row < design.nr(); ++row) {
        for (long column = 0; column < design.nc(); ++column) {
            design(row, column) = static_cast<double>((7 * row + 11 * column) % 54);
        }
    }
    return design;
}

void baselineBothPseudoInverses(benchmark::State& state)
{
    const auto six = someDesign<6>();
    const auto twelve = someDesign<12>();
    for (auto _ : state) {
        benchmark::DoNotOptimize(dlib::matrix<double, 6, FitRows>(dlib::pinv(six)));
        benchmark::DoNotOptimize(dlib::matrix<double, 12, FitRows>(dlib::pinv(twelve)));
    }
}
BENCHMARK(baselineBothPseudoInverses)->Name("ExecuteAll/baseline: its two pseudo-inverses alone");

void executeAll(benchmark::State& state)
{
    ColorCalibrationV1 calibration;
    const PatchColors colors = measured();
    for (auto _ : state) {
        calibration.SetStepColors(0, colors);
        benchmark::DoNotOptimize(calibration.ExecuteAll());
    }
}
BENCHMARK(executeAll)->Name("ExecuteAll");

void baselineCopy(benchmark::State& state)
{
    const PatchColors colors = measured();
    PatchColors copy;
    for (auto _ : state) {
        copy = colors;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(baselineCopy)->Name("Step/baseline: copy of the colours");

template <class Step, int Source>
void calculate(benchmark::State& state)
{
    const ChartTargets chart;
    Step step(chart);
    step.SetColors(Source < 0 ? measured() : stepColors(Source));
    for (auto _ : state) {
        step.Calculate();
        benchmark::DoNotOptimize(step.Output);
    }
}
BENCHMARK_TEMPLATE(calculate, WhiteBalance, -1)->Name("Step/WhiteBalance");
BENCHMARK_TEMPLATE(calculate, Matrix3x3, 2)->Name("Step/Matrix3x3");
BENCHMARK_TEMPLATE(calculate, Bc6x2, 3)->Name("Step/Bc6x2");

void meanDelta(benchmark::State& state)
{
    ColorCalibrationV1 calibration;
    calibration.SetStepColors(0, measured());
    for (auto _ : state) {
        benchmark::DoNotOptimize(calibration.GetMeanDelta(0, false, true));
    }
}
BENCHMARK(meanDelta)->Name("Step/MeanDelta");

void baselineBlockProduct(benchmark::State& state)
{
    const LabSensitivityMatrix sensitivity = ChartTargets().LabSensitivity();
    const auto design = someDesign<12>();
    dlib::matrix<double, FitRows, 12> product;
    for (auto _ : state) {
        for (int first = 0; first < FitRows; first += 3) {
            dlib::set_subm(product, first, 0, 3, 12) =
                dlib::subm(sensitivity, first, first, 3, 3) * dlib::subm(design, first, 0, 3, 12);
        }
        benchmark::DoNotOptimize(product);
    }
}
BENCHMARK(baselineBlockProduct)->Name("Weighting/baseline: block by block");

void denseProduct(benchmark::State& state)
{
    const LabSensitivityMatrix sensitivity = ChartTargets().LabSensitivity();
    const dlib::matrix<double, FitRows, FitRows> weight =
        dlib::subm(sensitivity, 0, 0, FitRows, FitRows);
    const auto design = someDesign<12>();
    dlib::matrix<double, FitRows, 12> product;
    for (auto _ : state) {
        product = weight * design;
        benchmark::DoNotOptimize(product);
    }
}
BENCHMARK(denseProduct)->Name("Weighting/dense product, as the fits do");

struct LabPair
{
    LabPair()
    {
        first = 60.2574, -34.0099, 36.2677;
        second = 60.4626, -34.1751, 39.4387;
    }

    Color first;
    Color second;
};

void baselineLabDistance(benchmark::State& state)
{
    LabPair pair;
    for (auto _ : state) {
        benchmark::DoNotOptimize(pair);
        benchmark::DoNotOptimize(dlib::length(pair.first - pair.second));
    }
}
BENCHMARK(baselineLabDistance)->Name("DeltaE/baseline: distance in Lab (CIE 1976)");

void deltaE(benchmark::State& state)
{
    const ColorMath math;
    LabPair pair;
    for (auto _ : state) {
        benchmark::DoNotOptimize(pair);
        benchmark::DoNotOptimize(math.DeltaE(pair.first, pair.second, false));
    }
}
BENCHMARK(deltaE)->Name("DeltaE/DeltaE");

void rgbToLab(benchmark::State& state)
{
    const ColorMath math;
    const ColorMatrix matrix = math.RgbToXyzMatrix();
    const Color white = math.WhitePoint();
    Color rgb;
    rgb = 100, 150, 50;
    for (auto _ : state) {
        benchmark::DoNotOptimize(rgb);
        benchmark::DoNotOptimize(math.XyzToLab(math.LinearRgbToXyz(rgb, matrix), white));
    }
}
BENCHMARK(rgbToLab)->Name("DeltaE/linear RGB to Lab");

} // namespace

} // namespace ColorCalibration
