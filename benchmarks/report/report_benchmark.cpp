// SPDX-License-Identifier: Apache-2.0
// What showing and saving a calibration costs, file by file, beside writing the images one by one.
#include "calibrationresult.h"
#include "emulatedcalibration.h"
#include "reporthtml.h"
#include "summaryfiles.h"
#include "testsettings.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <random>

namespace {

using namespace ColorCalibration;

/// A chart as a camera of 4096 x 3000 pixels sees it: even patches under the noise of a sensor,
/// which is what makes images hard to compress.
QImage noisyChart(double brightness)
{
    QImage image(4096, 3000, QImage::Format_RGB32);
    std::mt19937 generator(1);
    std::normal_distribution<double> noise(0.0, 3.0);
    const auto channel = [&](int base) {
        return qBound(0, qRound(base * brightness + noise(generator)), 255);
    };
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int patch = y / 750 * 6 + x / 683;
            row[x] = qRgb(channel(patch * 37 % 256), channel(patch * 71 % 256),
                          channel(patch * 113 % 256));
        }
    }
    return image;
}

/// A camera that was calibrated, and images of a large one.
struct Calibrated
{
    Calibrated()
    {
        if (!camera.run())
            qFatal("the emulated camera cannot be calibrated");
        results = camera.model().GetCalibrationResultsJson();
        result.SetOriginalSettings("Gamma\t1");
        result.SetCalibratedSettings("Gamma\t0.45");
    }

    QTemporaryDir folder;
    EmulatedCalibration camera{EmulatedCalibration::FeatureNames::SecondGeneration};
    CalibrationResult result{"Model"};
    QImage before = noisyChart(0.5);
    QImage after = noisyChart(1.0);
    QJsonObject results;
};

Calibrated& calibrated()
{
    static int argumentCount = 0;
    static const QCoreApplication application(argumentCount, nullptr);
    static const TestSettings settings;
    static Calibrated instance;
    return instance;
}

void GetResults(benchmark::State& state)
{
    ColorCorrectionModel& model = calibrated().camera.model();
    for (auto _ : state)
        benchmark::DoNotOptimize(model.GetCalibrationResultsJson());
}
BENCHMARK(GetResults)->Unit(benchmark::kMillisecond);

void WholeSummary(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state) {
        if (!all.result.SaveSummary(all.folder.path(), all.before, all.after, all.results))
            state.SkipWithError("not saved");
    }
}
BENCHMARK(WholeSummary)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The baseline of the whole: both images, one after the other.
void BothImagesInTurn(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state) {
        WritePngFile(all.folder.filePath("after.png"), all.after);
        WritePngFile(all.folder.filePath("before.png"), all.before);
    }
}
BENCHMARK(BothImagesInTurn)->Unit(benchmark::kMillisecond)->UseRealTime();

void CalibratedPng(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        WritePngFile(all.folder.filePath("after.png"), all.after);
}
BENCHMARK(CalibratedPng)->Unit(benchmark::kMillisecond);

void OriginalPng(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        WritePngFile(all.folder.filePath("before.png"), all.before);
}
BENCHMARK(OriginalPng)->Unit(benchmark::kMillisecond);

void Report(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        WriteTextFile(all.folder.filePath("report.html"),
                      BuildHtml("Model", all.results, QDateTime::currentDateTime()));
}
BENCHMARK(Report)->Unit(benchmark::kMillisecond);

void SettingsFile(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        all.result.SaveSettingsFile(all.folder.path());
}
BENCHMARK(SettingsFile)->Unit(benchmark::kMillisecond);

} // namespace
