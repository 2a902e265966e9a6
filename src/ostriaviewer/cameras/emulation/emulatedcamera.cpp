// SPDX-License-Identifier: Apache-2.0
// A camera that exists only in the program.
#include "emulatedcamera.h"

#include "autofunctions.h"
#include "description.h"
#include "framesettings.h"
#include "modelfeatures.h"
#include "nodemap.h"
#include "parametercollection.h"
#include "registerstore.h"
#include "renderer.h"
#include "usersetcontrol.h"

#include <QStandardPaths>

#include <algorithm>
#include <optional>
#include <utility>

namespace Cameras::Emulation {
namespace {

std::shared_ptr<const FeatureTable> tableOf(const CameraModel& model,
                                            const EmulationOptions& options)
{
    auto table = std::make_shared<FeatureTable>(modelFeatures(model));
    if (options.hasTransport)
        addTransportFeatures(*table);
    table->remove(options.missingFeatures);
    return table;
}

QString settingsFile(const CameraModel& model, const EmulationOptions& options)
{
    const QString folder = options.settingsFolder.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                                     QStringLiteral("/cameras")
                               : options.settingsFolder;
    return folder + QLatin1Char('/') + model.serialNumber + QStringLiteral(".json");
}

Ostria::CGrabResultPtr failure(const std::string& reason, std::uint64_t number)
{
    return std::make_shared<Ostria::CGrabResult>(reason, number);
}

} // namespace

// What an open camera consists of. The renderer is used by the loop's thread alone.
struct EmulatedCamera::Device
{
    std::shared_ptr<GenICam::NodeMap> nodeMap;
    Core::ParameterCollection::ParameterCollectionPtr parameters;
    Renderer renderer;
};

QSharedPointer<EmulatedCamera> EmulatedCamera::create(const CameraModel& model,
                                                      const EmulationOptions& options)
{
    return QSharedPointer<EmulatedCamera>(new EmulatedCamera(model, options));
}

EmulatedCamera::EmulatedCamera(const CameraModel& model, const EmulationOptions& options)
    : m_model(model)
    , m_options(options)
    , m_store(std::make_shared<RegisterStore>(tableOf(model, options)))
    , m_scene(options.scene)
{}

EmulatedCamera::~EmulatedCamera()
{
    shutDown();
}

QString EmulatedCamera::displayName() const
{
    return QStringLiteral("%1 (%2)").arg(m_model.name, m_model.serialNumber);
}

QString EmulatedCamera::groupName() const
{
    return tr("Emulated cameras");
}

std::shared_ptr<EmulatedCamera::Device> EmulatedCamera::device() const
{
    const std::lock_guard lock(m_mutex);
    return m_device;
}

FrameLoop* EmulatedCamera::loop() const
{
    const std::lock_guard lock(m_mutex);
    return m_loop.get();
}

bool EmulatedCamera::open()
{
    if (isOpen())
        return true;
    const bool isOpened = openDevice();
    if (isOpened)
        emit stateChanged();
    return isOpened;
}

bool EmulatedCamera::openDevice()
{
    const std::lock_guard lock(m_mutex);
    if (m_device)
        return true;
    if (m_faults.isTakenByAnother()) {
        setLastError(tr("The camera is being used by another application."));
        return false;
    }
    if (!m_isConnected) {
        setLastError(tr("The camera does not answer."));
        return false;
    }
    try {
        m_device = makeDevice();
        makeLoop();
    } catch (const std::exception& error) {
        m_device.reset();
        setLastError(QString::fromUtf8(error.what()));
    }
    return m_device != nullptr;
}

std::string EmulatedCamera::description() const
{
    return describe(m_model.name, *m_store->table(), m_store->layout());
}

std::shared_ptr<EmulatedCamera::Device> EmulatedCamera::makeDevice()
{
    startUserSets(*m_store, UserSets(m_store->table(), settingsFile(m_model, m_options)));
    const auto nodeMap = GenICam::NodeMap::create(m_store, description());
    nodeMap->setCameraName(displayName());
    m_isSceneNew = false;
    return std::make_shared<Device>(
        Device{nodeMap, GenICam::createParameterCollection(nodeMap, m_model.name),
               Renderer(m_model.sensor, m_scene)});
}

// The thread does not hold the camera while it waits, so that a camera that nobody holds ends.
void EmulatedCamera::makeLoop()
{
    if (m_loop)
        return;
    const QWeakPointer<HostCamera> weak = sharedFromThis();
    const auto camera = [weak] {
        return weak.toStrongRef().staticCast<EmulatedCamera>();
    };
    m_loop = std::make_unique<FrameLoop>(
        [camera](std::uint64_t number) {
            const auto self = camera();
            return self ? self->takeFrame(number) : FrameLoop::Frame();
        },
        [camera](const Ostria::CGrabResultPtr& result) {
            if (const auto self = camera())
                self->deliverFrame(result);
        });
}

// Takes the device away before it is ended, as its end waits for whoever uses its features now.
void EmulatedCamera::shutDown()
{
    std::shared_ptr<Device> device;
    {
        const std::lock_guard lock(m_mutex);
        device = std::exchange(m_device, {});
        // With the lock, so that what a later opening starts is not stopped.
        if (m_loop)
            m_loop->cancel();
    }
    if (const FrameLoop* running = loop())
        running->wait();
    if (device)
        device->nodeMap->disconnect();
    updateAcquisitionLock();
    if (device)
        emit stateChanged();
}

void EmulatedCamera::close()
{
    shutDown();
}

bool EmulatedCamera::isOpen() const
{
    return device() != nullptr;
}

bool EmulatedCamera::isGrabbing() const
{
    const std::lock_guard lock(m_mutex);
    return m_device && m_loop->isContinuous();
}

bool EmulatedCamera::doStartGrabbing()
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_device)
            return false;
        m_loop->startContinuous();
    }
    updateAcquisitionLock();
    emit stateChanged();
    return true;
}

