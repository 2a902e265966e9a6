// SPDX-License-Identifier: Apache-2.0
// How fast the wizard answers: the grid under the mouse, the way to another page, and the
// calibration between two of them. The baseline is a picture of the same page in which nothing has
// changed, or the exposures that a step cannot do without.
#include "shownwizard.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace {

using Work = std::function<void()>;

constexpr double exposure = 20000.0;
constexpr double exposureMs = exposure / 1000.0;

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return values.empty() ? 0.0 : *middle;
}

double emptyPicture(ShownWizard& wizard)
{
    std::vector<double> times;
    for (int i = 0; i < 30; ++i)
        times.push_back(wizard.untilShown([] {}));
    return medianOf(times);
}

/// Moves a corner of the grid to and fro by a pixel each way, as a mouse does, while the live image
/// goes on at its interval of 200 ms.
void dragHandle(benchmark::State& state)
{
    ShownWizard wizard(exposure);
    if (!wizard.isReady()) {
        state.SkipWithError("the wizard did not start");
        return;
    }
    const double empty = emptyPicture(wizard);
    const auto* handle = wizard.item("upperLeft");
    const QPoint start = handle->mapToScene({handle->width() / 2, handle->height() / 2}).toPoint();
    QPoint place = start;
    wizard.sendMouse(QEvent::MouseButtonPress, place);
    std::vector<double> times;
    int pictures = 0;
    const auto count =
        QObject::connect(wizard.view(), &QQuickWindow::afterAnimating, [&pictures] { ++pictures; });
    int direction = 1;
    for (auto _ : state) {
        place += QPoint(direction, direction);
        if (std::abs(place.x() - start.x()) > 15)
            direction = -direction;
        const double time = wizard.untilShown([&] { wizard.sendMouse(QEvent::MouseMove, place); });
        if (!wizard.isReady()) {
            state.SkipWithError("a picture did not come");
            return;
        }
        state.SetIterationTime(time / 1000.0);
        times.push_back(time);
    }
    QObject::disconnect(count);
    wizard.sendMouse(QEvent::MouseButtonRelease, place);
    std::sort(times.begin(), times.end());
    state.counters["median, ms"] = medianOf(times);
    // Besides one a move: those of the live image, and of a scene that asks twice.
    state.counters["pictures a move"] =
        static_cast<double>(pictures) / static_cast<double>(times.size());
    state.counters["9 of 10 within, ms"] = times[times.size() * 9 / 10];
    state.counters["empty picture, ms"] = empty;
    state.counters["ratio"] = medianOf(times) / empty;
}

/// There and back again, each way in two parts: what the camera goes through before, and from then
/// on until the page is on the screen. The slowest of all rounds counts, the first one included.
void changePages(benchmark::State& state)
{
    ShownWizard wizard(exposure);
    if (!wizard.isReady()) {
        state.SkipWithError("the wizard did not start");
        return;
    }
    const double empty = emptyPicture(wizard);
    double slowest = 0.0;
    const auto keepWorst = [&](const std::string& name, double time) {
        double& worst = state.counters[name].value;
        worst = std::max(worst, time);
    };
    const auto change = [&](const std::string& name, const Work& camera, const char* circle) {
        QElapsedTimer timer;
        timer.start();
        if (camera)
            camera();
        keepWorst(name + " camera, ms", static_cast<double>(timer.nsecsElapsed()) / 1e6);
        const double time = wizard.untilShown([&] { wizard.showPage(circle); });
        keepWorst(name + " page, ms", time);
        slowest = std::max(slowest, time);
        wizard.awaitImage();
        return time;
    };
    const auto inScene = [&](const char* function) {
        return [&wizard, function] {
            wizard.call("progress", function);
        };
    };
    const auto restore = [&wizard] {
        wizard.model().RestoreSettingsBackup(false);
    };
    for (auto _ : state) {
        double sum = change("1 to 2", inScene("leaveGrid"), "next");
        sum += change("2 to 3", inScene("initStep3"), "next");
        sum += change("3 to 4", nullptr, "next");
        sum += change("4 to 3", nullptr, "prev");
        sum += change("3 to 2", inScene("initStep2"), "prev");
        sum += change("2 to 1", restore, "prev");
        if (!wizard.isReady()) {
            state.SkipWithError("a picture did not come");
            return;
        }
        state.SetIterationTime(sum / 1000.0);
    }
    state.counters["slowest page, ms"] = slowest;
    state.counters["empty picture, ms"] = empty;
}

/// The calibration on the way to the third step.
void initStep3(benchmark::State& state)
{
    ShownWizard wizard(exposure);
    if (!wizard.isReady()) {
        state.SkipWithError("the wizard did not start");
        return;
    }
    wizard.click("nextButton");
    double exposures = 0.0;
    double milliseconds = 0.0;
    for (auto _ : state) {
        const auto taken = wizard.model().TakenImages();
        QElapsedTimer timer;
        timer.start();
        if (!wizard.call("progress", "initStep3").toBool())
            state.SkipWithError("the calibration failed");
        const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        state.SetIterationTime(time / 1000.0);
        milliseconds += time;
        exposures += static_cast<double>(wizard.model().TakenImages() - taken) * exposureMs;
        wizard.call("progress", "initStep2");
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["exposures, ms"] = exposures / runs;
    state.counters["besides exposures, ms"] = (milliseconds - exposures) / runs;
    state.counters["ratio"] = milliseconds / exposures;
}

BENCHMARK(dragHandle)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK(changePages)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(initStep3)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
