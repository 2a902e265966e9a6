// SPDX-License-Identifier: Apache-2.0
// Whether a network camera is there.
#pragma once

#include "gvcpquestion_p.h"
#include "udpsocket.h"

#include <QString>

#include <optional>

namespace Cameras::GenICam {

/// Asks a network camera for what every camera answers to everybody at any time. For one thread.
class CameraProbe
{
public:
    /// \param id  as Device::open takes it
    explicit CameraProbe(const QString& id);

    /// \return  false if it has not answered one of several questions in time; true of cameras that
    ///          cannot be asked, such as those on USB
    bool answers();

    /// After which a camera counts as one that does not answer: far longer than any of them takes,
    /// and short enough to wait for it.
    static constexpr std::chrono::milliseconds patience{400};

private:
    std::optional<UdpAddress> m_camera;
    std::optional<UdpSocket> m_socket;
    GvcpQuestion m_question{GvcpQuestion::About::Identity};
};

} // namespace Cameras::GenICam
