// SPDX-License-Identifier: Apache-2.0
// A GigE Vision or USB3 Vision camera under control.
#pragma once

#include "registerport.h"
#include "transportsettings.h"

#include <QString>

#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <string>

typedef struct _ArvDevice ArvDevice;
typedef struct _ArvStream ArvStream;

namespace Cameras::GenICam {

class AccessQueue;
class DeviceWatch;
class GErrorSlot;
class LibraryDevice;

/// A camera that this program controls, as registers. Thread-safe.
///
/// Whoever waits for an answer is told at once when the camera is found to be lost, and otherwise
/// waits as long as Patience says.
class Device final : public IRegisterPort, public std::enable_shared_from_this<Device>
{
public:
    /// Takes control of a camera. Takes seconds if it does not answer.
    /// \param id  the IP address of a network camera, which is asked directly, without a broadcast;
    ///            else the library's name of a camera that hangs on USB
    /// \throws ::GenICam::RuntimeException  it does not answer, or another program controls it
    static std::shared_ptr<Device> open(const QString& id, const TransportSettings& settings = {});

    /// Gives the control back. Waits half a second for that, and not at all for a camera that has
    /// gone.
    ~Device() override;

    /// Becomes ready some time after the end of the device: when the control has been given back,
    /// or the camera has not answered.
    std::shared_future<void> released() const { return m_whenReleased; }

    /// The camera's own GenICam description.
    /// \throws ::GenICam::RuntimeException  it has none that can be read
    std::string description();

    /// A stream without buffers; owned by the caller, who keeps the device until it has given the
    /// stream back, on any thread.
    /// \throws ::GenICam::RuntimeException  the camera sends none, with the reason
    ArvStream* createStream();

    /// Is called once when the camera does not answer any more, on any thread, perhaps within a
    /// call of the device or of its node map: it must use neither, nor wait. An empty function ends
    /// that; waits for a call under way.
    void setLostHandler(std::function<void()> handler);

    bool isLost() const;

    void read(std::uint64_t address, void* data, std::size_t size) override;
    void write(std::uint64_t address, const void* data, std::size_t size) override;
    bool isConnected() const override { return !isLost(); }

private:
    Device(ArvDevice* device, QString id);

    void watch();
    void becomeLost(const QString& reason = {});
    QString lossReason() const;
    QString denial(ArvDevice* device);

    /// Works on the device; returns whether that succeeded.
    using Access = std::function<bool(ArvDevice* device, GErrorSlot& error)>;
    enum class Repetition { Harmful, Harmless };
    void access(Access access, Repetition repetition = Repetition::Harmful);

    ArvDevice* const m_device;
    const QString m_id;
    std::shared_ptr<LibraryDevice> m_libraryDevice; // owns the device
    std::shared_ptr<DeviceWatch> m_watch;           // null if it could not be made
    const std::shared_ptr<AccessQueue> m_accesses;
    const std::shared_ptr<std::promise<void>> m_released;
    const std::shared_future<void> m_whenReleased;
    mutable std::mutex m_lostMutex; // guards all below; taken before the accesses' own
    std::function<void()> m_lostHandler;
    bool m_isLost = false;
    QString m_lossReason; // empty: it does not answer
};

} // namespace Cameras::GenICam
