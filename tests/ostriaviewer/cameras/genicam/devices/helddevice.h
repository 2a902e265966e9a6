// SPDX-License-Identifier: Apache-2.0
// A served camera that falls silent until it is told to go on.
#pragma once

#include "serveddevice.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <utility>

/// The first access while it is held stops all answers of its server. Thread-safe.
class HeldDevice final : public Cameras::Emulation::IServedDevice
{
public:
    explicit HeldDevice(std::shared_ptr<IServedDevice> device)
        : m_device(std::move(device))
    {}

    void hold() { setHeld(true); }
    void letGo() { setHeld(false); }

    Cameras::Emulation::ServedIdentity identity() const override { return m_device->identity(); }
    std::string description() const override { return m_device->description(); }
    void setReceiver(Receiver receiver) override { m_device->setReceiver(std::move(receiver)); }
    void stopAcquisition() override { m_device->stopAcquisition(); }
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        wait();
        m_device->read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        wait();
        m_device->write(address, data, size);
    }

private:
    void setHeld(bool isHeld)
    {
        const std::lock_guard lock(m_mutex);
        m_isHeld = isHeld;
        m_changed.notify_all();
    }
    void wait()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_isHeld; });
    }

    const std::shared_ptr<IServedDevice> m_device;
    std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    bool m_isHeld = false;
};
