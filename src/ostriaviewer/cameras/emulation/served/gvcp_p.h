// SPDX-License-Identifier: Apache-2.0
// The GigE Vision control protocol on the wire, on the camera's side.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace Cameras::Emulation::Gvcp {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint16_t port = 3956;

enum class Command : std::uint16_t {
    Discovery = 0x0002,
    PacketResend = 0x0040,
    ReadRegister = 0x0080,
    WriteRegister = 0x0082,
    ReadMemory = 0x0084,
    WriteMemory = 0x0086,
};

enum class Status : std::uint16_t {
    Success = 0x0000,
    NotImplemented = 0x8001,
    InvalidParameter = 0x8002,
    InvalidAddress = 0x8003,
    WriteProtected = 0x8004,
    BadAlignment = 0x8005,
    AccessDenied = 0x8006,
};

/// A request of a client's.
struct Request
{
    std::uint16_t command = 0;
    std::uint16_t id = 0; ///< the same when the client repeats it
    bool wantsAnswer = false;
    Bytes payload;
};

/// \return  nothing if the datagram is no whole request
std::optional<Request> parse(const std::uint8_t* data, std::size_t size);

/// The answer to a request.
Bytes answer(const Request& request, Status status, const Bytes& payload = {});

/// Numbers in the order of the network.
std::uint16_t number16(const Bytes& bytes, std::size_t offset);
std::uint32_t number32(const Bytes& bytes, std::size_t offset);
void append16(Bytes& bytes, std::uint16_t number);
void append32(Bytes& bytes, std::uint32_t number);

} // namespace Cameras::Emulation::Gvcp
