// SPDX-License-Identifier: Apache-2.0
// A socket for datagrams over IPv4.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

typedef struct _GSocket GSocket;
typedef struct _GSocketAddress GSocketAddress;

namespace Cameras {

struct UdpAddress
{
    std::uint32_t address = 0; ///< 127.0.0.1 is 0x7f000001
    std::uint16_t port = 0;
};

inline bool operator==(const UdpAddress& one, const UdpAddress& other)
{
    return one.address == other.address && one.port == other.port;
}

struct Datagram
{
    UdpAddress sender;
    std::vector<std::uint8_t> bytes;
};

/// Thread-safe.
class UdpSocket
{
public:
    /// \param address  port 0 takes any that is free
    /// \param shared   others may have the same address
    /// \throws std::runtime_error  the address cannot be had, with the reason
    UdpSocket(const UdpAddress& address, bool shared);
    ~UdpSocket();
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;

    /// What cannot be sent is lost, as datagrams are.
    void send(const std::vector<std::uint8_t>& bytes, const UdpAddress& target);

    /// \return  nothing if nothing came in that time
    std::optional<Datagram> receive(std::chrono::milliseconds time);

private:
    bool trySend(const std::vector<std::uint8_t>& bytes, GSocketAddress* target);

    GSocket* m_socket;
};

} // namespace Cameras
