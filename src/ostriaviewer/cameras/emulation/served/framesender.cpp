// SPDX-License-Identifier: Apache-2.0
// Sends images as GigE Vision streams.
#include "framesender_p.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace Cameras::Emulation {
namespace {

using Gvcp::append16;
using Gvcp::append32;
using Gvcp::Bytes;
using Clock = std::chrono::steady_clock;

constexpr std::size_t ipHeaders = 28; // IP and UDP, which the packet size counts as well
constexpr std::size_t packetHeader = 8;
constexpr std::size_t smallestPacket = 64;
constexpr std::uint16_t imagePayload = 0x0001;

enum class Content : std::uint8_t { Leader = 1, Trailer = 2, Payload = 3 };

Bytes begin(std::uint16_t frameId, Content content, std::uint32_t index)
{
    Bytes bytes;
    append16(bytes, 0);
    append16(bytes, frameId);
    append32(bytes, static_cast<std::uint32_t>(content) << 24 | index);
    return bytes;
}

} // namespace

FrameSender::FrameSender(std::shared_ptr<UdpSocket> socket)
    : m_socket(std::move(socket))
{}

void FrameSender::setTarget(const Target& target)
{
    const std::lock_guard lock(m_mutex);
    m_target = target;
    m_target.packetSize = std::max(target.packetSize, smallestPacket);
}

void FrameSender::losePackets(double share)
{
    const std::lock_guard lock(m_mutex);
    m_loss = share;
}

std::size_t FrameSender::payloadSize() const
{
    return m_target.packetSize - ipHeaders - packetHeader;
}

/// Leader and trailer included.
std::uint32_t FrameSender::packetCount(const SentFrame& frame) const
{
    return static_cast<std::uint32_t>((frame.image.size() + payloadSize() - 1) / payloadSize()) + 2;
}

Bytes FrameSender::leader(const SentFrame& frame) const
{
    Bytes bytes = begin(frame.id, Content::Leader, 0);
    append16(bytes, 0);
    append16(bytes, imagePayload);
    const auto ticks = static_cast<std::uint64_t>(
        std::chrono::nanoseconds(Clock::now().time_since_epoch()).count());
    append32(bytes, static_cast<std::uint32_t>(ticks >> 32));
    append32(bytes, static_cast<std::uint32_t>(ticks));
    append32(bytes, static_cast<std::uint32_t>(frame.image.pixelType()));
    append32(bytes, static_cast<std::uint32_t>(frame.image.width()));
    append32(bytes, static_cast<std::uint32_t>(frame.image.height()));
    append32(bytes, 0); // offsets
    append32(bytes, 0);
    append16(bytes, static_cast<std::uint16_t>(frame.image.paddingX()));
    append16(bytes, 0);
    return bytes;
}

Bytes FrameSender::packet(const SentFrame& frame, std::uint32_t index) const
{
    if (index == 0)
        return leader(frame);
    if (index + 1 == packetCount(frame)) {
        Bytes bytes = begin(frame.id, Content::Trailer, index);
        append32(bytes, imagePayload);
        append32(bytes, static_cast<std::uint32_t>(frame.image.height()));
        return bytes;
    }
    Bytes bytes = begin(frame.id, Content::Payload, index);
    const std::size_t offset = (index - 1) * payloadSize();
    const std::size_t size = std::min(payloadSize(), frame.image.size() - offset);
    bytes.insert(bytes.end(), frame.image.data() + offset, frame.image.data() + offset + size);
    return bytes;
}

void FrameSender::transmit(const Bytes& packet)
{
    const double chance = std::uniform_real_distribution<double>(0.0, 1.0)(m_chance);
    if (chance >= m_loss)
        m_socket->send(packet, {m_target.address, m_target.port});
    if (m_target.packetDelay.count() > 0)
        std::this_thread::sleep_for(m_target.packetDelay);
}

void FrameSender::send(const Ostria::CGrabResultPtr& frame)
{
    const std::lock_guard lock(m_mutex);
    const std::uint16_t id = m_nextId++;
    if (m_nextId == 0)
        m_nextId = 1; // 0 is no frame's number
    if (!frame->GrabSucceeded() || m_target.port == 0)
        return;
    m_last = {id, frame->image()};
    const std::uint32_t count = packetCount(m_last);
    for (std::uint32_t index = 0; index < count; ++index)
        transmit(packet(m_last, index));
}

void FrameSender::sendAgain(std::uint16_t frameId, std::uint32_t firstPacket,
                            std::uint32_t lastPacket)
{
    const std::lock_guard lock(m_mutex);
    if (frameId != m_last.id || !m_last.image.isValid() || m_target.port == 0)
        return;
    const std::uint32_t end = std::min(lastPacket, packetCount(m_last) - 1);
    for (std::uint32_t index = firstPacket; index <= end; ++index)
        transmit(packet(m_last, index));
}

void FrameSender::sendTestPacket()
{
    const std::lock_guard lock(m_mutex);
    if (m_target.port != 0)
        transmit(Bytes(m_target.packetSize - ipHeaders));
}

} // namespace Cameras::Emulation
