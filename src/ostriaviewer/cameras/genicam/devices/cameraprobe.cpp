// SPDX-License-Identifier: Apache-2.0
// Whether a network camera is there.
#include "cameraprobe_p.h"

#include <QHostAddress>

#include <stdexcept>
#include <vector>

namespace Cameras::GenICam {
namespace {

constexpr std::uint16_t controlPort = 3956;

} // namespace

CameraProbe::CameraProbe(const QString& id)
{
    const QHostAddress address(id);
    if (address.protocol() != QAbstractSocket::IPv4Protocol)
        return;
    try {
        m_socket.emplace(UdpAddress{0, 0}, false);
        m_camera = UdpAddress{address.toIPv4Address(), controlPort};
    } catch (const std::runtime_error&) {
        return; // no socket can be had: whoever opens the camera says so
    }
}

// A discovery, addressed to this camera alone. On a bad line several questions get through.
bool CameraProbe::answers()
{
    constexpr int attempts = 16;
    const std::vector<std::uint8_t> discovery = {0x42, 0x11, 0, 2, 0, 0, 0x4f, 0x50};
    if (!m_camera)
        return true;
    // What came late says nothing about now.
    while (m_socket->receive(std::chrono::milliseconds(0))) {
    }
    for (int attempt = 0; attempt < attempts; ++attempt) {
        m_socket->send(discovery, *m_camera);
        if (m_socket->receive(patience / attempts))
            return true;
    }
    return false;
}

} // namespace Cameras::GenICam
