// SPDX-License-Identifier: Apache-2.0
// What showing and saving a calibration costs, file by file, beside writing the images one by one.
#include "calibrationresult.h"
#include "emulatedcalibration.h"
#include "reporthtml.h"
#include "summaryfiles.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace {

using namespace ColorCalibration;

/// An emulated camera of 4096 x 3000 pixels that was calibrated, with the images of it.
struct Calibrated
{
    Calibrated()
    {
        if (!camera.run())
            qFatal("the emulated camera cannot be calibrated");
        camera.model().GetInitialCameraImage(before);
        camera.model().GrabImage(after, false);
        results = camera.model().GetCalibrationResultsJson();
    }

    QTemporaryDir folder;
    EmulatedCalibration camera{EmulatedCalibration::FeatureNames::SecondGeneration, 4096, 3000};
    QImage before;
    QImage after;
    QJsonObject results;
};

Calibrated& calibrated()
{
    static int argumentCount = 0;
    static const QCoreApplication application(argumentCount, nullptr);
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
        if (!all.camera.model().SaveSummaryToFile(all.folder.path()))
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
        all.camera.model().SaveSettingsToFile(all.folder.path());
}
BENCHMARK(SettingsFile)->Unit(benchmark::kMillisecond);

} // namespace
