// SPDX-License-Identifier: Apache-2.0
// Notices that a network camera does not answer any more.
#include "devicewatch_p.h"

#include "gvcpquestion_p.h"
#include "udpsocket.h"

#include <arv.h>

#include <chrono>
#include <exception>
#include <utility>

namespace Cameras::GenICam {
namespace {

UdpAddress addressOf(ArvDevice* device)
{
    GSocketAddress* socket = arv_gv_device_get_device_address(ARV_GV_DEVICE(device));
    GInetAddress* address = g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(socket));
    const guint8* bytes = g_inet_address_to_bytes(address);
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = number << 8 | bytes[i];
    return {number, gvcpPort};
}

/// The library's own accesses wait for each other, so that a lost camera would be noticed after
/// several of them alone.
bool answers(GvcpQuestion& question, UdpSocket& socket, const UdpAddress& camera)
{
    constexpr int attempts = 24;
    constexpr std::chrono::milliseconds patience(100);
    return question.isAnswered(socket, camera, attempts, patience);
}

} // namespace

DeviceWatch::DeviceWatch(ArvDevice* device, std::function<void()> lost)
{
    if (!ARV_IS_GV_DEVICE(device))
        return;
    m_ended =
        std::async(std::launch::async, [this, camera = addressOf(device), lost = std::move(lost)] {
            run(camera, lost);
        }).share();
}

void DeviceWatch::end()
{
    const std::lock_guard lock(m_mutex);
    m_isEnding = true;
    m_changed.notify_all();
}

void DeviceWatch::wait() const
{
    if (m_ended.valid())
        m_ended.wait();
}

bool DeviceWatch::isEndingAfterPause()
{
    constexpr std::chrono::seconds pause(1);
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, pause, [this] { return m_isEnding; });
}

// A camera that answers its controller alone is left to the library's heartbeat.
void DeviceWatch::run(const UdpAddress& camera, const std::function<void()>& lost)
{
    try {
        UdpSocket socket({0, 0}, false);
        GvcpQuestion question(GvcpQuestion::About::Version);
        if (!answers(question, socket, camera))
            return;
        while (!isEndingAfterPause()) {
            if (answers(question, socket, camera))
                continue;
            lost();
            return;
        }
    } catch (const std::exception&) {
        return; // no socket can be had
    }
}

} // namespace Cameras::GenICam
