// SPDX-License-Identifier: Apache-2.0
// Serves a camera of this program as a GigE Vision device.
#include "gigeserver.h"

#include "cameraaddress.h"
#include "controlchannel_p.h"
#include "udpsocket.h"

#include <atomic>
#include <random>
#include <stdexcept>
#include <thread>
#include <utility>

namespace Cameras::Emulation {
namespace {

constexpr std::chrono::milliseconds pollTime(20);
constexpr std::uint32_t everybody = 0xffffffff;

std::uint32_t parseAddress(const std::string& text)
{
    const auto address = GenICam::addressNumber(QString::fromStdString(text));
    if (!address)
        throw std::runtime_error("\"" + text + "\" is no IPv4 address of one device");
    return *address;
}

std::shared_ptr<UdpSocket> openSocket(const std::string& address)
{
    const std::uint32_t number = parseAddress(address);
    try {
        return std::make_shared<UdpSocket>(UdpAddress{number, Gvcp::port}, false);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error("cannot serve a camera at " + address + " (" + error.what() + ")");
    }
}

/// Broadcasts come to a socket of their own. Null where that cannot be had: clients must know the
/// address then.
std::unique_ptr<UdpSocket> openBroadcastSocket()
{
    try {
        return std::make_unique<UdpSocket>(UdpAddress{everybody, Gvcp::port}, true);
    } catch (const std::runtime_error&) {
        return nullptr;
    }
}

} // namespace

class GigeServer::Worker
{
public:
    Worker(std::shared_ptr<IServedDevice> device, const std::string& address)
        : m_device(std::move(device))
        , m_socket(openSocket(address))
        , m_broadcasts(openBroadcastSocket())
        , m_sender(std::make_shared<FrameSender>(m_socket))
        , m_channel(m_device, m_sender, parseAddress(address))
        , m_control([this] { answerRequests(); })
        , m_discovery([this] { answerDiscoveries(); })
    {
        m_device->setReceiver(
            [sender = m_sender](const Ostria::CGrabResultPtr& frame) { sender->send(frame); });
    }

    ~Worker()
    {
        m_isEnding = true;
        m_control.join();
        m_discovery.join();
        m_device->setReceiver({});
        m_device->stopAcquisition();
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    FrameSender& sender() { return *m_sender; }
    void loseControlPackets(double share) { m_controlLoss = share; }
    void loseReleases(int count) { m_releasesToLose = count; }
    void forgetController() { m_isToForget = true; }

private:
    void answerRequests()
    {
        while (!m_isEnding) {
            const auto datagram = m_socket->receive(pollTime);
            if (m_isToForget.exchange(false))
                m_channel.forgetController();
            if (datagram && !isLost() && !isLostRelease(datagram->bytes)) {
                const Gvcp::Bytes answer = m_channel.handle(datagram->bytes, datagram->sender);
                if (!answer.empty() && !isLost())
                    m_socket->send(answer, datagram->sender);
            }
            m_channel.checkHeartbeat();
        }
    }

    bool isLost()
    {
        return std::uniform_real_distribution<double>(0.0, 1.0)(m_chance) < m_controlLoss;
    }

    bool isLostRelease(const Gvcp::Bytes& datagram)
    {
        const bool isLost = m_releasesToLose > 0 && ControlChannel::isRelease(datagram);
        m_releasesToLose -= isLost ? 1 : 0;
        return isLost;
    }

    void answerDiscoveries()
    {
        while (m_broadcasts && !m_isEnding) {
            const auto datagram = m_broadcasts->receive(pollTime);
            const auto request = datagram
                                     ? Gvcp::parse(datagram->bytes.data(), datagram->bytes.size())
                                     : std::nullopt;
            if (request && request->command == static_cast<std::uint16_t>(Gvcp::Command::Discovery))
                m_socket->send(
                    Gvcp::answer(*request, Gvcp::Status::Success, m_channel.discoveryAnswer()),
                    datagram->sender);
        }
    }

    const std::shared_ptr<IServedDevice> m_device;
    const std::shared_ptr<UdpSocket> m_socket;
    const std::unique_ptr<UdpSocket> m_broadcasts;
    const std::shared_ptr<FrameSender> m_sender;
    ControlChannel m_channel;
    std::atomic<bool> m_isEnding = false;
    std::atomic<double> m_controlLoss = 0.0;
    std::atomic<bool> m_isToForget = false;
    std::atomic<int> m_releasesToLose = 0;
    std::minstd_rand m_chance; // of the thread that answers requests
    std::thread m_control;
    std::thread m_discovery;
};

GigeServer::GigeServer(std::shared_ptr<IServedDevice> device, const std::string& address)
    : m_worker(std::make_unique<Worker>(std::move(device), address))
{}

GigeServer::~GigeServer() = default;

void GigeServer::loseControlPackets(double share)
{
    m_worker->loseControlPackets(share);
}

void GigeServer::loseReleases(int count)
{
    m_worker->loseReleases(count);
}

void GigeServer::forgetController()
{
    m_worker->forgetController();
}

void GigeServer::losePackets(double share)
{
    m_worker->sender().losePackets(share);
}

void GigeServer::cutImages(std::size_t bytes)
{
    m_worker->sender().cutImages(bytes);
}

} // namespace Cameras::Emulation
