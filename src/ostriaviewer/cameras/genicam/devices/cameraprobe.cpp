// SPDX-License-Identifier: Apache-2.0
// Whether a network camera is there.
#include "cameraprobe_p.h"

#include "cameraaddress.h"

#include <stdexcept>

namespace Cameras::GenICam {
CameraProbe::CameraProbe(const QString& id)
{
    const auto address = addressNumber(id);
    if (!address)
        return;
    try {
        m_socket.emplace(UdpAddress{0, 0}, false);
        m_camera = UdpAddress{*address, gvcpPort};
    } catch (const std::runtime_error&) {
        return; // no socket can be had: whoever opens the camera says so
    }
}

bool CameraProbe::answers()
{
    constexpr int attempts = 16;
    return !m_camera || m_question.isAnswered(*m_socket, *m_camera, attempts, patience / attempts);
}

} // namespace Cameras::GenICam
