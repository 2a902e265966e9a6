// SPDX-License-Identifier: Apache-2.0
// Sends images as GigE Vision streams.
#include "framesender_p.h"

#include <algorithm>
#include <tuple>
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

bool FrameSender::Target::operator==(const Target& other) const
{
    return std::tie(address, port, packetSize, packetDelay) ==
           std::tie(other.address, other.port, other.packetSize, other.packetDelay);
}

FrameSender::FrameSender(std::shared_ptr<UdpSocket> socket)
    : m_socket(std::move(socket))
{}

void FrameSender::setTarget(const Target& target)
{
    Target wanted = target;
    wanted.packetSize = std::max(target.packetSize, smallestPacket);
    const std::lock_guard lock(m_mutex);
    if (wanted == m_target)
        return;
    m_target = wanted;
    ++m_targets;
    m_isElsewhere.notify_all();
}

void FrameSender::losePackets(double share)
{
    const std::lock_guard lock(m_mutex);
    m_loss = share;
}

void FrameSender::cutImages(std::size_t bytes)
{
    const std::lock_guard lock(m_mutex);
    m_cut = bytes;
}

std::size_t FrameSender::payloadSize() const
{
    return m_target.packetSize - ipHeaders - packetHeader;
}

std::size_t FrameSender::sentSize(const SentFrame& frame) const
{
    return frame.image.size() - std::min(frame.image.size(), m_cut);
}

/// Leader and trailer included.
std::uint32_t FrameSender::packetCount(const SentFrame& frame) const
{
    return static_cast<std::uint32_t>((sentSize(frame) + payloadSize() - 1) / payloadSize()) + 2;
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
    const std::size_t size = std::min(payloadSize(), sentSize(frame) - offset);
    bytes.insert(bytes.end(), frame.image.data() + offset, frame.image.data() + offset + size);
    return bytes;
}

void FrameSender::transmit(const Bytes& packet)
{
    const double chance = std::uniform_real_distribution<double>(0.0, 1.0)(m_chance);
    if (chance >= m_loss)
        m_socket->send(packet, {m_target.address, m_target.port});
}

/// The last frame, with its packets' distance.
void FrameSender::transmitAll(std::unique_lock<std::mutex>& lock)
{
    const std::uint16_t frame = m_last.id;
    const std::uint32_t end = packetCount(m_last);
    const std::uint64_t target = m_targets;
    const auto isElsewhere = [&] {
        return m_targets != target || m_last.id != frame;
    };
    for (std::uint32_t index = 0; index < end && !isElsewhere(); ++index) {
        transmit(packet(m_last, index));
        if (m_target.packetDelay.count() > 0)
            m_isElsewhere.wait_for(lock, m_target.packetDelay, isElsewhere);
    }
}

void FrameSender::send(const Ostria::CGrabResultPtr& frame)
{
    std::unique_lock lock(m_mutex);
    const std::uint16_t id = m_nextId++;
    if (m_nextId == 0)
        m_nextId = 1; // 0 is no frame's number
    if (!frame->GrabSucceeded() || m_target.port == 0)
        return;
    m_last = {id, frame->image()};
    transmitAll(lock);
}

void FrameSender::sendAgain(std::uint16_t frameId, std::uint32_t firstPacket,
                            std::uint32_t lastPacket)
{
    const std::lock_guard lock(m_mutex);
    if (frameId != m_last.id || !m_last.image.isValid() || m_target.port == 0)
        return;
    const std::uint32_t end = std::min(lastPacket, packetCount(m_last) - 1) + 1;
    for (std::uint32_t index = firstPacket; index < end; ++index)
        transmit(packet(m_last, index));
}

void FrameSender::sendTestPacket()
{
    const std::lock_guard lock(m_mutex);
    if (m_target.port != 0)
        transmit(Bytes(m_target.packetSize - ipHeaders));
}

} // namespace Cameras::Emulation
