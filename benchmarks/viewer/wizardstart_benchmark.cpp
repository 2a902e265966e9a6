// SPDX-License-Identifier: Apache-2.0
// The wizard from its command in the menu to its first live image, and what its starts leave.
#include "emulatedcameras.h"
#include "viewerapplication.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QQmlContext>
#include <QQuickView>
#include <QSignalSpy>
#include <QTimer>

#include <chrono>
#include <fstream>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

using Clock = std::chrono::steady_clock;

constexpr int patience = 20000;

QQuickView* scene()
{
    for (QWindow* window : QGuiApplication::allWindows())
        if (auto* view = qobject_cast<QQuickView*>(window))
            return view;
    return nullptr;
}

/// Closes the wizard when an image of the camera has been drawn, and keeps when that was.
class FirstImage
{
public:
    FirstImage()
    {
        QObject::connect(&m_watch, &QTimer::timeout, [this] { look(); });
        m_watch.start(0);
        // Nobody is there to answer a box, nor to close a wizard that stays blank.
        QObject::connect(&m_limit, &QTimer::timeout, [] { closeWindow(); });
        m_limit.start(patience);
    }

    /// \return  seconds; negative if none was drawn
    double secondsSince(Clock::time_point begin) const
    {
        return m_drawn == Clock::time_point()
                   ? -1.0
                   : std::chrono::duration<double>(m_drawn - begin).count();
    }

private:
    void look()
    {
        QQuickView* view = QApplication::activeModalWidget() ? scene() : nullptr;
        if (!view || !view->rootObject())
            return;
        m_watch.stop();
        const auto* camera =
            view->rootContext()->contextProperty(QStringLiteral("camera")).value<QObject*>();
        m_images = std::make_unique<QSignalSpy>(camera, SIGNAL(imageChanged()));
        // Never within the drawing, which the end of the window would disturb.
        QObject::connect(
            view, &QQuickWindow::frameSwapped, &m_watch, [this] { onSwapped(); },
            Qt::QueuedConnection);
    }
    void onSwapped()
    {
        if (m_images->isEmpty() || m_drawn != Clock::time_point())
            return;
        m_drawn = Clock::now();
        closeWindow();
    }
    static void closeWindow()
    {
        if (QWidget* window = QApplication::activeModalWidget())
            window->close();
    }

    QTimer m_watch;
    QTimer m_limit;
    std::unique_ptr<QSignalSpy> m_images;
    Clock::time_point m_drawn;
};

class CalibratorViewer
{
public:
    CalibratorViewer()
        : m_viewer(arguments(), Viewer::emulatedCameras({}, m_error))
    {
        m_viewer.start();
        m_viewer.window().commands().openAction()->trigger();
        QApplication::processEvents();
    }

    /// \return  seconds; negative if no wizard with an image came
    double startWizard()
    {
        for (QAction* action :
             m_viewer.window().findChild<QMenu*>(QStringLiteral("toolsMenu"))->actions())
            if (action->isVisible() && action->text() == QLatin1String("Color Calibrator")) {
                const FirstImage image;
                const auto before = Clock::now();
                action->trigger();
                return image.secondsSince(before);
            }
        return -1.0;
    }

private:
    static Viewer::ViewerArguments arguments()
    {
        Viewer::ViewerArguments result;
        result.backends = Viewer::Backends::Emulation;
        return result;
    }

    QString m_error;
    Viewer::ViewerApplication m_viewer;
};

double heapMegabytes()
{
#if defined(__GLIBC__)
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
#else
    return 0.0;
#endif
}

double residentMegabytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmRSS:", 0) == 0)
            return std::stod(line.substr(6)) / 1000.0;
    return 0.0;
}

/// Time of a start is real time; the counters tell the first one, the memory after the third, and
/// what 20 further starts add to it.
void wizardToFirstImage(benchmark::State& state)
{
    CalibratorViewer viewer;
    const double first = viewer.startWizard();
    if (first < 0.0)
        return state.SkipWithError("The wizard did not start");
    viewer.startWizard();
    viewer.startWizard();
    const double heap = heapMegabytes();
    const double resident = residentMegabytes();
    for (auto _ : state) {
        const double seconds = viewer.startWizard();
        if (seconds < 0.0) {
            state.SkipWithError("The wizard did not start again");
            break;
        }
        state.SetIterationTime(seconds);
    }
    state.counters["firstStartSeconds"] = first;
    state.counters["heapMB"] = heap;
    state.counters["residentMB"] = resident;
    state.counters["heapGrowthMB"] = heapMegabytes() - heap;
    state.counters["residentGrowthMB"] = residentMegabytes() - resident;
}

BENCHMARK(wizardToFirstImage)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

} // namespace
