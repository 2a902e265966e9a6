// SPDX-License-Identifier: Apache-2.0
// What every network camera answers to everybody.
#pragma once

#include "udpsocket.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace Cameras::GenICam {

/// The port at which network cameras listen.
constexpr std::uint16_t gvcpPort = 3956;

/// A question that a camera answers whoever controls it, asked until the answer has come: on a bad
/// line many get lost. For one thread.
class GvcpQuestion
{
public:
    using Bytes = std::vector<std::uint8_t>;

    enum class About {
        Identity = 0x0002, ///< what a search asks everybody
        Version = 0x0080   ///< a register that every client may read
    };

    explicit GvcpQuestion(About about)
        : m_about(about)
    {}

    /// Asks anew. What others send meanwhile, or the camera in answer to an earlier call, does not
    /// count.
    /// \param patience  for each attempt
    bool isAnswered(UdpSocket& socket, const UdpAddress& camera, int attempts,
                    std::chrono::milliseconds patience);

    /// What is sent for it.
    static Bytes request(About about, std::uint16_t id);

private:
    bool hears(UdpSocket& socket, const UdpAddress& camera, std::chrono::milliseconds patience);
    bool isAnswer(const Datagram& datagram, const UdpAddress& camera) const;

    const About m_about;
    std::uint16_t m_id = 0; // of the last question; 0 is none
};

} // namespace Cameras::GenICam
