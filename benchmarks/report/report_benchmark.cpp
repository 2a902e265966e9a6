// SPDX-License-Identifier: Apache-2.0
// What showing and saving a calibration costs, file by file, beside writing the images one by one.
#include "calibrationresult.h"
#include "emulatedcalibration.h"
#include "pngencoder.h"
#include "reporthtml.h"
#include "summaryfiles.h"
#include "testsettings.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <random>

namespace {

using namespace ColorCalibration;
using Saving::encodePng;

/// The worst case: noise of a sensor that grows with nothing, in three channels that have nothing
/// to do with each other, of which compression finds no end.
QImage noise()
{
    QImage image(4096, 3000, QImage::Format_RGB32);
    std::mt19937 generator(1);
    std::normal_distribution<double> deviate(0.0, 3.0);
    const auto channel = [&](int base) {
        return qBound(0, qRound(base + deviate(generator)), 255);
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

/// A camera of 4096 x 3000 pixels that was calibrated, and its images before and after.
struct Calibrated
{
    Calibrated()
    {
        ColorCorrectionModel& model = camera.model();
        if (!camera.run() || !model.GetInitialCameraImage(before) || !model.GrabImage(after, true))
            qFatal("the emulated camera cannot be calibrated");
        results = model.GetCalibrationResultsJson();
        result.SetOriginalSettings("Gamma\t1");
        result.SetCalibratedSettings("Gamma\t0.45");
    }

    QTemporaryDir folder;
    EmulatedCalibration camera{EmulatedCalibration::FeatureNames::SecondGeneration, 4096, 3000};
    CalibrationResult result{"Model"};
    QImage before;
    QImage after;
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
        WritePngFile(all.folder.filePath("after.png"), encodePng(all.after));
        WritePngFile(all.folder.filePath("before.png"), encodePng(all.before));
    }
}
BENCHMARK(BothImagesInTurn)->Unit(benchmark::kMillisecond)->UseRealTime();

void CalibratedPng(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        WritePngFile(all.folder.filePath("after.png"), encodePng(all.after));
}
BENCHMARK(CalibratedPng)->Unit(benchmark::kMillisecond);

/// The baseline of one image: what Qt writes.
void CalibratedPngByQt(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        all.after.save(all.folder.filePath("after.png"), "PNG", -1);
}
BENCHMARK(CalibratedPngByQt)->Unit(benchmark::kMillisecond);

void OriginalPng(benchmark::State& state)
{
    Calibrated& all = calibrated();
    for (auto _ : state)
        WritePngFile(all.folder.filePath("before.png"), encodePng(all.before));
}
BENCHMARK(OriginalPng)->Unit(benchmark::kMillisecond);

void NoisePng(benchmark::State& state)
{
    const QImage image = noise();
    for (auto _ : state)
        WritePngFile(calibrated().folder.filePath("noise.png"), encodePng(image));
}
BENCHMARK(NoisePng)->Unit(benchmark::kMillisecond);

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
