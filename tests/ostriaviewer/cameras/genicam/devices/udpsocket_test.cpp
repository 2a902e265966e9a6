// SPDX-License-Identifier: Apache-2.0
// What must hold for datagrams that come damaged.
#include "udpsocket.h"

#include "camerarig.h"

#include <array>
#include <future>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Cameras;
using namespace std::chrono_literals;

namespace {

/// Sends a datagram with a checksum that does not fit, below the system's own protocol.
/// \return  false if the system does not let us
bool sendDamaged(std::uint16_t port)
{
    const int raw = ::socket(AF_INET, SOCK_RAW, IPPROTO_RAW);
    if (raw < 0)
        return false;
    const auto high = static_cast<std::uint8_t>(port >> 8);
    const auto low = static_cast<std::uint8_t>(port);
    const std::array<std::uint8_t, 32> packet = {0x45, 0,    0,    32,  0,   1,  0,    0,
                                                 64,   17,   0,    0,   127, 0,  0,    1,    // IP
                                                 127,  0,    0,    1,                        // to
                                                 0x12, 0x34, high, low, 0,   12, 0xba, 0xad, // UDP
                                                 1,    2,    3,    4};
    sockaddr_in target{};
    target.sin_family = AF_INET;
    target.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const auto sent = ::sendto(raw, packet.data(), packet.size(), 0,
                               reinterpret_cast<const sockaddr*>(&target), sizeof target);
    ::close(raw);
    return sent == static_cast<ssize_t>(packet.size());
}

} // namespace

// The system says that something has come, and then finds that it cannot be used.
TEST(UdpSocket, DoesNotWaitForWhatCameDamaged)
{
    constexpr std::uint16_t port = 40404;
    if (!hasLoopback())
        GTEST_SKIP() << "the system gives no network of its own";
    UdpSocket socket({0x7f000001, port}, false);
    if (!sendDamaged(port))
        GTEST_SKIP() << "the system does not let us send damaged packets";
    auto received =
        std::async(std::launch::async, [&socket] { return socket.receive(100ms).has_value(); });
    const bool isBack = received.wait_for(20s) == std::future_status::ready;
    EXPECT_TRUE(isBack);
    if (!isBack)
        UdpSocket({0x7f000001, 0}, false).send({1}, {0x7f000001, port});
    EXPECT_EQ(received.get(), !isBack);
}
