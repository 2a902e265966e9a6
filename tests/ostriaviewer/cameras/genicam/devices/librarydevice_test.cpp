// SPDX-License-Identifier: Apache-2.0
// A device of the library's hears of its loss and ends where it is let go.
#include "camerarig.h"
#include "librarydevice_p.h"

// GLib names a member "signals", which Qt takes for its own.
#undef signals
#include <arv.h>

#include <atomic>
#include <future>
#include <memory>
#include <thread>

using Cameras::GenICam::LibraryDevice;

namespace {

const char lossSignal[] = "control-lost";

ArvDevice* makeDevice()
{
    GError* error = nullptr;
    ArvDevice* device = arv_fake_device_new("1", &error);
    g_clear_error(&error);
    return device;
}

void tellLoss(ArvDevice* device)
{
    g_signal_emit_by_name(device, lossSignal);
}

bool isHeard(ArvDevice* device)
{
    const guint signal = g_signal_lookup(lossSignal, ARV_TYPE_DEVICE);
    return g_signal_has_handler_pending(device, signal, 0, FALSE) != FALSE;
}

void noteThread(void* thread, GObject* /*object*/)
{
    *static_cast<std::thread::id*>(thread) = std::this_thread::get_id();
}

} // namespace

TEST(LibraryDevice, HearsOfEachLoss)
{
    ArvDevice* const device = makeDevice();
    ASSERT_NE(device, nullptr);
    int losses = 0;
    const LibraryDevice owner(device, [&losses] { ++losses; });
    tellLoss(device);
    tellLoss(device);
    EXPECT_EQ(losses, 2);
}

TEST(LibraryDevice, EndsWithItsOwner)
{
    ArvDevice* const device = makeDevice();
    ASSERT_NE(device, nullptr);
    std::thread::id ended;
    g_object_weak_ref(G_OBJECT(device), noteThread, &ended);
    {
        const LibraryDevice owner(device, [] {});
    }
    EXPECT_EQ(ended, std::this_thread::get_id());
}

// As the library does it; the loss is still being told of when the device is let go.
TEST(LibraryDevice, DoesNotEndOnTheThreadThatTellsOfItsLoss)
{
    ArvDevice* const device = makeDevice();
    ASSERT_NE(device, nullptr);
    std::thread::id ended;
    g_object_weak_ref(G_OBJECT(device), noteThread, &ended);
    std::atomic<bool> isTold = false;
    auto owner = std::make_unique<LibraryDevice>(device, [&isTold, device] {
        isTold = true;
        EXPECT_TRUE(becomes([device] { return !isHeard(device); }));
    });
    std::thread library(tellLoss, device);
    EXPECT_TRUE(becomes([&isTold] { return isTold.load(); }));
    owner.reset();
    EXPECT_EQ(ended, std::this_thread::get_id());
    library.join();
}

TEST(LibraryDevice, EndsBehindEverybodyElseWhoHoldsIt)
{
    ArvDevice* const device = makeDevice();
    ASSERT_NE(device, nullptr);
    std::thread::id ended;
    g_object_weak_ref(G_OBJECT(device), noteThread, &ended);
    std::promise<void> hasEnded;
    auto owner = std::make_unique<LibraryDevice>(device, [] {});
    g_object_ref(device);
    std::thread other([device, end = hasEnded.get_future()] {
        EXPECT_TRUE(becomes([device] { return !isHeard(device); }));
        EXPECT_EQ(end.wait_for(std::chrono::milliseconds(250)), std::future_status::timeout);
        g_object_unref(device);
    });
    owner.reset();
    hasEnded.set_value();
    EXPECT_EQ(ended, std::this_thread::get_id());
    other.join();
}
