// SPDX-License-Identifier: Apache-2.0
// Answers the requests to a GigE Vision device.
#include "controlchannel_p.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace Cameras::Emulation {
namespace {

using Gvcp::Bytes;
using Gvcp::Command;
using Gvcp::number16;
using Gvcp::number32;
using Gvcp::Status;

constexpr std::uint32_t controlBits = 0x3; // control, exclusive control
constexpr std::uint32_t testPacketBit = 0x80000000;
constexpr std::uint16_t longestAnswer = 65000;
constexpr std::uint32_t packetSizeBits = 0xffff;
constexpr std::uint32_t largestPacket = 9000; // as most networks do

/// What writes are answered with: how many were done.
Bytes writeAnswer(std::size_t count)
{
    Bytes bytes;
    Gvcp::append16(bytes, 0);
    Gvcp::append16(bytes, static_cast<std::uint16_t>(count));
    return bytes;
}

std::uint32_t limitedPacketSize(std::uint32_t value)
{
    const std::uint32_t size = std::min(value & packetSizeBits, largestPacket);
    return (value & ~packetSizeBits) | size;
}

} // namespace

ControlChannel::ControlChannel(std::shared_ptr<IServedDevice> device,
                               std::shared_ptr<FrameSender> sender, std::uint32_t ip)
    : m_device(std::move(device))
    , m_sender(std::move(sender))
    , m_memory(m_device->identity(), m_device->description(), ip)
    , m_discoveryAnswer(m_memory.discoveryAnswer())
{}

Bytes ControlChannel::handle(const Bytes& datagram, const UdpAddress& client)
{
    const auto request = Gvcp::parse(datagram.data(), datagram.size());
    if (!request)
        return {};
    if (isController(client))
        m_lastHeard = Clock::now();
    if (request->command == static_cast<std::uint16_t>(Command::PacketResend)) {
        sendAgain(request->payload, client);
        return {};
    }
    if (const Answered* before = findAnswered(*request, client))
        return before->answer;
    const Outcome outcome = perform(*request, client);
    const Bytes answer = Gvcp::answer(*request, outcome.status, outcome.payload);
    m_answered[isController(client) ? 0 : 1] = {client, request->command, request->id, answer};
    return request->wantsAnswer ? answer : Bytes();
}

bool ControlChannel::isRelease(const Bytes& datagram)
{
    const auto request = Gvcp::parse(datagram.data(), datagram.size());
    return request && request->command == static_cast<std::uint16_t>(Command::WriteRegister) &&
           request->payload.size() >= 8 &&
           number32(request->payload, 0) == BootstrapMemory::controlPrivilege &&
           (number32(request->payload, 4) & controlBits) == 0;
}

const ControlChannel::Answered* ControlChannel::findAnswered(const Gvcp::Request& request,
                                                             const UdpAddress& client) const
{
    const auto found =
        std::find_if(m_answered.begin(), m_answered.end(), [&](const Answered& answered) {
            return !answered.answer.empty() && answered.client == client &&
                   answered.command == request.command && answered.id == request.id;
        });
    return found == m_answered.end() ? nullptr : found;
}

ControlChannel::Outcome ControlChannel::perform(const Gvcp::Request& request,
                                                const UdpAddress& client)
{
    switch (static_cast<Command>(request.command)) {
    case Command::Discovery:
        return {Status::Success, m_discoveryAnswer};
    case Command::ReadRegister:
        return readRegisters(request.payload);
    case Command::WriteRegister:
        return writeRegisters(request.payload, client);
    case Command::ReadMemory:
        return readMemory(request.payload);
    case Command::WriteMemory:
        return writeMemory(request.payload, client);
    case Command::PacketResend:
        break;
    }
    return {Status::NotImplemented, {}};
}

ControlChannel::Outcome ControlChannel::readRegisters(const Bytes& payload) const
{
    Outcome outcome;
    if (payload.empty() || payload.size() % 4 != 0)
        return {Status::InvalidParameter, {}};
    for (std::size_t offset = 0; offset < payload.size(); offset += 4) {
        const std::uint32_t address = number32(payload, offset);
        if (address % 4 != 0)
            return {Status::BadAlignment, {}};
        if (!m_memory.holds(address, 4))
            return {Status::InvalidAddress, {}};
        const Bytes value = m_memory.read(address, 4);
        outcome.payload.insert(outcome.payload.end(), value.begin(), value.end());
    }
    return outcome;
}

ControlChannel::Outcome ControlChannel::writeRegisters(const Bytes& payload,
                                                       const UdpAddress& client)
{
    if (payload.empty() || payload.size() % 8 != 0)
        return {Status::InvalidParameter, writeAnswer(0)};
    for (std::size_t offset = 0; offset < payload.size(); offset += 8) {
        const Status status =
            writeRegister(number32(payload, offset), number32(payload, offset + 4), client);
        if (status != Status::Success)
            return {status, writeAnswer(offset / 8)};
    }
    return {Status::Success, writeAnswer(payload.size() / 8)};
}

