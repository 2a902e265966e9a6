// SPDX-License-Identifier: Apache-2.0
// The registers that every GigE Vision camera has.
#include "bootstrapmemory_p.h"

#include <algorithm>
#include <cstdio>

namespace Cameras::Emulation {
namespace {

constexpr std::size_t registersSize = 0x2000;
constexpr std::uint32_t descriptionAddress = 0x1000000;

constexpr std::uint32_t defaultPacketSize = 1500;
constexpr std::uint32_t packetSizeMask = 0xffff;

} // namespace

BootstrapMemory::BootstrapMemory(const ServedIdentity& identity, const std::string& description,
                                 std::uint32_t ip)
    : m_registers(registersSize)
    , m_description(description)
{
    // Clients read in multiples of four.
    m_description.resize((m_description.size() + 3) / 4 * 4);
    setText(0x48, 32, identity.vendor);
    setText(0x68, 32, identity.model);
    setText(0x88, 32, identity.version);
    setText(0xa8, 48, "emulated");
    setText(0xd8, 16, identity.serialNumber);
    std::array<char, 64> url{};
    std::snprintf(url.data(), url.size(), "Local:camera.xml;%x;%zx",
                  static_cast<unsigned>(descriptionAddress), description.size());
    setText(0x200, 512, url.data());
    setFixedRegisters(ip);
}

void BootstrapMemory::setFixedRegisters(std::uint32_t ip)
{
    constexpr std::uint32_t privateHardwareAddress = 0x0200; // a locally administered one
    set(0x0, 0x00010002);                                    // version 1.2
    set(0x4, 0x80000001);                                    // big endian, UTF-8
    set(0x8, privateHardwareAddress);
    set(0xc, ip);
    set(0x10, 0x5); // the address is set by hand
    set(0x14, 0x5);
    set(0x24, ip);
    set(0x34, 0xff000000);
    set(0x600, 1);   // network interfaces
    set(0x904, 1);   // stream channels
    set(0x934, 0x7); // resending, writing memory, several registers at once
    set(heartbeatTimeout, 3000);
    set(0x940, 1000000000); // ticks of a second
    set(packetSize, defaultPacketSize);
}

void BootstrapMemory::setText(std::uint32_t address, std::size_t room, const std::string& text)
{
    std::copy_n(text.begin(), std::min(text.size(), room - 1),
                m_registers.begin() + static_cast<std::ptrdiff_t>(address));
}

bool BootstrapMemory::holds(std::uint32_t address, std::size_t size) const
{
    const auto isWithin = [=](std::size_t first, std::size_t length) {
        return address >= first && address - first <= length && size <= length - (address - first);
    };
    return isWithin(0, m_registers.size()) || isWithin(descriptionAddress, m_description.size());
}

Gvcp::Bytes BootstrapMemory::read(std::uint32_t address, std::size_t size) const
{
    if (address < descriptionAddress) {
        const auto first = m_registers.begin() + static_cast<std::ptrdiff_t>(address);
        return {first, first + static_cast<std::ptrdiff_t>(size)};
    }
    const auto first =
        m_description.begin() + static_cast<std::ptrdiff_t>(address - descriptionAddress);
    return {first, first + static_cast<std::ptrdiff_t>(size)};
}

std::uint32_t BootstrapMemory::value(std::uint32_t address) const
{
    const std::uint32_t number = Gvcp::number32(m_registers, address);
    return address == packetSize ? number & packetSizeMask : number;
}

bool BootstrapMemory::isWritable(std::uint32_t address)
{
    constexpr std::array<std::uint32_t, 9> writable = {heartbeatTimeout,
                                                       controlPrivilege,
                                                       streamPort,
                                                       packetSize,
                                                       packetDelay,
                                                       streamAddress,
                                                       0xb00, // message channel: port, address,
                                                       0xb10,
                                                       0x954}; // what makes resending slow down
    return std::find(writable.begin(), writable.end(), address) != writable.end();
}

void BootstrapMemory::set(std::uint32_t address, std::uint32_t value)
{
    Gvcp::Bytes bytes;
    Gvcp::append32(bytes, value);
    std::copy(bytes.begin(), bytes.end(),
              m_registers.begin() + static_cast<std::ptrdiff_t>(address));
}

} // namespace Cameras::Emulation
