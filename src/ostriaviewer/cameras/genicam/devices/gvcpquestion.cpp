// SPDX-License-Identifier: Apache-2.0
// What every network camera answers to everybody.
#include "gvcpquestion_p.h"

#include <algorithm>

namespace Cameras::GenICam {

GvcpQuestion::Bytes GvcpQuestion::request(About about, std::uint16_t id)
{
    const auto high = static_cast<std::uint8_t>(id >> 8);
    const auto low = static_cast<std::uint8_t>(id);
    if (about == About::Version)
        return {0x42, 0x01, 0, 0x80, 0, 4, high, low, 0, 0, 0, 0};
    return {0x42, 0x11, 0, 0x02, 0, 0, high, low};
}

bool GvcpQuestion::isAnswer(const Datagram& datagram, const UdpAddress& camera) const
{
    constexpr std::size_t header = 8;
    const auto& bytes = datagram.bytes;
    if (!(datagram.sender == camera) || bytes.size() < header)
        return false;
    const int kind = bytes[2] << 8 | bytes[3];
    const int id = bytes[6] << 8 | bytes[7];
    return kind == static_cast<int>(m_about) + 1 && id == m_id;
}

bool GvcpQuestion::hears(UdpSocket& socket, const UdpAddress& camera,
                         std::chrono::milliseconds patience)
{
    using std::chrono::milliseconds;
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + patience;
    for (;;) {
        const auto rest = std::chrono::ceil<milliseconds>(end - Clock::now());
        const auto datagram = socket.receive(std::max(rest, milliseconds(0)));
        if (datagram && isAnswer(*datagram, camera))
            return true;
        if (Clock::now() >= end)
            return false;
    }
}

// Repeats are the same question, as an answer to any of them will do.
bool GvcpQuestion::isAnswered(UdpSocket& socket, const UdpAddress& camera, int attempts,
                              std::chrono::milliseconds patience)
{
    m_id = m_id == 0xffff ? 1 : static_cast<std::uint16_t>(m_id + 1);
    const Bytes question = request(m_about, m_id);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        socket.send(question, camera);
        if (hears(socket, camera, patience))
            return true;
    }
    return false;
}

} // namespace Cameras::GenICam
