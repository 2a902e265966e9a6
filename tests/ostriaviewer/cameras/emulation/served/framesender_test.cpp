// SPDX-License-Identifier: Apache-2.0
// Tests of how images are sent in packets.
#include "framesender_p.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>

using namespace Cameras::Emulation;
using namespace std::chrono_literals;

// Five packets of an hour's distance: the first goes, the others must not hold anybody up.
TEST(FrameSender, EndsWhatIsUnderWayWhenItsTargetChanges)
{
    FrameSender sender(
        std::make_shared<Cameras::UdpSocket>(Cameras::UdpAddress{0x7f000001, 0}, false));
    sender.setTarget({0x7f000001, 9, 136, 1h});
    auto sent = std::async(std::launch::async, [&sender] {
        sender.send(std::make_shared<Ostria::CGrabResult>(
            Ostria::COstriaImage(Ostria::PixelType::Mono8, 30, 10), 1));
    });
    EXPECT_EQ(sent.wait_for(100ms), std::future_status::timeout)
        << "the packets keep their distance";
    sender.setTarget({});
    EXPECT_EQ(sent.wait_for(60s), std::future_status::ready);
}

// Leader, three packets with pixels, trailer. The target is told again behind the first.
TEST(FrameSender, GoesOnWhereItsTargetStaysTheSame)
{
    constexpr std::uint16_t port = 40405;
    Cameras::UdpSocket receiver({0x7f000001, port}, false);
    FrameSender sender(
        std::make_shared<Cameras::UdpSocket>(Cameras::UdpAddress{0x7f000001, 0}, false));
    const FrameSender::Target target{0x7f000001, port, 136, 50ms};
    sender.setTarget(target);
    auto sent = std::async(std::launch::async, [&sender] {
        sender.send(std::make_shared<Ostria::CGrabResult>(
            Ostria::COstriaImage(Ostria::PixelType::Mono8, 30, 10), 1));
    });
    ASSERT_TRUE(receiver.receive(60s));
    sender.setTarget(target);
    sent.wait();
    int further = 0;
    while (receiver.receive(0ms))
        ++further;
    EXPECT_EQ(further, 4);
}

// Who asks for packets again waits for its other answers meanwhile.
TEST(FrameSender, SendsAgainWithoutThePacketsDistance)
{
    constexpr std::uint16_t port = 40406;
    Cameras::UdpSocket receiver({0x7f000001, port}, false);
    FrameSender sender(
        std::make_shared<Cameras::UdpSocket>(Cameras::UdpAddress{0x7f000001, 0}, false));
    sender.setTarget({0x7f000001, port, 136, 0ms});
    sender.send(std::make_shared<Ostria::CGrabResult>(
        Ostria::COstriaImage(Ostria::PixelType::Mono8, 30, 10), 1));
    while (receiver.receive(0ms)) {
    }
    sender.setTarget({0x7f000001, port, 136, 1h});
    auto sent = std::async(std::launch::async, [&sender] { sender.sendAgain(1, 1, 3); });
    EXPECT_EQ(sent.wait_for(60s), std::future_status::ready);
    sender.setTarget({});
    sent.wait();
    int count = 0;
    while (receiver.receive(0ms))
        ++count;
    EXPECT_EQ(count, 3);
}
