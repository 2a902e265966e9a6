// SPDX-License-Identifier: Apache-2.0
// A camera on the network or on USB.
#include "genicamcamera.h"

#include "acquisition_p.h"
#include "aside_p.h"
#include "cameraprobe_p.h"
#include "genicamexception.h"
#include "librarylog_p.h"
#include "logging.h"
#include "nodemap_p.h"
#include "parametercollection.h"
#include "patience.h"
#include "textfeature_p.h"

#include <QCoreApplication>
#include <QThread>

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

namespace {

/// What an application's windows can wait for.
constexpr std::chrono::milliseconds longestStep(400);

/// A part of that, for what has to be known before a step.
constexpr std::chrono::milliseconds longestReading(100);

/// Within a delivery: the end of a stream waits for that.
constexpr std::optional noPatience(std::chrono::milliseconds(0));

/// Other threads than that of the windows wait as long as it takes.
std::optional<std::chrono::milliseconds> stepPatience()
{
    if (const auto own = Patience::ofThisThread())
        return own;
    const QCoreApplication* const application = QCoreApplication::instance();
    if (application && application->thread() == QThread::currentThread())
        return longestStep;
    return {};
}

void log(const QString& text, Core::Logging::ELogLevel level = Core::Logging::Warning)
{
    static const auto category = Core::Logging::getCatId(QStringLiteral("Cameras"));
    Core::Logging::createLogEntry(level, category, text);
}

QString noAnswer(const QString& id)
{
    return QCoreApplication::translate("Cameras::GenICam::Device",
                                       "The camera \"%1\" does not answer.")
        .arg(id);
}

/// The text of a feature that names something; empty if it cannot be read.
QString textOf(NodeMap& nodeMap, const char* name)
{
    try {
        const ReadLock lock(nodeMap.d());
        const Feature feature = Feature::find(nodeMap.d(), QString::fromLatin1(name));
        return feature.kind() == FeatureKind::Text ? shownName(featureText(feature)) : QString();
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

// A camera that was lost and has not come back is not as it was.
GenicamCamera::~GenicamCamera()
{
    close();
    const QString mode = m_unfinished ? m_unfinished->owedMode() : QString();
    if (!mode.isEmpty() && !m_isUnfinishedTold)
        log(tr("%1: %2").arg(displayName(), AcquisitionFeatures::notPutBack(mode)));
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

std::shared_ptr<Acquisition> GenicamCamera::acquisition() const
{
    const std::lock_guard lock(m_mutex);
    return m_acquisition;
}

std::shared_ptr<const AcquisitionFeatures> GenicamCamera::unfinished() const
{
    const std::lock_guard lock(m_mutex);
    return m_unfinished;
}

QSharedPointer<GenicamCamera> GenicamCamera::strongSelf()
{
    return sharedFromThis().staticCast<GenicamCamera>();
}

/// One wish to open a camera; the camera's mutex guards all.
struct GenicamCamera::Opening
{
    bool isGivenUp = false; ///< nobody waits for it
    bool isDone = false;
    bool isNew = false; ///< it was closed before
    QString error;      ///< empty: the camera is open
};

bool GenicamCamera::open()
{
    if (isOpen())
        return true;
    if (const auto lost = connection())
        lose(lost->device.get());
    const auto opening = std::make_shared<Opening>();
    waitWhileItAnswers(m_steps.add([self = strongSelf(), opening] { self->carryOut(*opening); }));
    {
        const std::lock_guard lock(m_mutex);
        opening->isGivenUp = !opening->isDone;
    }
    if (opening->isGivenUp)
        opening->error = noAnswer(target().first);
    if (!opening->error.isEmpty())
        setLastError(opening->error);
    if (opening->isNew)
        emit stateChanged();
    return opening->error.isEmpty();
}

// The library waits for each answer for seconds. A step cannot wait for the next one.
void GenicamCamera::waitWhileItAnswers(const StepQueue::StepPtr& step) const
{
    constexpr std::chrono::milliseconds pause(20);
    CameraProbe probe(target().first);
    while (!m_steps.isOwnThread() && !m_steps.wait(step, pause))
        if (!probe.answers())
            return;
}

void GenicamCamera::carryOut(Opening& opening)
{
    std::shared_ptr<Connection> opened;
    QString error;
    {
        const std::lock_guard lock(m_mutex);
        opening.isDone = opening.isGivenUp || (m_connection && !m_connection->device->isLost());
        if (opening.isDone)
            return;
    }
    try {
        opened = connect();
    } catch (const std::exception& refusal) {
        error = QString::fromUtf8(refusal.what());
    }
    std::shared_ptr<Acquisition> past;
    {
        const std::lock_guard lock(m_mutex);
        opening.isDone = !opening.isGivenUp;
        // A loss from now on finds the connection.
        if (opened && opened->device->isLost())
            error = noAnswer(m_identity.id);
        else if (opening.isDone && opened) {
            opening.isNew = true;
            past = std::exchange(m_acquisition, {});
            m_unfinished.reset();
            m_connection = std::exchange(opened, {});
        }
        if (opening.isDone)
            opening.error = error;
    }
    // Whoever was told that it does not open is not to find it open.
    if (opened) {
        opened->device->setLostHandler({});
        opened->nodeMap->disconnect();
        giveBack(std::move(opened));
    }
}

// Whoever notices the loss may hold the device, so that it is dealt with on another thread.
std::shared_ptr<GenicamCamera::Connection> GenicamCamera::connect()
{
    auto result = std::make_shared<Connection>();
    const auto [id, settings] = target();
    const QString name = displayName();
    const QString wholeCamera;
    const LibraryScope scope(name, wholeCamera);
    // A camera that has gone is not to stop the opening of others, of which the library does one at
    // a time.
    if (!CameraProbe(id).answers())
        throw ::GenICam::RuntimeException(noAnswer(id).toStdString());
    result->device = Device::open(id, settings);
    result->nodeMap = NodeMap::create(result->device, result->device->description());
    completeIdentity(*result);
    result->nodeMap->setCameraName(displayName());
    result->parameters = createParameterCollection(result->nodeMap, modelName());
    const QWeakPointer<HostCamera> weak = sharedFromThis();
    result->device->setLostHandler([weak, device = result->device.get()] {
        runAside([weak, device] {
            if (const auto self = weak.toStrongRef().staticCast<GenicamCamera>())
                self->lose(device);
        });
    });
    if (const auto earlier = unfinished()) {
        AcquisitionFeatures features(result->nodeMap, result->parameters);
        features.takeOver(*earlier);
        features.stop();
    }
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

// The camera is told by a step, which does not need this object.
void GenicamCamera::close()
{
    std::shared_ptr<Connection> closed;
    std::shared_ptr<Acquisition> running;
    {
        const std::lock_guard lock(m_mutex);
        closed = std::exchange(m_connection, {});
        if (!closed)
            return;
        running = std::exchange(m_acquisition, {});
    }
    closed->device->setLostHandler({});
    closed->nodeMap->refuseAccesses();
    const bool isDelivering = running && running->isDelivering();
    if (running)
        running->silence();
    const QString name = displayName();
    const QWeakPointer<HostCamera> weak = sharedFromThis();
    const auto step = m_steps.add(
        [closed = std::move(closed), running = std::move(running), name, weak]() mutable {
            closed->nodeMap->disconnect([&running] {
                if (running)
                    running->finish();
            });
            if (running) {
                reportLosses(*running, name);
                if (const auto self = weak.toStrongRef().staticCast<GenicamCamera>())
                    self->keepUnfinished(*running);
            }
            running.reset();
            giveBack(std::move(closed));
        });
    m_steps.wait(step, isDelivering ? noPatience : stepPatience());
    emit stateChanged();
}

// A camera that had gone, which nobody had noticed by then.
void GenicamCamera::keepUnfinished(const Acquisition& ended)
{
    const std::lock_guard lock(m_mutex);
    m_unfinished = ended.features();
    m_isUnfinishedTold = true;
}

// Whoever opens it next is not to be refused because this program still has it: on a bad line the
// camera has to be told several times, and an access that somebody has lost patience with may still
// be under way. Whoever else holds the device may be waiting for us.
void GenicamCamera::giveBack(std::shared_ptr<Connection> closed)
{
    const std::weak_ptr<Device> device = closed->device;
    const auto released = closed->device->released();
    const bool isLost = closed->device->isLost();
    closed.reset();
    if (!isLost && device.expired())
        released.wait();
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
        if (running)
            m_unfinished = running->features();
        m_isUnfinishedTold = false;
    }
    lost->nodeMap->refuseAccesses();
    if (running)
        running->silence();
    emit stateChanged();
    announceConnectionLost();
    if (running)
        reportLosses(*running, displayName());
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
    return isGrabbingNow();
}

bool GenicamCamera::isGrabbingNow() const
{
    return m_connection && !m_connection->device->isLost() && m_acquisition &&
           m_acquisition->isGrabbing();
}

Core::ParameterCollection::ParameterCollectionPtr GenicamCamera::parameterCollection()
{
    const auto opened = connection();
    return opened ? opened->parameters : nullptr;
}

bool GenicamCamera::doStartGrabbing()
{
    return begin({});
}

bool GenicamCamera::doGrabSingle(int timeoutMs)
{
    return begin(std::chrono::milliseconds(timeoutMs));
}

// A camera that does not answer now may have a long exposure; if it has gone, its loss ends the
// wait.
int GenicamCamera::defaultTimeoutMs() const
{
    constexpr double reserveMs = 5000.0;
    constexpr double longestMs = 3600000.0;
    constexpr int unknownMs = 60000;
    const auto opened = connection();
    if (!opened)
        return static_cast<int>(reserveMs);
    auto patience = stepPatience();
    if (patience)
        patience = std::min(*patience, longestReading);
    const Patience limited(patience);
    const std::uint64_t failures = Patience::failures();
    try {
        const double microseconds =
            opened->parameters->floatParameter(QStringLiteral("ExposureTime|ExposureTimeAbs"))
                ->valueOrDefault(0.0);
        if (Patience::failures() == failures)
            return static_cast<int>(std::clamp(microseconds / 1000.0, 0.0, longestMs) + reserveMs);
    } catch (const ::GenICam::RuntimeException&) {
        return unknownMs; // somebody else is using the camera
    }
    return unknownMs;
}

/// One wish for images. What it needs of the camera is the step's.
struct GenicamCamera::Beginning
{
    std::shared_ptr<Connection> connection;
    std::shared_ptr<Acquisition> previous; ///< perhaps null
    std::shared_ptr<Acquisition> begun;

    // Of the step, until that is done.
    bool hasFailed = false;
    bool isMissed = false; ///< it has failed, and images were still wanted
    QString error;
};

// Whoever does not wait until the camera has answered is told that images will come; if they do
// not, that is told later.
bool GenicamCamera::begin(std::optional<std::chrono::milliseconds> timeout)
{
    const auto beginning = std::make_shared<Beginning>();
    const bool isSingle = timeout.has_value();
    {
        const std::lock_guard lock(m_mutex);
        if (isGrabbingNow())
            return !isSingle;
        if (!m_connection)
            return false;
        beginning->connection = m_connection;
        beginning->begun =
            std::make_shared<Acquisition>(m_connection->nodeMap, m_connection->parameters, timeout);
        beginning->previous = std::exchange(m_acquisition, beginning->begun);
    }
    const bool isDelivering = beginning->previous && beginning->previous->isDelivering();
    if (beginning->previous)
        beginning->previous->silence();
    const auto step = m_steps.add([self = strongSelf(), beginning] { self->carryOut(*beginning); });
    const bool isDone = m_steps.wait(step, isDelivering ? noPatience : stepPatience());
    if (isDone && beginning->hasFailed) {
        setLastError(beginning->error);
        return false;
    }
    if (!isSingle)
        emit stateChanged();
    if (!isDone)
        StepQueue::whenDone(step, [self = strongSelf(), beginning, isSingle] {
            if (beginning->isMissed)
                log(tr("%1: %2").arg(self->displayName(), beginning->error));
            if (beginning->hasFailed && !isSingle)
                emit self->stateChanged();
        });
    return true;
}

void GenicamCamera::carryOut(Beginning& beginning)
{
    const auto opened = std::exchange(beginning.connection, {});
    const auto begun = std::exchange(beginning.begun, {});
    if (const auto previous = std::exchange(beginning.previous, {})) {
        previous->finish();
        begun->replace(*previous);
        reportLosses(*previous, displayName());
    }
    const QWeakPointer<HostCamera> weak = sharedFromThis();
    try {
        begun->begin(opened->device, [weak](const Ostria::CGrabResultPtr& result) {
            if (const auto receiver = weak.toStrongRef().staticCast<GenicamCamera>())
                receiver->deliver(result);
        });
    } catch (const std::exception& error) {
        beginning.isMissed = begun->silence();
        begun->finish();
        beginning.error = QString::fromUtf8(error.what());
        beginning.hasFailed = true;
    }
}

// Who looks at the picture does not see what is missing.
void GenicamCamera::reportLosses(Acquisition& ended, const QString& name)
{
    const StreamStatistics statistics = ended.statistics();
    const std::uint64_t missed = statistics.damaged + statistics.endedEarly + statistics.overrun;
    const std::uint64_t all = missed + statistics.delivered;
    if (missed == 0 || !ended.mayReport())
        return;
    if (statistics.damaged > 0)
        log(tr("%1: %2 of %3 images were damaged on their way and left out (%4 packets are "
               "missing). Set a larger packet size or a packet delay.")
                .arg(name)
                .arg(statistics.damaged)
                .arg(all)
                .arg(statistics.missingPackets));
    if (statistics.endedEarly > 0)
        log(tr("%1: %2 of %3 images were shorter than the camera says and were left out. Nothing "
               "was lost on the way. Restart the camera, or choose another image size or pixel "
               "format.")
                .arg(name)
                .arg(statistics.endedEarly)
                .arg(all));
    // Whoever wants the newest image alone misses nothing.
    if (statistics.overrun > 0)
        log(tr("%1: %2 of %3 images came faster than this computer takes them and were left out. "
               "Set a lower frame rate or a smaller image.")
                .arg(name)
                .arg(statistics.overrun)
                .arg(all),
            Core::Logging::Information);
}

// The acquisition stays for its statistics.
void GenicamCamera::stopGrabbing()
{
    auto running = acquisition();
    if (!running)
        return;
    const bool wasGrabbing = isGrabbing();
    running->silence();
    const auto step = m_steps.add([running = std::move(running), name = displayName()] {
        running->finish();
        reportLosses(*running, name);
    });
    m_steps.wait(step, stepPatience());
    if (wasGrabbing)
        emit stateChanged();
}

StreamStatistics GenicamCamera::statistics() const
{
    const auto last = acquisition();
    return last ? last->statistics() : StreamStatistics();
}

} // namespace Cameras::GenICam
