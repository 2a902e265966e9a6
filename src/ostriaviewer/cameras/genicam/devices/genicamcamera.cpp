// SPDX-License-Identifier: Apache-2.0
// A camera on the network or on USB.
#include "genicamcamera.h"

#include "acquisitionfeatures.h"
#include "aside_p.h"
#include "genicamexception.h"
#include "logging.h"
#include "nodemap_p.h"
#include "parametercollection.h"
#include "textfeature_p.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <exception>
#include <utility>

namespace Cameras::GenICam {

struct GenicamCamera::Connection
{
    std::shared_ptr<Device> device;
    std::shared_ptr<NodeMap> nodeMap;
    Core::ParameterCollection::ParameterCollectionPtr parameters;
};

struct GenicamCamera::Acquisition
{
    std::shared_ptr<AcquisitionFeatures> features;
    std::unique_ptr<FrameStream> stream;
    bool isContinuous = false;
    std::atomic<bool> isReported = false; ///< what was lost is in the log
};

namespace {

/// The text of a feature; empty if it cannot be read.
QString textOf(NodeMap& nodeMap, const char* name)
{
    try {
        const ReadLock lock(nodeMap.d().mutex());
        const Feature feature = Feature::find(nodeMap.d(), QString::fromLatin1(name));
        return feature.kind() == FeatureKind::Text ? featureText(feature) : QString();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

QSharedPointer<GenicamCamera> GenicamCamera::create(const CameraIdentity& identity,
                                                    const TransportSettings& settings)
{
    return QSharedPointer<GenicamCamera>(new GenicamCamera(identity, settings));
}

GenicamCamera::GenicamCamera(const CameraIdentity& identity, const TransportSettings& settings)
    : m_settings(settings)
    , m_identity(identity)
{}

GenicamCamera::~GenicamCamera()
{
    close();
}

QString GenicamCamera::displayName() const
{
    const std::lock_guard lock(m_mutex);
    return m_identity.displayName();
}

QString GenicamCamera::modelName() const
{
    const std::lock_guard lock(m_mutex);
    return m_identity.modelName;
}

QString GenicamCamera::groupName() const
{
    const std::lock_guard lock(m_mutex);
    return m_identity.isOnNetwork ? tr("Network cameras") : tr("USB cameras");
}

std::shared_ptr<GenicamCamera::Connection> GenicamCamera::connection() const
{
    const std::lock_guard lock(m_mutex);
    return m_connection;
}

std::shared_ptr<GenicamCamera::Acquisition> GenicamCamera::acquisition() const
{
    const std::lock_guard lock(m_mutex);
    return m_acquisition;
}

// The one before ends without the mutex, as it waits for its thread.
std::shared_ptr<GenicamCamera::Acquisition>
GenicamCamera::exchangeAcquisition(std::shared_ptr<Acquisition> next)
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_acquisition, std::move(next));
}

bool GenicamCamera::open()
{
    if (isOpen())
        return true;
    if (const auto lost = connection())
        lose(lost->device.get());
    if (!openDevice())
        return false;
    emit stateChanged();
    return true;
}

bool GenicamCamera::openDevice()
{
    const std::lock_guard step(m_stepMutex);
    if (isOpen())
        return true;
    try {
        auto opened = connect();
        exchangeAcquisition({});
        const std::lock_guard lock(m_mutex);
        m_connection = std::move(opened);
        return true;
    } catch (const std::exception& error) {
        setLastError(QString::fromUtf8(error.what()));
        return false;
    }
}

// Whoever notices the loss may hold the device, so that it is dealt with on another thread.
std::shared_ptr<GenicamCamera::Connection> GenicamCamera::connect()
{
    auto result = std::make_shared<Connection>();
    const auto [id, settings] = target();
    result->device = Device::open(id, settings);
    result->nodeMap = NodeMap::create(result->device, result->device->description());
    completeIdentity(*result);
    result->parameters = createParameterCollection(result->nodeMap, modelName());
    const QWeakPointer<HostCamera> weak = sharedFromThis();
    result->device->setLostHandler([weak, device = result->device.get()] {
        runAside([weak, device] {
            if (const auto self = weak.toStrongRef().staticCast<GenicamCamera>())
                self->lose(device);
        });
    });
    return result;
}

std::pair<QString, TransportSettings> GenicamCamera::target() const
{
    const std::lock_guard lock(m_mutex);
    return {m_identity.id, m_settings};
}

void GenicamCamera::setTransportSettings(const TransportSettings& settings)
{
    const std::lock_guard lock(m_mutex);
    m_settings = settings;
}

CameraIdentity GenicamCamera::identity() const
{
    const std::lock_guard lock(m_mutex);
    return m_identity;
}

void GenicamCamera::setIdentity(const CameraIdentity& identity)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_connection || m_identity == identity)
            return;
        m_identity = identity;
    }
    emit stateChanged();
}

void GenicamCamera::completeIdentity(Connection& connection)
{
    const QString model = textOf(*connection.nodeMap, "DeviceModelName");
    QString serial = textOf(*connection.nodeMap, "DeviceSerialNumber");
    if (serial.isEmpty())
        serial = textOf(*connection.nodeMap, "DeviceID");
    const std::lock_guard lock(m_mutex);
    if (!m_identity.modelName.isEmpty())
        return;
    m_identity.modelName = model;
    m_identity.serialNumber = serial;
}

void GenicamCamera::close()
{
    if (closeDevice())
        emit stateChanged();
}

