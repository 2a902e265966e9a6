// SPDX-License-Identifier: Apache-2.0
// Whose answers count when a camera is asked whether it is there.
#include "cameraprobe_p.h"
#include "camerarig.h"

#include <atomic>
#include <functional>
#include <thread>

using namespace Cameras;
using GenICam::CameraProbe;

namespace {

constexpr std::uint32_t cameraIp = 0x7f000004;
const QString cameraId = QStringLiteral("127.0.0.4");

/// Answers each request as it is told to.
class Stranger
{
public:
    using Answer = std::function<void(UdpSocket& socket, const Datagram& request)>;

    explicit Stranger(Answer answer)
        : m_answer(std::move(answer))
        , m_thread([this] { run(); })
    {}
    ~Stranger()
    {
        m_isEnding = true;
        m_thread.join();
    }
    Stranger(const Stranger&) = delete;
    Stranger& operator=(const Stranger&) = delete;

private:
    void run()
    {
        while (!m_isEnding)
            if (const auto request = m_socket.receive(std::chrono::milliseconds(5)))
                m_answer(m_socket, *request);
    }

    UdpSocket m_socket{{cameraIp, 3956}, false};
    const Answer m_answer;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread;
};

/// Success, the kind of answer, no more bytes, and the request's number.
std::vector<std::uint8_t> answerTo(const Datagram& request)
{
    return {0, 0, 0, 0x03, 0, 0, request.bytes[6], request.bytes[7]};
}

class CameraProbeTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
    }
};

} // namespace

TEST_F(CameraProbeTest, HearsTheCamera)
{
    const Stranger camera([](UdpSocket& socket, const Datagram& request) {
        socket.send(answerTo(request), request.sender);
    });
    CameraProbe probe(cameraId);
    EXPECT_TRUE(probe.answers());
    EXPECT_TRUE(probe.answers());
}

TEST_F(CameraProbeTest, DoesNotTakeSomebodyElseForTheCamera)
{
    UdpSocket other({0x7f000005, 3956}, false);
    const Stranger camera([&other](UdpSocket& /*socket*/, const Datagram& request) {
        other.send(answerTo(request), request.sender);
    });
    EXPECT_FALSE(CameraProbe(cameraId).answers());
}

TEST_F(CameraProbeTest, DoesNotTakeAnAnswerToSomethingElseForOneToItsQuestion)
{
    const Stranger camera([](UdpSocket& socket, const Datagram& request) {
        auto earlier = answerTo(request);
        ++earlier[6];
        socket.send(earlier, request.sender);
        auto access = answerTo(request);
        access[3] = 0x81;
        socket.send(access, request.sender);
        socket.send({0}, request.sender);
    });
    EXPECT_FALSE(CameraProbe(cameraId).answers());
}