ControlChannel::Outcome ControlChannel::readMemory(const Bytes& payload) const
{
    if (payload.size() != 8)
        return {Status::InvalidParameter, {}};
    const std::uint32_t address = number32(payload, 0);
    const std::uint16_t size = number16(payload, 6);
    Outcome outcome;
    outcome.payload.assign(payload.begin(), payload.begin() + 4);
    if (m_memory.holds(address, size)) {
        // With its header it would not fit into a datagram.
        if (size > longestAnswer)
            return {Status::InvalidParameter, {}};
        const Bytes bytes = m_memory.read(address, size);
        outcome.payload.insert(outcome.payload.end(), bytes.begin(), bytes.end());
        return outcome;
    }
    try {
        outcome.payload.resize(4 + std::size_t{size});
        m_device->read(address, outcome.payload.data() + 4, size);
        return outcome;
    } catch (const std::exception&) {
        return {Status::InvalidAddress, {}};
    }
}

ControlChannel::Outcome ControlChannel::writeMemory(const Bytes& payload, const UdpAddress& client)
{
    if (payload.size() < 8 || payload.size() % 4 != 0)
        return {Status::InvalidParameter, writeAnswer(0)};
    const std::uint32_t address = number32(payload, 0);
    if (address < IServedDevice::firstRegister)
        return writeRegistersFrom(address, Bytes(payload.begin() + 4, payload.end()), client);
    if (!isController(client))
        return {Status::AccessDenied, writeAnswer(0)};
    try {
        m_device->write(address, payload.data() + 4, payload.size() - 4);
        return {Status::Success, writeAnswer(payload.size() - 4)};
    } catch (const std::exception&) {
        return {Status::AccessDenied, writeAnswer(0)};
    }
}

/// Consecutive registers, of which the answer counts the bytes.
ControlChannel::Outcome ControlChannel::writeRegistersFrom(std::uint32_t address,
                                                           const Bytes& values,
                                                           const UdpAddress& client)
{
    for (std::size_t offset = 0; offset < values.size(); offset += 4) {
        const Status status = writeRegister(address + static_cast<std::uint32_t>(offset),
                                            number32(values, offset), client);
        if (status != Status::Success)
            return {status, writeAnswer(offset)};
    }
    return {Status::Success, writeAnswer(values.size())};
}

Status ControlChannel::writeRegister(std::uint32_t address, std::uint32_t value,
                                     const UdpAddress& client)
{
    if (!m_memory.holds(address, 4))
        return Status::InvalidAddress;
    if (!BootstrapMemory::isWritable(address))
        return Status::WriteProtected;
    if (address == BootstrapMemory::controlPrivilege)
        return changeControl(value, client);
    if (!isController(client))
        return Status::AccessDenied;
    m_memory.set(address,
                 address == BootstrapMemory::packetSize ? limitedPacketSize(value) : value);
    updateTarget();
    if (address == BootstrapMemory::packetSize && (value & testPacketBit) != 0)
        m_sender->sendTestPacket();
    return Status::Success;
}

Status ControlChannel::changeControl(std::uint32_t value, const UdpAddress& client)
{
    if (isControlled() && !isController(client))
        return Status::AccessDenied;
    if ((value & controlBits) == 0) {
        endControl();
        return Status::Success;
    }
    m_controller = client;
    m_lastHeard = Clock::now();
    m_memory.set(BootstrapMemory::controlPrivilege, value);
    return Status::Success;
}

// It comes from the stream's port, so only the address can be compared.
void ControlChannel::sendAgain(const Bytes& payload, const UdpAddress& client)
{
    constexpr std::uint32_t packetMask = 0xffffff;
    if (payload.size() >= 12 && client.address == m_controller.address)
        m_sender->sendAgain(number16(payload, 2), number32(payload, 4) & packetMask,
                            number32(payload, 8) & packetMask);
}

void ControlChannel::updateTarget()
{
    m_sender->setTarget({m_memory.value(BootstrapMemory::streamAddress),
                         static_cast<std::uint16_t>(m_memory.value(BootstrapMemory::streamPort)),
                         m_memory.value(BootstrapMemory::packetSize),
                         std::chrono::nanoseconds(m_memory.value(BootstrapMemory::packetDelay))});
}

void ControlChannel::checkHeartbeat()
{
    const std::chrono::milliseconds timeout(m_memory.value(BootstrapMemory::heartbeatTimeout));
    if (isControlled() && Clock::now() - m_lastHeard > timeout)
        endControl();
}

void ControlChannel::endControl()
{
    m_controller = {};
    m_memory.set(BootstrapMemory::controlPrivilege, 0);
    m_memory.set(BootstrapMemory::streamPort, 0);
    updateTarget();
    m_device->stopAcquisition();
}

} // namespace Cameras::Emulation