bool GenicamCamera::closeDevice()
{
    const std::lock_guard step(m_stepMutex);
    std::shared_ptr<Connection> closed;
    {
        const std::lock_guard lock(m_mutex);
        closed = std::exchange(m_connection, {});
    }
    if (!closed)
        return false;
    closed->device->setLostHandler({});
    end();
    closed->nodeMap->disconnect();
    exchangeAcquisition({});
    return true;
}

void GenicamCamera::lose(const Device* device)
{
    std::shared_ptr<Connection> lost;
    std::shared_ptr<Acquisition> running;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_connection || m_connection->device.get() != device)
            return;
        lost = std::exchange(m_connection, {});
        running = std::exchange(m_acquisition, {});
    }
    if (running)
        running->stream->stop();
    emit stateChanged();
    announceConnectionLost();
    lost->nodeMap->disconnect();
}

// The word of a loss may still be on its way to us.
bool GenicamCamera::isOpen() const
{
    const auto opened = connection();
    return opened && !opened->device->isLost();
}

bool GenicamCamera::isGrabbing() const
{
    const std::lock_guard lock(m_mutex);
    return m_connection && !m_connection->device->isLost() && m_acquisition &&
           m_acquisition->isContinuous && !m_acquisition->stream->isFinished();
}

Core::ParameterCollection::ParameterCollectionPtr GenicamCamera::parameterCollection()
{
    const auto opened = connection();
    return opened ? opened->parameters : nullptr;
}

bool GenicamCamera::doStartGrabbing()
{
    {
        const std::lock_guard step(m_stepMutex);
        if (isGrabbing())
            return true;
        if (!begin(false, {}))
            return false;
    }
    emit stateChanged();
    return true;
}

bool GenicamCamera::doGrabSingle(int timeoutMs)
{
    const std::lock_guard step(m_stepMutex);
    return !isGrabbing() && begin(true, std::chrono::milliseconds(timeoutMs));
}

int GenicamCamera::defaultTimeoutMs() const
{
    constexpr double reserveMs = 5000.0;
    constexpr double longestMs = 3600000.0;
    const auto opened = connection();
    if (!opened)
        return static_cast<int>(reserveMs);
    const double exposureMs =
        opened->parameters->floatParameter(QStringLiteral("ExposureTime|ExposureTimeAbs"))
            ->valueOrDefault(0.0) /
        1000.0;
    return static_cast<int>(std::clamp(exposureMs, 0.0, longestMs) + reserveMs);
}

// The stream is ready before the camera sends.
bool GenicamCamera::begin(bool single, std::chrono::milliseconds timeout)
{
    end();
    exchangeAcquisition({});
    const auto opened = connection();
    if (!opened)
        return false;
    const auto features =
        std::make_shared<AcquisitionFeatures>(opened->nodeMap, opened->parameters);
    const QWeakPointer<HostCamera> weak = sharedFromThis();
    const auto receive = [weak](const Ostria::CGrabResultPtr& result) {
        if (const auto self = weak.toStrongRef().staticCast<GenicamCamera>())
            self->deliver(result);
    };
    std::optional<FrameStream::Single> onlyOne;
    if (single)
        onlyOne = FrameStream::Single{timeout, [features] { features->startAgain(); },
                                      [features] {
                                          features->stop();
                                      }};
    try {
        features->prepare(single);
        auto begun = std::make_shared<Acquisition>();
        begun->features = features;
        begun->isContinuous = !single;
        begun->stream = std::make_unique<FrameStream>(opened->device, features->payloadSize(),
                                                      receive, std::move(onlyOne));
        features->start();
        if (!keep(std::move(begun), *opened))
            throw ::GenICam::RuntimeException(
                QCoreApplication::translate("Cameras::GenICam::Device",
                                            "the connection to the camera is lost")
                    .toStdString());
        return true;
    } catch (const std::exception& error) {
        features->stop();
        setLastError(QString::fromUtf8(error.what()));
        return false;
    }
}

// The camera may have been lost meanwhile, and what was begun is nothing to its next connection.
bool GenicamCamera::keep(std::shared_ptr<Acquisition> begun, const Connection& opened)
{
    const std::lock_guard lock(m_mutex);
    if (m_connection.get() != &opened)
        return false;
    m_acquisition.swap(begun);
    return true;
}

// Who looks at the picture does not see what is missing.
void GenicamCamera::reportLosses(Acquisition& ended) const
{
    static const auto category = Core::Logging::getCatId(QStringLiteral("Cameras"));
    const StreamStatistics statistics = ended.stream->statistics();
    const std::uint64_t lost = statistics.damaged + statistics.overrun;
    if (lost == 0 || ended.isReported.exchange(true))
        return;
    Core::Logging::createLogEntry(
        Core::Logging::Warning, category,
        tr("%1: %2 of %3 images were damaged on their way and left out (%4 packets are missing). "
           "Set a larger packet size or a packet delay.")
            .arg(displayName())
            .arg(lost)
            .arg(lost + statistics.delivered)
            .arg(statistics.missingPackets));
}

// The acquisition stays for its statistics.
void GenicamCamera::end()
{
    const auto running = acquisition();
    if (!running)
        return;
    running->features->stop();
    running->stream->stop();
    reportLosses(*running);
}

void GenicamCamera::stopGrabbing()
{
    bool wasGrabbing = false;
    {
        const std::lock_guard step(m_stepMutex);
        wasGrabbing = isGrabbing();
        end();
    }
    if (wasGrabbing)
        emit stateChanged();
}

StreamStatistics GenicamCamera::statistics() const
{
    const auto last = acquisition();
    return last ? last->stream->statistics() : StreamStatistics();
}

} // namespace Cameras::GenICam
