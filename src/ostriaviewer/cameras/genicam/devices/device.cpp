// SPDX-License-Identifier: Apache-2.0
// A GigE Vision or USB3 Vision camera under control.
#include "device.h"

#include "accessqueue_p.h"
#include "aside_p.h"
#include "devicewatch_p.h"
#include "genicamexception.h"
#include "gerrorslot_p.h"
#include "gvcpquestion_p.h"
#include "librarydevice_p.h"
#include "librarylog_p.h"
#include "libraryparsing_p.h"
#include "patience.h"
#include "withoutfullstop.h"

#include <arv.h>

// After Aravis, as GLib names a member "signals", which Qt takes for its own.
#include "logging.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace Cameras::GenICam {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::Device)
};

[[noreturn]] void fail(const QString& text)
{
    throw ::GenICam::RuntimeException(text.toStdString());
}

/// The address from which a way leads to the camera; null if none does. Sends nothing.
GInetAddress* ownAddressTowards(GInetAddress* camera)
{
    GErrorSlot error;
    GSocket* socket = g_socket_new(g_inet_address_get_family(camera), G_SOCKET_TYPE_DATAGRAM,
                                   G_SOCKET_PROTOCOL_UDP, error);
    if (!socket)
        return nullptr;
    GSocketAddress* target = g_inet_socket_address_new(camera, gvcpPort);
    GInetAddress* own = nullptr;
    GErrorSlot wayError;
    if (g_socket_connect(socket, target, nullptr, wayError)) {
        GErrorSlot nameError;
        if (GSocketAddress* local = g_socket_get_local_address(socket, nameError)) {
            own = g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(local));
            g_object_ref(own);
            g_object_unref(local);
        }
    }
    g_object_unref(target);
    g_object_unref(socket);
    return own;
}

/// As arv_open_device would, but without a broadcast where nobody answers.
ArvDevice* openNetworkDevice(GInetAddress* camera, GErrorSlot& error)
{
    GInetAddress* own = ownAddressTowards(camera);
    if (!own)
        return nullptr;
    ArvDevice* device = arv_gv_device_new(own, camera, error);
    g_object_unref(own);
    return device;
}

/// The library parses the camera's description as it opens it.
ArvDevice* openDevice(const QString& id, GErrorSlot& error)
{
    const std::lock_guard lock(libraryParsing());
    const QByteArray name = id.toUtf8();
    GInetAddress* camera = g_inet_address_new_from_string(name.constData());
    if (!camera) {
        arv_disable_interface("GigEVision");
        return arv_open_device(name.constData(), error);
    }
    ArvDevice* device = openNetworkDevice(camera, error);
    g_object_unref(camera);
    return device;
}

/// Images still come where the camera wants another size, but not as they were asked for.
void tellPacketSize(ArvGvDevice* device, const QString& id, int wanted)
{
    GErrorSlot error;
    const auto kept = static_cast<int>(arv_gv_device_get_packet_size(device, error));
    if (error.isSet() || kept == wanted)
        return;
    Core::Logging::createLogEntry(
        Core::Logging::Warning, Core::Logging::getCatId(QStringLiteral("Cameras")),
        Texts::tr("%1: the camera does not take packets of %2 bytes, as the settings want them; it "
                  "uses packets of %3 bytes.")
            .arg(id, QString::number(wanted), QString::number(kept)));
}

void applySettings(ArvDevice* device, const QString& id, const TransportSettings& settings)
{
    if (!ARV_IS_GV_DEVICE(device))
        return;
    auto* network = ARV_GV_DEVICE(device);
    if (settings.packetSize > 0) {
        arv_gv_device_set_packet_size_adjustment(network, ARV_GV_PACKET_SIZE_ADJUSTMENT_NEVER);
        GErrorSlot error;
        arv_gv_device_set_packet_size(network, settings.packetSize, error);
        tellPacketSize(network, id, settings.packetSize);
    } else {
        arv_gv_device_set_packet_size_adjustment(network,
                                                 ARV_GV_PACKET_SIZE_ADJUSTMENT_ON_FAILURE_ONCE);
    }
}

} // namespace

