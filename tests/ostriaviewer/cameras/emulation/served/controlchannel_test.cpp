// SPDX-License-Identifier: Apache-2.0
// The control protocol byte by byte.
#include "controlchannel_p.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <stdexcept>

using namespace Cameras::Emulation;
using Gvcp::Bytes;

namespace {

/// One register of eight bytes.
class OneRegister final : public IServedDevice
{
public:
    ServedIdentity identity() const override { return {"Maker", "Model X", "1", "4711"}; }
    std::string description() const override { return xml; }
    void setReceiver(Receiver) override {}
    void stopAcquisition() override { ++stops; }

    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        check(address, size);
        std::memcpy(data, value.data(), size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        check(address, size);
        ++writes;
        std::memcpy(value.data(), data, size);
    }

    Bytes value = Bytes(8);
    std::string xml = "<xml/>";
    int writes = 0;
    int stops = 0;

private:
    static void check(std::uint64_t address, std::size_t size)
    {
        if (address != firstRegister || size != 8)
            throw std::runtime_error("there is no such register");
    }
};

class ControlChannelTest : public testing::Test
{
protected:
    static constexpr Cameras::UdpAddress client{0x7f000001, 5000};
    static constexpr Cameras::UdpAddress stranger{0x7f000001, 5001};

    Bytes request(std::uint16_t command, const Bytes& payload,
                  const Cameras::UdpAddress& from = client)
    {
        Bytes bytes = {0x42, 0x01};
        Gvcp::append16(bytes, command);
        Gvcp::append16(bytes, static_cast<std::uint16_t>(payload.size()));
        Gvcp::append16(bytes, ++m_id);
        bytes.insert(bytes.end(), payload.begin(), payload.end());
        m_last = bytes;
        return channel.handle(bytes, from);
    }
    const Bytes& lastRequest() const { return m_last; }
    Bytes repeat() { return channel.handle(m_last, client); }

    void takeControl() { request(0x82, {0, 0, 0x0a, 0x00, 0, 0, 0, 2}); }

    static int status(const Bytes& answer) { return Gvcp::number16(answer, 0); }

    std::shared_ptr<OneRegister> device = std::make_shared<OneRegister>();
    ControlChannel channel{device, std::make_shared<FrameSender>(nullptr), 0x7f000001};

private:
    std::uint16_t m_id = 0;
    Bytes m_last;
};

} // namespace

TEST_F(ControlChannelTest, AnswersADiscoveryWithItsNames)
{
    const Bytes answer = request(0x02, {});
    ASSERT_EQ(answer.size(), 8U + 0xf8U);
    EXPECT_EQ(Gvcp::number16(answer, 2), 0x03);
    EXPECT_EQ(Gvcp::number32(answer, 8 + 0x24), 0x7f000001U);
    EXPECT_STREQ(reinterpret_cast<const char*>(answer.data() + 8 + 0x48), "Maker");
    EXPECT_STREQ(reinterpret_cast<const char*>(answer.data() + 8 + 0x68), "Model X");
    EXPECT_STREQ(reinterpret_cast<const char*>(answer.data() + 8 + 0xd8), "4711");
}

TEST_F(ControlChannelTest, AnswersNothingToGarbage)
{
    for (const Bytes& garbage : {Bytes(), Bytes{0x42}, Bytes(8, 0xff),
                                 Bytes{0x42, 1, 0, 2, 0, 9, 0, 1}, Bytes(1000, 0x42)})
        EXPECT_TRUE(channel.handle(garbage, client).empty());
}

TEST_F(ControlChannelTest, RefusesCommandsThatItDoesNotKnow)
{
    EXPECT_EQ(status(request(0x1234, {})), 0x8001);
}

TEST_F(ControlChannelTest, ReadsTheDescriptionWhereTheAddressSays)
{
    const Bytes url = request(0x84, {0, 0, 0x02, 0x00, 0, 0, 0x02, 0x00});
    EXPECT_STREQ(reinterpret_cast<const char*>(url.data() + 12), "Local:camera.xml;1000000;6");
    const Bytes xml = request(0x84, {1, 0, 0, 0, 0, 0, 0, 8});
    EXPECT_EQ(std::string(xml.begin() + 12, xml.end()), std::string("<xml/>\0\0", 8));
}

