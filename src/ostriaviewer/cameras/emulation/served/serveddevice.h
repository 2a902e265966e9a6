// SPDX-License-Identifier: Apache-2.0
// What a GigE Vision server needs of the camera behind it.
#pragma once

#include "grabresult.h"
#include "registerport.h"

#include <functional>
#include <string>

namespace Cameras::Emulation {

/// What a camera tells whoever looks for cameras. Longer texts are cut off.
struct ServedIdentity
{
    std::string vendor;       ///< up to 31 bytes
    std::string model;        ///< up to 31 bytes
    std::string version;      ///< up to 31 bytes
    std::string serialNumber; ///< up to 15 bytes
};

/// A camera that can be served. Its features' registers lie from firstRegister on. Thread-safe.
class IServedDevice : public GenICam::IRegisterPort
{
public:
    using Receiver = std::function<void(const Ostria::CGrabResultPtr& frame)>;

    static constexpr std::uint64_t firstRegister = 0x10000;

    virtual ServedIdentity identity() const = 0;

    /// The GenICam description.
    virtual std::string description() const = 0;

    /// Who gets the frames, on the device's thread. An empty one ends that.
    virtual void setReceiver(Receiver receiver) = 0;

    /// Ends the acquisition, as its client has gone.
    virtual void stopAcquisition() = 0;
};

} // namespace Cameras::Emulation
