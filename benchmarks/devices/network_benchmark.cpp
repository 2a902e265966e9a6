// SPDX-License-Identifier: Apache-2.0
// A GigE Vision camera over the loopback interface, beside the same camera in process.
#include "emulatedcamera.h"
#include "genicamcamera.h"
#include "gigeserver.h"
#include "registerstore.h"
#include "servedemulation.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <optional>
#include <thread>

using namespace Cameras;
using Emulation::EmulatedCamera;
using Emulation::IServedDevice;

namespace {

constexpr int width = 1920;
constexpr int height = 1200;
constexpr std::chrono::microseconds period(1000000 / 55);

QSharedPointer<EmulatedCamera> makeCamera(const QTemporaryDir& folder, bool hasTransport)
{
    Emulation::EmulationOptions options;
    options.settingsFolder = folder.path();
    options.hasTransport = hasTransport;
    return EmulatedCamera::create(Emulation::everydayModels().at(1), options);
}

/// Sends one and the same image 55 times a second, as rendering takes longer.
class Prerendered final : public IServedDevice
{
public:
    explicit Prerendered(const QSharedPointer<EmulatedCamera>& camera)
        : m_camera(camera)
        , m_device(Emulation::serveEmulation(camera))
        , m_image(std::make_shared<Ostria::CGrabResult>(
              Ostria::COstriaImage(Ostria::PixelType::BayerRG8, width, height), 0))
    {
        const auto& store = *camera->registers();
        m_start =
            store.layout().address(store.table()->indexOf(QStringLiteral("AcquisitionStart")));
        m_stop = store.layout().address(store.table()->indexOf(QStringLiteral("AcquisitionStop")));
    }
    ~Prerendered() override { stopAcquisition(); }
    Prerendered(const Prerendered&) = delete;
    Prerendered& operator=(const Prerendered&) = delete;

    Emulation::ServedIdentity identity() const override { return m_device->identity(); }
    std::string description() const override { return m_device->description(); }
    void setReceiver(Receiver receiver) override { m_receiver = std::move(receiver); }
    void stopAcquisition() override
    {
        m_isSending = false;
        if (m_thread.joinable())
            m_thread.join();
    }
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        m_device->read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        if (address == m_start)
            send();
        else if (address == m_stop)
            stopAcquisition();
        else
            m_device->write(address, data, size);
    }

private:
    void send()
    {
        stopAcquisition();
        m_isSending = true;
        m_thread = std::thread([this] {
            auto next = std::chrono::steady_clock::now();
            while (m_isSending) {
                m_receiver(m_image);
                std::this_thread::sleep_until(next += period);
            }
        });
    }

    const QSharedPointer<EmulatedCamera> m_camera;
    const std::shared_ptr<IServedDevice> m_device;
    const Ostria::CGrabResultPtr m_image;
    std::uint64_t m_start;
    std::uint64_t m_stop;
    Receiver m_receiver;
    std::atomic<bool> m_isSending = false;
    std::thread m_thread;
};

/// Counts images and waits for them.
class Counter
{
public:
    explicit Counter(const HostCameraPtr& camera)
        : m_connection(
              QObject::connect(camera.data(), &HostCamera::cameraImageGrabbed,
                               [this](const auto& /*camera*/, const Ostria::CGrabResultPtr& frame) {
                                   const std::lock_guard lock(m_mutex);
                                   if (m_count == 0)
                                       m_firstNumber = frame->frameNumber();
                                   m_lastNumber = frame->frameNumber();
                                   ++m_count;
                                   m_changed.notify_all();
                               }))
    {}
    ~Counter() { QObject::disconnect(m_connection); }
    Counter(const Counter&) = delete;
    Counter& operator=(const Counter&) = delete;

    bool waitForNext()
    {
        std::unique_lock lock(m_mutex);
        const std::size_t wanted = m_seen + 1;
        const bool came =
            m_changed.wait_for(lock, std::chrono::seconds(10), [&] { return m_count >= wanted; });
        m_seen = wanted;
        return came;
    }