std::shared_ptr<Device> Device::open(const QString& id, const TransportSettings& settings)
{
    logLibraryComplaints();
    const QString wholeDescription;
    const LibraryScope scope(id, wholeDescription);
    GErrorSlot error;
    ArvDevice* device = openDevice(id, error);
    if (!device && error.isAboutDescription())
        fail(Texts::tr("The description of the camera \"%1\" cannot be used (%2).")
                 .arg(id, error.reason()));
    if (!device && error.isSet())
        fail(Texts::tr("The camera \"%1\" does not answer (%2).").arg(id, error.reason()));
    if (!device)
        fail(Texts::tr("The camera \"%1\" does not answer.").arg(id));
    if (ARV_IS_GV_DEVICE(device) && !arv_gv_device_is_controller(ARV_GV_DEVICE(device))) {
        g_object_unref(device);
        fail(Texts::tr("The camera is being used by another application."));
    }
    applySettings(device, id, settings);
    std::shared_ptr<Device> result(new Device(device, id));
    result->watch();
    return result;
}

Device::Device(ArvDevice* device, QString id)
    : m_device(device)
    , m_id(std::move(id))
    , m_accesses(std::make_shared<AccessQueue>())
    , m_released(std::make_shared<std::promise<void>>())
    , m_whenReleased(m_released->get_future())
{}

// Who notices the loss does so on threads of their own, which may be about to when we go.
void Device::watch()
{
    const auto lost = [weak = weak_from_this()] {
        if (const auto self = weak.lock())
            self->becomeLost();
    };
    m_libraryDevice = std::make_shared<LibraryDevice>(m_device, lost);
    m_watch = std::make_shared<DeviceWatch>(m_device, lost);
}

Device::~Device()
{
    constexpr std::chrono::milliseconds longestWait(500);
    if (m_watch)
        m_watch->end();
    m_accesses->abandon();
    runAside([device = std::move(m_libraryDevice), id = m_id, watch = m_watch,
              accesses = m_accesses, released = m_released]() mutable {
        const QString noFeature;
        const LibraryScope scope(id, noFeature, LibraryTask::Transfer);
        if (watch)
            watch->wait();
        accesses->finish();
        device.reset();
        released->set_value();
    });
    if (!isLost())
        m_whenReleased.wait_for(longestWait);
}

void Device::becomeLost(const QString& reason)
{
    const std::lock_guard lock(m_lostMutex);
    if (!m_isLost)
        m_lossReason = reason;
    m_isLost = true;
    m_accesses->abandon();
    if (const std::function<void()> handler = std::exchange(m_lostHandler, {}))
        handler();
}

QString Device::lossReason() const
{
    const std::lock_guard lock(m_lostMutex);
    return m_lossReason.isEmpty() ? Texts::tr("the connection to the camera is lost")
                                  : m_lossReason;
}

// A camera that has not heard from its controller in time, as on a bad line, obeys nobody until it
// is taken anew; the library would notice that a second later.
QString Device::denial(ArvDevice* device)
{
    constexpr guint64 controlPrivilege = 0x0a00;
    constexpr guint32 controlBits = 0x3;
    GErrorSlot error;
    guint32 privilege = 0;
    if (ARV_IS_GV_DEVICE(device) &&
        arv_device_read_register(device, controlPrivilege, &privilege, error) == FALSE)
        return Texts::tr("the camera refuses it, and does not answer when asked why");
    if (!ARV_IS_GV_DEVICE(device) || (privilege & controlBits) != 0)
        return Texts::tr("the camera refuses it");
    const QString reason =
        Texts::tr("the camera has not heard from this program for too long and does not obey it "
                  "any more; open the camera again");
    becomeLost(reason);
    return reason;
}

void Device::setLostHandler(std::function<void()> handler)
{
    const std::lock_guard lock(m_lostMutex);
    m_lostHandler = std::move(handler);
}

bool Device::isLost() const
{
    const std::lock_guard lock(m_lostMutex);
    return m_isLost;
}

