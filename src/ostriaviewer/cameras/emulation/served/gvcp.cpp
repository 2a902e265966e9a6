// SPDX-License-Identifier: Apache-2.0
// The GigE Vision control protocol on the wire, on the camera's side.
#include "gvcp_p.h"

namespace Cameras::Emulation::Gvcp {
namespace {

constexpr std::uint8_t key = 0x42;
constexpr std::uint8_t answerWanted = 0x01;
constexpr std::size_t headerSize = 8;

} // namespace

std::uint16_t number16(const Bytes& bytes, std::size_t offset)
{
    return static_cast<std::uint16_t>(bytes[offset] << 8 | bytes[offset + 1]);
}

std::uint32_t number32(const Bytes& bytes, std::size_t offset)
{
    return static_cast<std::uint32_t>(number16(bytes, offset)) << 16 | number16(bytes, offset + 2);
}

void append16(Bytes& bytes, std::uint16_t number)
{
    bytes.push_back(static_cast<std::uint8_t>(number >> 8));
    bytes.push_back(static_cast<std::uint8_t>(number));
}

void append32(Bytes& bytes, std::uint32_t number)
{
    append16(bytes, static_cast<std::uint16_t>(number >> 16));
    append16(bytes, static_cast<std::uint16_t>(number));
}

std::optional<Request> parse(const std::uint8_t* data, std::size_t size)
{
    const Bytes bytes(data, data + size);
    if (size < headerSize || bytes[0] != key || number16(bytes, 4) != size - headerSize)
        return {};
    Request request;
    request.wantsAnswer = (bytes[1] & answerWanted) != 0;
    request.command = number16(bytes, 2);
    request.id = number16(bytes, 6);
    request.payload.assign(data + headerSize, data + size);
    return request;
}

Bytes answer(const Request& request, Status status, const Bytes& payload)
{
    Bytes bytes;
    append16(bytes, static_cast<std::uint16_t>(status));
    append16(bytes, static_cast<std::uint16_t>(request.command + 1));
    append16(bytes, static_cast<std::uint16_t>(payload.size()));
    append16(bytes, request.id);
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    return bytes;
}

} // namespace Cameras::Emulation::Gvcp
