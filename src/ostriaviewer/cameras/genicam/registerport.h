// SPDX-License-Identifier: Apache-2.0
// The registers of a device, as its node map reads and writes them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Cameras::GenICam {

/// Access to a device's registers.
///
/// A node map calls it from any thread, one call at a time: it holds its own mutex meanwhile. So an
/// implementation must not wait for another thread that uses the same node map. Bytes are in the
/// order that the device description says. What the functions throw reaches people behind the
/// feature's name: "Gain: " and the reason, which need not end with a full stop.
class IRegisterPort
{
public:
    IRegisterPort() = default;
    IRegisterPort(const IRegisterPort&) = delete;
    IRegisterPort& operator=(const IRegisterPort&) = delete;
    virtual ~IRegisterPort() = default;

    /// Reads registers.
    /// \param address  of the first byte
    /// \param data     receives size bytes; lent for the call
    /// \throws ::GenICam::RuntimeException  the device refuses, with its reason
    virtual void read(std::uint64_t address, void* data, std::size_t size) = 0;

    /// Writes registers. Whatever the write sets off has happened when it returns, or can be seen
    /// in the registers while it goes on: a command's register reads back as the command's value
    /// until the command is done, then as anything else (0 by custom).
    /// \param data  size bytes; lent for the call
    /// \throws ::GenICam::RuntimeException  the device refuses, with its reason
    virtual void write(std::uint64_t address, const void* data, std::size_t size) = 0;

    /// False once no access will succeed any more. Does not wait.
    virtual bool isConnected() const { return true; }
};

} // namespace Cameras::GenICam
