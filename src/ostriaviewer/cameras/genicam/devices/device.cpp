// SPDX-License-Identifier: Apache-2.0
// A GigE Vision or USB3 Vision camera under control.
#include "device.h"

#include "aside_p.h"
#include "devicewatch_p.h"
#include "genicamexception.h"
#include "gerrorslot_p.h"

#include <arv.h>

#include <chrono>
#include <future>
#include <utility>
#include <vector>

namespace Cameras::GenICam {
namespace {

constexpr guint16 controlPort = 3956;

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
    GSocketAddress* target = g_inet_socket_address_new(camera, controlPort);
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

ArvDevice* openDevice(const QString& id, GErrorSlot& error)
{
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

void applySettings(ArvDevice* device, const TransportSettings& settings)
{
    if (!ARV_IS_GV_DEVICE(device))
        return;
    auto* network = ARV_GV_DEVICE(device);
    if (settings.packetSize > 0) {
        arv_gv_device_set_packet_size_adjustment(network, ARV_GV_PACKET_SIZE_ADJUSTMENT_NEVER);
        GErrorSlot error;
        arv_gv_device_set_packet_size(network, settings.packetSize, error);
    } else {
        arv_gv_device_set_packet_size_adjustment(network,
                                                 ARV_GV_PACKET_SIZE_ADJUSTMENT_ON_FAILURE_ONCE);
    }
}

} // namespace

std::shared_ptr<Device> Device::open(const QString& id, const TransportSettings& settings)
{
    GErrorSlot error;
    ArvDevice* device = openDevice(id, error);
    if (!device && error.isAboutDescription())
        fail(QStringLiteral("The description of the camera \"%1\" cannot be used (%2).")
                 .arg(id, error.reason()));
    if (!device)
        fail(QStringLiteral("The camera \"%1\" does not answer%2.")
                 .arg(id, error.isSet() ? QStringLiteral(" (%1)").arg(error.reason()) : QString()));
    if (ARV_IS_GV_DEVICE(device) && !arv_gv_device_is_controller(ARV_GV_DEVICE(device))) {
        g_object_unref(device);
        fail(QStringLiteral("The camera is being used by another application."));
    }
    applySettings(device, settings);
    std::shared_ptr<Device> result(new Device(device));
    result->m_watch = std::make_shared<DeviceWatch>(device, [weak = result->weak_from_this()] {
        if (const auto self = weak.lock())
            self->becomeLost();
    });
    return result;
}

Device::Device(ArvDevice* device)
    : m_device(device)
{
    g_signal_connect(m_device, "control-lost", G_CALLBACK(&Device::onControlLost), this);
}

Device::~Device()
{
    constexpr std::chrono::milliseconds longestWait(500);
    g_signal_handlers_disconnect_by_data(m_device, this);
    const auto released = std::make_shared<std::promise<void>>();
    m_watch->end();
    runAside([device = m_device, watch = m_watch, released] {
        watch->wait();
        g_object_unref(device);
        released->set_value();
    });
    if (!isLost())
        released->get_future().wait_for(longestWait);
}

void Device::onControlLost(ArvDevice* /*device*/, Device* self)
{
    self->becomeLost();
}

void Device::becomeLost()
{
    const std::lock_guard lock(m_lostMutex);
    m_isLost = true;
    if (const std::function<void()> handler = std::exchange(m_lostHandler, {}))
        handler();
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

std::string Device::description() const
{
    const std::lock_guard lock(m_accessMutex);
    std::size_t size = 0;
    const char* xml = arv_device_get_genicam_xml(m_device, &size);
    if (!xml || size == 0)
        fail(QStringLiteral("The camera gives no description of its features."));
    return {xml, size};
}

ArvStream* Device::createStream()
{
    const std::lock_guard lock(m_accessMutex);
    GErrorSlot error;
    ArvStream* stream = arv_device_create_stream(m_device, nullptr, nullptr, error);
    if (!stream)
        fail(QStringLiteral("The camera's images cannot be received: %1.").arg(error.reason()));
    if (ARV_IS_GV_STREAM(stream))
        g_object_set(stream, "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_AUTO,
                     "socket-buffer-size", 0, nullptr);
    return stream;
}

// The library has asked several times before it says that time is over, so nobody is there.
template <class Access>
void Device::access(const Access& access)
{
    const std::lock_guard lock(m_accessMutex);
    if (isLost())
        fail(QStringLiteral("the connection to the camera is lost"));
    GErrorSlot error;
    if (access(error))
        return;
    if (error.isTimeout())
        becomeLost();
    fail(error.reason());
}

void Device::read(std::uint64_t address, void* data, std::size_t size)
{
    access([&](GErrorSlot& error) {
        return arv_device_read_memory(m_device, address, static_cast<guint32>(size), data, error);
    });
}

void Device::write(std::uint64_t address, const void* data, std::size_t size)
{
    // The library takes bytes that it does not write to as writable ones.
    std::vector<std::uint8_t> bytes(static_cast<const std::uint8_t*>(data),
                                    static_cast<const std::uint8_t*>(data) + size);
    access([&](GErrorSlot& error) {
        return arv_device_write_memory(m_device, address, static_cast<guint32>(size), bytes.data(),
                                       error);
    });
}

} // namespace Cameras::GenICam
