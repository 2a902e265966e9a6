// SPDX-License-Identifier: Apache-2.0
// Sends images as GigE Vision streams.
#pragma once

#include "grabresult.h"
#include "gvcp_p.h"
#include "udpsocket.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <random>

namespace Cameras::Emulation {

/// Sends frames in packets, and packets of the last frame again. Whoever changes the target does
/// not wait for packets that keep their distance; what was under way to another target ends.
/// Thread-safe.
class FrameSender
{
public:
    struct Target
    {
        std::uint32_t address = 0;
        std::uint16_t port = 0; ///< 0: nothing is sent
        std::size_t packetSize = 0;
        std::chrono::nanoseconds packetDelay = {};

        bool operator==(const Target& other) const;
    };

    explicit FrameSender(std::shared_ptr<UdpSocket> socket);

    void setTarget(const Target& target);

    /// Sends a frame; a failed one becomes a number that is left out.
    void send(const Ostria::CGrabResultPtr& frame);

    /// Sends packets of the last frame again, if it still is this one. Does not wait between them:
    /// whoever asks for them is the one who answers requests.
    void sendAgain(std::uint16_t frameId, std::uint32_t firstPacket, std::uint32_t lastPacket);

    /// A packet by which a client finds out what size gets through.
    void sendTestPacket();

    /// Lets that share of all packets vanish, from 0 to 1.
    void losePackets(double share);

    /// Ends each image so many bytes early; its leader tells of it as if it were whole.
    void cutImages(std::size_t bytes);

private:
    struct SentFrame
    {
        std::uint16_t id = 0;
        Ostria::COstriaImage image;
    };

    std::size_t payloadSize() const;
    std::size_t sentSize(const SentFrame& frame) const;
    std::uint32_t packetCount(const SentFrame& frame) const;
    Gvcp::Bytes packet(const SentFrame& frame, std::uint32_t index) const;
    Gvcp::Bytes leader(const SentFrame& frame) const;
    void transmit(const Gvcp::Bytes& packet);
    void transmitAll(std::unique_lock<std::mutex>& lock);

    const std::shared_ptr<UdpSocket> m_socket;

    std::mutex m_mutex; // guards all below
    std::condition_variable m_isElsewhere;
    std::uint64_t m_targets = 0; // how often there was another one
    Target m_target;
    SentFrame m_last;
    std::uint16_t m_nextId = 1;
    double m_loss = 0.0;
    std::size_t m_cut = 0; // bytes
    std::minstd_rand m_chance;
};

} // namespace Cameras::Emulation
