// SPDX-License-Identifier: Apache-2.0
// A camera on the network or on USB.
#include "genicamcamera.h"

#include "acquisitionfeatures.h"
#include "aside_p.h"
#include "nodemap_p.h"
#include "parametercollection.h"
#include "textfeature_p.h"

#include <algorithm>
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
    const std::lock_guard step(m_stepMutex);
    if (isOpen())
        return true;
    try {
        auto opened = connect();
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
    result->device = Device::open(m_identity.id, m_settings);
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
    const std::lock_guard step(m_stepMutex);
    std::shared_ptr<Connection> closed;
    {
        const std::lock_guard lock(m_mutex);
        closed = std::exchange(m_connection, {});
    }
    if (!closed)
        return;
    closed->device->setLostHandler({});
    end();
    closed->nodeMap->disconnect();
    exchangeAcquisition({});
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
    announceConnectionLost();
    lost->nodeMap->disconnect();
}

bool GenicamCamera::isOpen() const
{
    return connection() != nullptr;
}

bool GenicamCamera::isGrabbing() const
{
    const std::lock_guard lock(m_mutex);
    return m_connection && m_acquisition && m_acquisition->isContinuous &&
           !m_acquisition->stream->isFinished();
}

Core::ParameterCollection::ParameterCollectionPtr GenicamCamera::parameterCollection()
{
    const auto opened = connection();
    return opened ? opened->parameters : nullptr;
}

bool GenicamCamera::doStartGrabbing()
{
    const std::lock_guard step(m_stepMutex);
    return isGrabbing() || begin(false, {});
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
        exchangeAcquisition(std::move(begun));
        return true;
    } catch (const std::exception& error) {
        features->stop();
        setLastError(QString::fromUtf8(error.what()));
        return false;
    }
}

// The acquisition stays for its statistics.
void GenicamCamera::end()
{
    const auto running = acquisition();
    if (!running)
        return;
    running->features->stop();
    running->stream->stop();
}

void GenicamCamera::stopGrabbing()
{
    const std::lock_guard step(m_stepMutex);
    end();
}

StreamStatistics GenicamCamera::statistics() const
{
    const auto last = acquisition();
    return last ? last->stream->statistics() : StreamStatistics();
}

} // namespace Cameras::GenICam