TEST_F(ControlChannelTest, WritesForItsControllerAlone)
{
    const Bytes write = {0, 1, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(status(request(0x86, write)), 0x8006);
    takeControl();
    EXPECT_EQ(status(request(0x86, write, stranger)), 0x8006);
    EXPECT_EQ(status(request(0x86, write)), 0);
    EXPECT_EQ(device->value, (Bytes{1, 2, 3, 4, 5, 6, 7, 8}));
    const Bytes read = request(0x84, {0, 1, 0, 0, 0, 0, 0, 8}, stranger);
    EXPECT_EQ(Bytes(read.begin() + 12, read.end()), device->value);
}

TEST_F(ControlChannelTest, PerformsARepeatedRequestOnce)
{
    takeControl();
    const Bytes first = request(0x86, {0, 1, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(repeat(), first);
    EXPECT_EQ(device->writes, 1);
}

TEST_F(ControlChannelTest, PerformsARepeatedRequestOnceWhoeverAsksInBetween)
{
    takeControl();
    const Bytes first = request(0x86, {0, 1, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8});
    const Bytes asked = lastRequest();
    request(0x02, {}, stranger);
    EXPECT_EQ(channel.handle(asked, client), first);
    EXPECT_EQ(device->writes, 1);
}

TEST_F(ControlChannelTest, WritesRegistersOfItsOwnOneAfterTheOther)
{
    takeControl();
    // The stream's port and packet size: 0x0d00 and 0x0d04.
    const Bytes answer = request(0x86, {0, 0, 0x0d, 0x00, 0, 0, 0x13, 0x88, 0, 0, 0x05, 0xdc});
    EXPECT_EQ(status(answer), 0);
    EXPECT_EQ(Gvcp::number16(answer, 10), 8) << "bytes";
    const Bytes read = request(0x80, {0, 0, 0x0d, 0x00, 0, 0, 0x0d, 0x04});
    EXPECT_EQ(Bytes(read.begin() + 8, read.end()), (Bytes{0, 0, 0x13, 0x88, 0, 0, 0x05, 0xdc}));
}

TEST_F(ControlChannelTest, TellsHowManyBytesWereWrittenBeforeARegisterThatIsNotThere)
{
    takeControl();
    const Bytes answer = request(0x86, {0, 0, 0x0d, 0x08, 0, 0, 0, 1, 0, 0, 0, 1});
    EXPECT_NE(status(answer), 0);
    EXPECT_EQ(Gvcp::number16(answer, 10), 4);
}

TEST_F(ControlChannelTest, GivesControlToOneClientUntilThatGivesItBack)
{
    takeControl();
    const Bytes take = {0, 0, 0x0a, 0x00, 0, 0, 0, 2};
    const Bytes leave = {0, 0, 0x0a, 0x00, 0, 0, 0, 0};
    EXPECT_EQ(status(request(0x82, take, stranger)), 0x8006);
    EXPECT_EQ(status(request(0x82, leave, stranger)), 0x8006);
    EXPECT_EQ(device->stops, 0);
    EXPECT_EQ(status(request(0x82, leave)), 0);
    EXPECT_EQ(device->stops, 1);
    EXPECT_EQ(status(request(0x82, take, stranger)), 0);
}

TEST_F(ControlChannelTest, TakesControlFromAClientThatIsSilent)
{
    takeControl();
    channel.checkHeartbeat();
    EXPECT_EQ(device->stops, 0);
    request(0x82, {0, 0, 0x09, 0x38, 0, 0, 0, 0}); // a heartbeat of no time at all
    channel.checkHeartbeat();
    EXPECT_EQ(device->stops, 1);
    EXPECT_EQ(status(request(0x82, {0, 0, 0x0a, 0x00, 0, 0, 0, 2}, stranger)), 0);
}

TEST_F(ControlChannelTest, RefusesWrongAddressesAndSizes)
{
    takeControl();
    EXPECT_EQ(status(request(0x80, {0, 0, 0x0a, 0x01})), 0x8005);
    EXPECT_EQ(status(request(0x80, {0, 0, 0x40, 0x00})), 0x8003);
    EXPECT_EQ(status(request(0x80, {0, 0, 0x0a})), 0x8002);
    EXPECT_EQ(status(request(0x82, {0, 0, 0, 0x24, 0, 0, 0, 0})), 0x8004);
    EXPECT_EQ(status(request(0x84, {0, 1, 0, 0, 0, 0, 0, 4})), 0x8003);
    EXPECT_EQ(status(request(0x84, {0xff, 0xff, 0xff, 0xff, 0, 0, 0xff, 0xff})), 0x8003);
    EXPECT_EQ(status(request(0x86, {0, 1, 0, 0, 1, 2})), 0x8002);
}

// The description is longer than an answer can be, whose length has 16 bits.
TEST_F(ControlChannelTest, RefusesToReadMoreThanAnAnswerHolds)
{
    const auto wordy = std::make_shared<OneRegister>();
    wordy->xml = std::string(70000, 'x');
    ControlChannel talking(wordy, std::make_shared<FrameSender>(nullptr), 0x7f000001);
    const auto read = [&](std::uint8_t high, std::uint8_t low) {
        return talking.handle({0x42, 1, 0, 0x84, 0, 8, 0, high, 1, 0, 0, 0, 0, 0, high, low},
                              client);
    };
    EXPECT_EQ(status(read(0xff, 0xfc)), 0x8002);
    EXPECT_EQ(read(0x02, 0x00).size(), 8U + 4U + 512U);
}