bool EmulatedCamera::doGrabSingle(int timeoutMs)
{
    const std::lock_guard lock(m_mutex);
    return m_device && m_loop->requestSingle(std::chrono::milliseconds(timeoutMs));
}

int EmulatedCamera::defaultTimeoutMs() const
{
    constexpr std::chrono::milliseconds reserve(5000);
    const auto exposure =
        std::chrono::duration_cast<std::chrono::milliseconds>(exposureTime(m_store->values()));
    return static_cast<int>((exposure + reserve).count());
}

void EmulatedCamera::stopGrabbing()
{
    const bool wasGrabbing = isGrabbing();
    if (FrameLoop* running = loop())
        running->stop();
    updateAcquisitionLock();
    if (wasGrabbing)
        emit stateChanged();
}

// Reads the state under the mutex, so that of two threads that start and stop at once the later
// one finds what holds.
void EmulatedCamera::updateAcquisitionLock()
{
    std::shared_ptr<Device> device;
    {
        const std::lock_guard lock(m_mutex);
        const bool isAcquiring = m_device && m_loop->isContinuous();
        m_store->set(QStringLiteral("TLParamsLocked"), isAcquiring ? 1.0 : 0.0);
        device = m_device;
    }
    if (device)
        device->nodeMap->refresh();
}

Core::ParameterCollection::ParameterCollectionPtr EmulatedCamera::parameterCollection()
{
    const auto opened = device();
    return opened ? opened->parameters : nullptr;
}

void EmulatedCamera::setScene(const Scene& scene)
{
    const std::lock_guard lock(m_mutex);
    m_scene = scene;
    m_isSceneNew = true;
}

Scene EmulatedCamera::scene() const
{
    const std::lock_guard lock(m_mutex);
    return m_scene;
}

void EmulatedCamera::refuseWrites(const QString& feature, int afterWrites)
{
    m_store->refuseWrites(feature, afterWrites);
}

void EmulatedCamera::loseConnection()
{
    bool wasOpen = false;
    {
        const std::lock_guard lock(m_mutex);
        m_isConnected = false;
        wasOpen = m_device != nullptr;
    }
    m_store->setReachable(false);
    shutDown();
    if (wasOpen)
        announceConnectionLost();
}

void EmulatedCamera::reconnect()
{
    const std::lock_guard lock(m_mutex);
    m_isConnected = true;
    m_store->setReachable(true);
}

FrameLoop::Frame EmulatedCamera::takeFrame(std::uint64_t number)
{
    const auto opened = device();
    if (!opened)
        return {};
    const Faults::Fate fate = m_faults.nextFrame();
    const FeatureValues values = m_store->values();
    FrameLoop::Frame frame;
    frame.exposure = exposureTime(values) + fate.delay;
    frame.period = std::max(framePeriod(values, m_model.readoutTime), frame.exposure);
    if (fate.lost)
        return frame;
    frame.result = fate.failed ? failure(tr("The frame is incomplete.").toStdString(), number)
                               : render(*opened, values, number);
    // The camera may have been closed meanwhile, and be open again for somebody else.
    if (frame.result->GrabSucceeded() && isAnyAutoFunctionOn(values) && device() == opened) {
        runAutoFunctions(measureLevels(frame.result->image()), *m_store);
        opened->nodeMap->refresh();
    }
    return frame;
}

Ostria::CGrabResultPtr EmulatedCamera::render(Device& device, const FeatureValues& values,
                                              std::uint64_t number)
{
    try {
        std::optional<Scene> newScene;
        {
            const std::lock_guard lock(m_mutex);
            if (std::exchange(m_isSceneNew, false))
                newScene = m_scene;
        }
        if (newScene)
            device.renderer.setScene(*newScene);
        Ostria::COstriaImage image = device.renderer.render(pipelineSettings(values), number);
        if (isProcessedRaw(values))
            image = toMosaic(image, wantedPixelType(values));
        return std::make_shared<Ostria::CGrabResult>(std::move(image), number);
    } catch (const std::exception& error) {
        return failure(error.what(), number);
    }
}

void EmulatedCamera::deliverFrame(const Ostria::CGrabResultPtr& result)
{
    deliver(result);
    if (m_faults.countDelivered())
        loseConnection();
}

} // namespace Cameras::Emulation
