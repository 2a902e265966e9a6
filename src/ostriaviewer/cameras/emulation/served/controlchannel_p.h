// SPDX-License-Identifier: Apache-2.0
// Answers the requests to a GigE Vision device.
#pragma once

#include "bootstrapmemory_p.h"
#include "framesender_p.h"
#include "udpsocket.h"

#include <array>
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

    /// Whether a client gives the control back by that.
    static bool isRelease(const Gvcp::Bytes& datagram);

    /// Takes the control away from a client that is not heard of any more.
    void checkHeartbeat();

    /// Takes the control away at once.
    void forgetController() { endControl(); }

    /// Thread-safe.
    const Gvcp::Bytes& discoveryAnswer() const { return m_discoveryAnswer; }

private:
    using Clock = std::chrono::steady_clock;

    struct Outcome
    {
        Gvcp::Status status = Gvcp::Status::Success;
        Gvcp::Bytes payload;
    };

    /// A request that was performed already, so that a repeated one is not performed twice.
    struct Answered
    {
        UdpAddress client;
        std::uint16_t command = 0;
        std::uint16_t id = 0;
        Gvcp::Bytes answer;
    };

    const Answered* findAnswered(const Gvcp::Request& request, const UdpAddress& client) const;
    Outcome perform(const Gvcp::Request& request, const UdpAddress& client);
    Outcome readRegisters(const Gvcp::Bytes& payload) const;
    Outcome writeRegisters(const Gvcp::Bytes& payload, const UdpAddress& client);
    Outcome readMemory(const Gvcp::Bytes& payload) const;
    Outcome writeMemory(const Gvcp::Bytes& payload, const UdpAddress& client);
    Outcome writeRegistersFrom(std::uint32_t address, const Gvcp::Bytes& values,
                               const UdpAddress& client);
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
    std::array<Answered, 2> m_answered; // the controller's and somebody else's
};

} // namespace Cameras::Emulation
