// SPDX-License-Identifier: Apache-2.0
// The registers that every GigE Vision camera has.
#pragma once

#include "gvcp_p.h"
#include "serveddevice.h"

#include <array>
#include <string>

namespace Cameras::Emulation {

/// The bootstrap registers and the description behind them. Reentrant.
class BootstrapMemory
{
public:
    /// \param ip  the camera's IPv4 address, 127.0.0.1 being 0x7f000001
    BootstrapMemory(const ServedIdentity& identity, const std::string& description,
                    std::uint32_t ip);

    static constexpr std::uint32_t heartbeatTimeout = 0x938; ///< ms
    static constexpr std::uint32_t controlPrivilege = 0xa00;
    static constexpr std::uint32_t streamPort = 0xd00;
    static constexpr std::uint32_t packetSize = 0xd04;
    static constexpr std::uint32_t packetDelay = 0xd08; ///< ns
    static constexpr std::uint32_t streamAddress = 0xd18;

    /// Whether addresses belong to this memory.
    bool holds(std::uint32_t address, std::size_t size) const;

    /// \pre  holds
    Gvcp::Bytes read(std::uint32_t address, std::size_t size) const;
    std::uint32_t value(std::uint32_t address) const;

    /// Registers that a client may write.
    static bool isWritable(std::uint32_t address);
    void set(std::uint32_t address, std::uint32_t value);

    /// What a discovery is answered with.
    Gvcp::Bytes discoveryAnswer() const { return read(0, 0xf8); }

private:
    void setText(std::uint32_t address, std::size_t room, const std::string& text);
    void setFixedRegisters(std::uint32_t ip);

    Gvcp::Bytes m_registers;
    std::string m_description;
};

} // namespace Cameras::Emulation
