// SPDX-License-Identifier: Apache-2.0
// A socket for datagrams over IPv4.
#include "udpsocket.h"

#include <gio/gio.h>

#include <array>
#include <stdexcept>
#include <string>

namespace Cameras {
namespace {

GSocketAddress* toSocketAddress(const UdpAddress& address)
{
    const std::array<guint8, 4> bytes = {
        static_cast<guint8>(address.address >> 24), static_cast<guint8>(address.address >> 16),
        static_cast<guint8>(address.address >> 8), static_cast<guint8>(address.address)};
    GInetAddress* inet = g_inet_address_new_from_bytes(bytes.data(), G_SOCKET_FAMILY_IPV4);
    GSocketAddress* result = g_inet_socket_address_new(inet, address.port);
    g_object_unref(inet);
    return result;
}

UdpAddress fromSocketAddress(GSocketAddress* address)
{
    auto* inet = G_INET_SOCKET_ADDRESS(address);
    const guint8* bytes = g_inet_address_to_bytes(g_inet_socket_address_get_address(inet));
    return {static_cast<std::uint32_t>(bytes[0]) << 24 |
                static_cast<std::uint32_t>(bytes[1]) << 16 |
                static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3],
            g_inet_socket_address_get_port(inet)};
}

[[noreturn]] void fail(GError* error)
{
    const std::string text = error->message;
    g_error_free(error);
    throw std::runtime_error(text);
}

} // namespace

UdpSocket::UdpSocket(const UdpAddress& address, bool shared)
{
    GError* error = nullptr;
    m_socket =
        g_socket_new(G_SOCKET_FAMILY_IPV4, G_SOCKET_TYPE_DATAGRAM, G_SOCKET_PROTOCOL_UDP, &error);
    if (!m_socket)
        fail(error);
    // What is announced may turn out to be damaged, and would be waited for.
    g_socket_set_blocking(m_socket, FALSE);
    g_socket_set_broadcast(m_socket, TRUE);
    GSocketAddress* own = toSocketAddress(address);
    const bool isBound = g_socket_bind(m_socket, own, shared, &error);
    g_object_unref(own);
    if (isBound)
        return;
    g_object_unref(m_socket);
    fail(error);
}

UdpSocket::~UdpSocket()
{
    g_object_unref(m_socket);
}

/// \return  false if there is no room for it now
bool UdpSocket::trySend(const std::vector<std::uint8_t>& bytes, GSocketAddress* target)
{
    GError* error = nullptr;
    g_socket_send_to(m_socket, target, reinterpret_cast<const char*>(bytes.data()), bytes.size(),
                     nullptr, &error);
    const bool isFull = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_WOULD_BLOCK) != 0;
    g_clear_error(&error);
    return !isFull;
}

void UdpSocket::send(const std::vector<std::uint8_t>& bytes, const UdpAddress& target)
{
    GSocketAddress* address = toSocketAddress(target);
    while (!trySend(bytes, address))
        g_socket_condition_wait(m_socket, G_IO_OUT, nullptr, nullptr);
    g_object_unref(address);
}

std::optional<Datagram> UdpSocket::receive(std::chrono::milliseconds time)
{
    constexpr std::size_t largest = 65536;
    const auto microseconds = std::chrono::microseconds(time).count();
    if (!g_socket_condition_timed_wait(m_socket, G_IO_IN, microseconds, nullptr, nullptr))
        return {};
    Datagram datagram;
    datagram.bytes.resize(largest);
    GSocketAddress* sender = nullptr;
    const gssize size =
        g_socket_receive_from(m_socket, &sender, reinterpret_cast<char*>(datagram.bytes.data()),
                              datagram.bytes.size(), nullptr, nullptr);
    if (sender) {
        datagram.sender = fromSocketAddress(sender);
        g_object_unref(sender);
    }
    if (size < 0)
        return {};
    datagram.bytes.resize(static_cast<std::size_t>(size));
    return datagram;
}

} // namespace Cameras
