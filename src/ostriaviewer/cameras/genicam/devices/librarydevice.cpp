// SPDX-License-Identifier: Apache-2.0
// A device of the library's, whose control may be lost at any time.
#include "librarydevice_p.h"

#include <arv.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace Cameras::GenICam {
namespace {

/// Goes when it is not called any more.
struct Listener
{
    std::function<void()> lost;
    std::promise<void> forgotten;
};

void onControlLost(ArvDevice* /*device*/, Listener* listener)
{
    listener->lost();
}

void forget(void* data, GClosure* /*closure*/)
{
    auto* const listener = static_cast<Listener*>(data);
    listener->forgotten.set_value();
    delete listener;
}

/// Waits for the others that hold an object.
class LastReference
{
public:
    static void tell(void* self, GObject* /*object*/, gboolean isLast)
    {
        static_cast<LastReference*>(self)->set(isLast != FALSE);
    }

    /// \return  whether there are none
    bool waitFor(std::chrono::milliseconds time)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, time, [this] { return m_isLast; });
    }

private:
    void set(bool isLast)
    {
        const std::lock_guard lock(m_mutex);
        m_isLast = isLast;
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isLast = false; // guarded by the mutex
};

// Whoever was letting go while we began to listen may not have told us: then we tell ourselves.
void unrefAsLast(GObject* object)
{
    constexpr std::chrono::milliseconds untilAskedAgain(100);
    LastReference reference;
    g_object_add_toggle_ref(object, LastReference::tell, &reference);
    g_object_unref(object);
    while (!reference.waitFor(untilAskedAgain)) {
        g_object_ref(object);
        g_object_unref(object);
    }
    g_object_remove_toggle_ref(object, LastReference::tell, &reference);
}

} // namespace

LibraryDevice::LibraryDevice(ArvDevice* device, std::function<void()> lost)
    : m_device(device)
{
    auto* const listener = new Listener{std::move(lost), {}};
    m_whenForgotten = listener->forgotten.get_future();
    m_handler = g_signal_connect_data(device, "control-lost", G_CALLBACK(&onControlLost), listener,
                                      forget, GConnectFlags());
}

LibraryDevice::~LibraryDevice()
{
    stopListening();
    unrefAsLast(G_OBJECT(m_device));
}

// The library holds the device for the call alone. So once nobody listens, and nobody is being
// called, it will not hold it anew.
void LibraryDevice::stopListening()
{
    g_signal_handler_disconnect(m_device, m_handler);
    m_whenForgotten.wait();
}

} // namespace Cameras::GenICam
