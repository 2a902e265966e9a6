// SPDX-License-Identifier: Apache-2.0
// Answers the requests to a GigE Vision device.
#pragma once

#include "bootstrapmemory_p.h"
#include "framesender_p.h"
#include "udpsocket.h"

#include <chrono>
#include <memory>

namespace Cameras::Emulation {

/// The device's side of the control protocol: registers, who controls, heartbeat. For one thread.
class ControlChannel
{
public:
    ControlChannel(std::shared_ptr<IServedDevice> device, std::shared_ptr<FrameSender> sender,
                   std::uint32_t ip);

    /// \return  what is to be sent back; empty if nothing is
    Gvcp::Bytes handle(const Gvcp::Bytes& datagram, const UdpAddress& client);

    /// Takes the control away from a client that is not heard of any more.
    void checkHeartbeat();

    /// Thread-safe.
    const Gvcp::Bytes& discoveryAnswer() const { return m_discoveryAnswer; }

private:
    using Clock = std::chrono::steady_clock;

    struct Outcome
    {
        Gvcp::Status status = Gvcp::Status::Success;
        Gvcp::Bytes payload;
    };

    Outcome perform(const Gvcp::Request& request, const UdpAddress& client);
    Outcome readRegisters(const Gvcp::Bytes& payload) const;
    Outcome writeRegisters(const Gvcp::Bytes& payload, const UdpAddress& client);
    Outcome readMemory(const Gvcp::Bytes& payload) const;
    Outcome writeMemory(const Gvcp::Bytes& payload, const UdpAddress& client);
    Gvcp::Status writeRegister(std::uint32_t address, std::uint32_t value,
                               const UdpAddress& client);
    Gvcp::Status changeControl(std::uint32_t value, const UdpAddress& client);
    void sendAgain(const Gvcp::Bytes& payload, const UdpAddress& client);
    void updateTarget();
    void endControl();

    bool isControlled() const { return m_controller.port != 0; }
    bool isController(const UdpAddress& client) const { return m_controller == client; }

    const std::shared_ptr<IServedDevice> m_device;
    const std::shared_ptr<FrameSender> m_sender;
    BootstrapMemory m_memory;
    const Gvcp::Bytes m_discoveryAnswer;
    UdpAddress m_controller; // port 0: nobody
    Clock::time_point m_lastHeard;
    UdpAddress m_lastClient;    // whose request was answered last, so that a repeated one
    std::uint16_t m_lastId = 0; // is not performed twice
    Gvcp::Bytes m_lastAnswer;
};

} // namespace Cameras::Emulation
