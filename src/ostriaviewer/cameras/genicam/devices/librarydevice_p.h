// SPDX-License-Identifier: Apache-2.0
// A device of the library's, whose control may be lost at any time.
#pragma once

#include <functional>
#include <future>

typedef struct _ArvDevice ArvDevice;

namespace Cameras::GenICam {

/// Owns a device, hears of the loss of its control, and ends it on the thread that ends this.
///
/// The library tells of the loss on a thread of the device's own, holds the device while it does,
/// and joins that thread when the device ends: a device that is merely let go meanwhile would end
/// on its own thread, and the program with it.
class LibraryDevice
{
public:
    /// \param device  becomes this object's own
    /// \param lost    called on a thread of the library's for each loss
    LibraryDevice(ArvDevice* device, std::function<void()> lost);

    /// Waits until nobody else holds the device, and for a camera that does not answer some
    /// seconds. Never within the call of lost.
    ~LibraryDevice();
    LibraryDevice(const LibraryDevice&) = delete;
    LibraryDevice& operator=(const LibraryDevice&) = delete;

private:
    void stopListening();

    ArvDevice* const m_device;
    unsigned long m_handler = 0;
    std::future<void> m_whenForgotten;
};

} // namespace Cameras::GenICam
