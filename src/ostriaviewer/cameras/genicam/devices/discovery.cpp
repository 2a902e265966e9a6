// SPDX-License-Identifier: Apache-2.0
// Looks for cameras.
#include "discovery.h"

#include "cameraaddress.h"
#include "gvcpquestion_p.h"
#include "libraryparsing_p.h"
#include "udpsocket.h"

#include <arv.h>

#include <QHostAddress>
#include <QNetworkInterface>

#include <algorithm>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <vector>

namespace Cameras::GenICam {
namespace {

using Clock = std::chrono::steady_clock;
using Bytes = std::vector<std::uint8_t>;
using Sockets = std::vector<std::unique_ptr<UdpSocket>>;

constexpr std::uint32_t everybody = 0xffffffff;
constexpr std::uint16_t requestId = 0x4f53;

bool isWanted(const QNetworkInterface& interface, const TransportSettings& settings)
{
    const auto flags = interface.flags();
    if (!flags.testFlag(QNetworkInterface::IsUp) || !flags.testFlag(QNetworkInterface::IsRunning))
        return false;
    return settings.interfaces.isEmpty() ? !flags.testFlag(QNetworkInterface::IsLoopBack)
                                         : settings.interfaces.contains(interface.name());
}

void ask(UdpSocket& socket, std::uint32_t address)
{
    socket.send(GvcpQuestion::request(GvcpQuestion::About::Identity, requestId),
                {address, gvcpPort});
}

/// A camera whose address does not belong to the network hears the first broadcast alone.
void askEverybody(UdpSocket& socket, const QNetworkAddressEntry& entry)
{
    ask(socket, everybody);
    const QHostAddress network = entry.broadcast();
    if (!network.isNull())
        ask(socket, network.toIPv4Address());
}

void askEverywhere(const TransportSettings& settings, Sockets& sockets)
{
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        if (!isWanted(interface, settings))
            continue;
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            if (entry.ip().protocol() != QAbstractSocket::IPv4Protocol)
                continue;
            try {
                auto socket =
                    std::make_unique<UdpSocket>(UdpAddress{entry.ip().toIPv4Address(), 0}, false);
                askEverybody(*socket, entry);
                sockets.push_back(std::move(socket));
            } catch (const std::runtime_error&) {
                continue; // the interface has just gone
            }
        }
    }
}

/// Each has a socket of its own, so that an address to which no way leads stops no other.
void askAtAddresses(const TransportSettings& settings, Sockets& sockets)
{
    for (const QString& text : settings.addresses) {
        const auto address = addressNumber(text);
        if (!address)
            continue;
        try {
            auto socket = std::make_unique<UdpSocket>(UdpAddress{0, 0}, false);
            ask(*socket, *address);
            sockets.push_back(std::move(socket));
        } catch (const std::runtime_error&) {
            continue; // no way leads there
        }
    }
}

QString textAt(const Bytes& bytes, std::size_t offset, std::size_t room)
{
    const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
    const auto end = std::find(first, first + static_cast<std::ptrdiff_t>(room), 0);
    return shownName(QString::fromUtf8(QByteArray(
        reinterpret_cast<const char*>(bytes.data() + offset), static_cast<int>(end - first))));
}

/// Adds the camera that an answer tells of, if it is an answer.
void addCamera(QVector<CameraIdentity>& cameras, const Bytes& answer)
{
    constexpr std::size_t header = 8;
    constexpr std::size_t registers = 0xf8;
    const auto number16 = [&answer](std::size_t offset) {
        return answer[offset] << 8 | answer[offset + 1];
    };
    if (answer.size() < header + registers || number16(0) != 0 || number16(2) != 3 ||
        number16(6) != requestId)
        return;
    const auto ip = static_cast<quint32>(number16(header + 0x24)) << 16 |
                    static_cast<quint32>(number16(header + 0x26));
    const CameraIdentity camera{QHostAddress(ip).toString(), textAt(answer, header + 0x68, 32),
                                textAt(answer, header + 0xd8, 16), true};
    if (!cameras.contains(camera))
        cameras.append(camera);
}

} // namespace

QVector<CameraIdentity> findNetworkCameras(const TransportSettings& settings,
                                           std::chrono::milliseconds time)
{
    constexpr std::chrono::milliseconds slice(10);
    Sockets sockets;
    if (settings.isSearching)
        askEverywhere(settings, sockets);
    askAtAddresses(settings, sockets);
    QVector<CameraIdentity> cameras;
    const Clock::time_point end = Clock::now() + time;
    while (!sockets.empty() && Clock::now() < end)
        for (const auto& socket : sockets)
            if (const auto datagram = socket->receive(slice))
                addCamera(cameras, datagram->bytes);
    return cameras;
}

QVector<CameraIdentity> findUsbCameras()
{
    const std::lock_guard lock(libraryParsing());
    arv_disable_interface("GigEVision");
    arv_update_device_list();
    QVector<CameraIdentity> cameras;
    for (unsigned index = 0; index < arv_get_n_devices(); ++index)
        cameras.append({QString::fromUtf8(arv_get_device_id(index)),
                        shownName(QString::fromUtf8(arv_get_device_model(index))),
                        shownName(QString::fromUtf8(arv_get_device_serial_nbr(index))), false});
    return cameras;
}

} // namespace Cameras::GenICam