namespace {

/// What an access brings, which may come when nobody waits for it any more.
struct Answer
{
    bool hasSucceeded = false;
    QString reason;
};

struct StreamHolder
{
    StreamHolder() = default;
    StreamHolder(const StreamHolder&) = delete;
    StreamHolder& operator=(const StreamHolder&) = delete;
    ~StreamHolder()
    {
        if (stream)
            g_object_unref(stream);
    }

    ArvStream* stream = nullptr;
};

using Bytes = std::vector<std::uint8_t>;

} // namespace

void Device::access(Access access, Repetition repetition)
{
    const auto answer = std::make_shared<Answer>();
    const LibraryScope* const place = LibraryScope::current();
    const QString camera = place ? place->camera() : m_id;
    const auto outcome = m_accesses->run(
        [weak = weak_from_this(), device = m_device, access = std::move(access), repetition, answer,
         camera] {
            const QString noFeature;
            const LibraryScope scope(camera, noFeature, LibraryTask::Transfer);
            int attempts = repetition == Repetition::Harmless ? 3 : 1;
            for (bool isTimeOver = true; isTimeOver && attempts > 0 && !weak.expired();
                 --attempts) {
                GErrorSlot error;
                answer->hasSucceeded = access(device, error);
                isTimeOver = error.isTimeout();
                // Whoever closes the camera meanwhile need not wait for this.
                const auto self = weak.lock();
                if (!self || self->m_accesses->isAbandoned())
                    return;
                answer->reason = error.isAccessDenied() ? self->denial(device) : error.reason();
                // The library has asked several times before it says that time is over.
                if (isTimeOver && attempts == 1) {
                    self->becomeLost();
                    answer->reason = self->lossReason();
                }
            }
        },
        Patience::ofThisThread());
    if (outcome == AccessQueue::Outcome::Abandoned)
        fail(lossReason());
    if (outcome == AccessQueue::Outcome::Late)
        fail(Texts::tr("the camera does not answer at present"));
    // The reason is not given where the loss was noticed meanwhile.
    if (!answer->hasSucceeded)
        fail(answer->reason.isEmpty() ? lossReason() : answer->reason);
}

std::string Device::description()
{
    const auto xml = std::make_shared<std::string>();
    access([xml](ArvDevice* device, GErrorSlot&) {
        std::size_t size = 0;
        if (const char* text = arv_device_get_genicam_xml(device, &size))
            xml->assign(text, size);
        return true;
    });
    if (xml->empty())
        fail(Texts::tr("The camera gives no description of its features."));
    return *xml;
}

ArvStream* Device::createStream()
{
    const auto holder = std::make_shared<StreamHolder>();
    try {
        access([holder](ArvDevice* device, GErrorSlot& error) {
            holder->stream = arv_device_create_stream(device, nullptr, nullptr, error);
            return holder->stream != nullptr;
        });
    } catch (const std::exception& error) {
        fail(Texts::tr("The camera's images cannot be received: %1.")
                 .arg(Core::withoutFullStop(QString::fromUtf8(error.what()))));
    }
    ArvStream* stream = std::exchange(holder->stream, nullptr);
    if (ARV_IS_GV_STREAM(stream))
        g_object_set(stream, "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_AUTO,
                     "socket-buffer-size", 0, nullptr);
    return stream;
}

// On a bad line the answer to another question may get through; a camera that has gone is noticed
// meanwhile.
void Device::read(std::uint64_t address, void* data, std::size_t size)
{
    const auto bytes = std::make_shared<Bytes>(size);
    access(
        [address, bytes](ArvDevice* device, GErrorSlot& error) {
            return arv_device_read_memory(device, address, static_cast<guint32>(bytes->size()),
                                          bytes->data(), error) != FALSE;
        },
        Repetition::Harmless);
    std::copy(bytes->begin(), bytes->end(), static_cast<std::uint8_t*>(data));
}

void Device::write(std::uint64_t address, const void* data, std::size_t size)
{
    const auto* first = static_cast<const std::uint8_t*>(data);
    const auto bytes = std::make_shared<Bytes>(first, first + size);
    access([address, bytes](ArvDevice* device, GErrorSlot& error) {
        return arv_device_write_memory(device, address, static_cast<guint32>(bytes->size()),
                                       bytes->data(), error) != FALSE;
    });
}

} // namespace Cameras::GenICam
