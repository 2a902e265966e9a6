// SPDX-License-Identifier: Apache-2.0
// Serves a camera of this program as a GigE Vision device.
#pragma once

#include "serveddevice.h"

#include <cstddef>
#include <memory>
#include <string>

namespace Cameras::Emulation {

/// A GigE Vision device from its construction to its end: answers discoveries, one client controls
/// it and gets its images until the client goes or is not heard of for the heartbeat's time. Lost
/// packets are sent again where the client asks for them. Thread-safe.
class GigeServer
{
public:
    /// \param address  an IPv4 address of this machine
    /// \throws std::runtime_error  it cannot be served there, with the reason
    GigeServer(std::shared_ptr<IServedDevice> device, const std::string& address);

    /// Ends serving; a client finds out by its heartbeat.
    ~GigeServer();
    GigeServer(const GigeServer&) = delete;
    GigeServer& operator=(const GigeServer&) = delete;

    /// Lets that share of all image packets vanish, from 0 to 1.
    void losePackets(double share);

    /// Ends each image so many bytes early, of which nothing but its size tells.
    void cutImages(std::size_t bytes);

    /// Lets that share of the requests vanish, and of the answers to the others, from 0 to 1.
    void loseControlPackets(double share);

    /// Lets that many of the next requests vanish by which a client gives the control back.
    void loseReleases(int count);

    /// Behaves from the next request on as if the client that has control had not been heard for
    /// too long.
    void forgetController();

private:
    class Worker;
    const std::unique_ptr<Worker> m_worker;
};

} // namespace Cameras::Emulation