    /// Frames that the camera took and that did not come.
    double lost()
    {
        const std::lock_guard lock(m_mutex);
        return m_count == 0 ? 0.0
                            : static_cast<double>(m_lastNumber - m_firstNumber + 1) -
                                  static_cast<double>(m_count);
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::uint64_t m_firstNumber = 0;
    std::uint64_t m_lastNumber = 0;
    std::size_t m_count = 0;
    std::size_t m_seen = 0;
    QMetaObject::Connection m_connection;
};

HostCameraPtr networkCamera()
{
    GenICam::TransportSettings settings;
    settings.packetSize = 9000;
    return GenICam::GenicamCamera::create(GenICam::cameraAt(QStringLiteral("127.0.0.1")), settings);
}

void framesOverLoopback(benchmark::State& state)
{
    const QTemporaryDir folder;
    const auto served = makeCamera(folder, true);
    served->open();
    const Emulation::GigeServer server(std::make_shared<Prerendered>(served), "127.0.0.1");
    const HostCameraPtr camera = networkCamera();
    Counter counter(camera);
    if (!camera->open() || !camera->startGrabbing()) {
        state.SkipWithError(camera->lastErrorText().toUtf8().constData());
        return;
    }
    for (auto _ : state)
        if (!counter.waitForNext())
            state.SkipWithError("no image came");
    const auto statistics = camera.staticCast<GenICam::GenicamCamera>()->statistics();
    state.counters["lost"] = counter.lost();
    state.counters["damaged"] = static_cast<double>(statistics.damaged);
    state.counters["overrun"] = static_cast<double>(statistics.overrun);
    state.counters["fps"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(framesOverLoopback)->Unit(benchmark::kMillisecond)->UseRealTime();

/// From opening to the first image, closing included.
void openToFirstFrame(benchmark::State& state, bool isOnNetwork)
{
    const QTemporaryDir folder;
    const auto emulated = makeCamera(folder, isOnNetwork);
    std::unique_ptr<Emulation::GigeServer> server;
    HostCameraPtr camera = emulated;
    if (isOnNetwork) {
        emulated->open();
        server = std::make_unique<Emulation::GigeServer>(Emulation::serveEmulation(emulated),
                                                         "127.0.0.1");
        camera = networkCamera();
    }
    for (auto _ : state) {
        Counter counter(camera);
        if (!camera->open() || !camera->grabSingle() || !counter.waitForNext())
            state.SkipWithError(camera->lastErrorText().toUtf8().constData());
        camera->close();
    }
}
BENCHMARK_CAPTURE(openToFirstFrame, inProcess, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(openToFirstFrame, overLoopback, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

/// Memory in use that a cycle leaves behind, on average.
void openAndClose(benchmark::State& state)
{
    const QTemporaryDir folder;
    const auto emulated = makeCamera(folder, true);
    emulated->open();
    const Emulation::GigeServer server(Emulation::serveEmulation(emulated), "127.0.0.1");
    const HostCameraPtr camera = networkCamera();
    const auto cycle = [&camera] {
        Counter counter(camera);
        const bool isDone = camera->open() && camera->grabSingle() && counter.waitForNext();
        camera->close();
        return isDone;
    };
    constexpr int cyclesBefore = 5;
    for (int i = 0; i < cyclesBefore; ++i)
        cycle();
    const auto before = static_cast<double>(mallinfo2().uordblks);
    for (auto _ : state)
        if (!cycle())
            state.SkipWithError(camera->lastErrorText().toUtf8().constData());
    state.counters["bytesKept"] = (static_cast<double>(mallinfo2().uordblks) - before) /
                                  static_cast<double>(state.iterations());
}
BENCHMARK(openAndClose)->Unit(benchmark::kMillisecond)->Iterations(100)->UseRealTime();

/// Waits until a camera is told to be lost.
class Loss
{
public:
    explicit Loss(const HostCameraPtr& camera)
        : m_connection(QObject::connect(camera.data(), &HostCamera::cameraConnectionLost,
                                        [this] { m_told.set_value(Clock::now()); }))
    {}
    ~Loss() { QObject::disconnect(m_connection); }
    Loss(const Loss&) = delete;
    Loss& operator=(const Loss&) = delete;

    using Clock = std::chrono::steady_clock;

    /// When it was told; nothing if it is not.
    std::optional<Clock::time_point> wait()
    {
        constexpr std::chrono::seconds longest(60);
        auto told = m_told.get_future();
        if (told.wait_for(longest) != std::future_status::ready)
            return {};
        return told.get();
    }

private:
    std::promise<Clock::time_point> m_told;
    const QMetaObject::Connection m_connection;
};

/// From the death of a camera to the word that it is lost. It dies right after it was opened, or
/// has sent its first image: the next question whether it is alive is a whole pause away then.
void lossNoticed(benchmark::State& state, bool isGrabbing)
{
    constexpr double allowedSeconds = 6.0;
    const QTemporaryDir folder;
    const auto emulated = makeCamera(folder, true);
    emulated->open();
    const HostCameraPtr camera = networkCamera();
    double worst = 0.0;
    for (auto _ : state) {
        auto server = std::make_unique<Emulation::GigeServer>(Emulation::serveEmulation(emulated),
                                                              "127.0.0.1");
        Counter counter(camera);
        Loss loss(camera);
        if (!camera->open() ||
            (isGrabbing && !(camera->startGrabbing() && counter.waitForNext()))) {
            state.SkipWithError(camera->lastErrorText().toUtf8().constData());
            return;
        }
        const auto death = Loss::Clock::now();
        server.reset();
        const auto told = loss.wait();
        if (!told)
            return state.SkipWithError("the loss was not noticed");
        const double seconds = std::chrono::duration<double>(*told - death).count();
        state.SetIterationTime(seconds);
        worst = std::max(worst, seconds);
    }
    state.counters["worst"] = worst;
    if (worst > allowedSeconds)
        state.SkipWithError("the loss was noticed too late");
}
BENCHMARK_CAPTURE(lossNoticed, open, false)->Unit(benchmark::kSecond)->UseManualTime();
BENCHMARK_CAPTURE(lossNoticed, grabbing, true)->Unit(benchmark::kSecond)->UseManualTime();

} // namespace
