// SPDX-License-Identifier: Apache-2.0
// What must hold where a datagram that was announced is not there.
#include "udpsocket.h"

#include "camerarig.h"

#include <array>
#include <future>

using namespace Cameras;
using namespace std::chrono_literals;

// As when the system drops it because it came damaged, or another thread is faster.
TEST(UdpSocket, WaitsForNothingThatWasOnlyAnnounced)
{
    constexpr UdpAddress here{0x7f000001, 40404};
    if (!hasLoopback())
        GTEST_SKIP() << "the system gives no network of its own";
    UdpSocket socket(here, false);
    UdpSocket sender({0x7f000001, 0}, false);
    for (int round = 0; round < 300 && !testing::Test::HasFailure(); ++round) {
        std::array<std::future<bool>, 2> received;
        for (auto& each : received)
            each = std::async(std::launch::async,
                              [&socket] { return socket.receive(20ms).has_value(); });
        sender.send({1}, here);
        for (auto& each : received) {
            const bool isBack = each.wait_for(20s) == std::future_status::ready;
            EXPECT_TRUE(isBack) << round;
            if (!isBack)
                sender.send({2}, here);
        }
        EXPECT_TRUE(received[0].get() != received[1].get()) << round;
    }
}
