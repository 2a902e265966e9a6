// SPDX-License-Identifier: Apache-2.0
// A camera that exists only in the program.
#pragma once

#include "cameramodel.h"
#include "faults.h"
#include "frameloop.h"
#include "hostcamera.h"
#include "scene.h"

#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <mutex>
#include <string>

namespace Cameras::Emulation {

class FeatureValues;
class RegisterStore;

struct EmulationOptions
{
    QString settingsFolder;      ///< for the user sets; empty: the application's data folder
    QStringList missingFeatures; ///< features that this camera is to be without
    Scene scene = Scene();       ///< what stands before the camera
    bool hasTransport = false;   ///< with the features that a client needs to ask for images
};

/// An emulated camera: a GenICam description over registers, and a renderer that turns the values
/// of the features into pixels. It knows nothing of who uses it.
///
/// Frames are taken on a thread of its own. A feature that is written while frames are taken counts
/// from the next frame on. stopGrabbing and close wait for a delivery that has begun, but not for
/// long (FrameLoop::longestWait), so that they can be called with a lock held that a receiver waits
/// for; on the delivering thread they do not wait.
///
/// Opened, it has the values of the user set that "UserSetDefault" names. Thread-safe.
class EmulatedCamera final : public HostCamera
{
    Q_OBJECT

public:
    static QSharedPointer<EmulatedCamera> create(const CameraModel& model,
                                                 const EmulationOptions& options = {});
    ~EmulatedCamera() override;

    QString displayName() const override;
    QString modelName() const override { return m_model.name; }
    QString groupName() const override;

    bool open() override;
    void close() override;
    bool isOpen() const override;
    bool isGrabbing() const override;
    void stopGrabbing() override;
    Core::ParameterCollection::ParameterCollectionPtr parameterCollection() override;

    const CameraModel& model() const { return m_model; }

    /// For whoever serves the camera: its registers, and the description of them.
    const std::shared_ptr<RegisterStore>& registers() const { return m_store; }
    std::string description() const;

    /// Puts another scene before the camera, effective with the next frame: the light of a room
    /// changes while a camera is open.
    void setScene(const Scene& scene);
    Scene scene() const;

    Faults& faults() { return m_faults; }

    /// Lets a feature refuse to be written.
    /// \param afterWrites  how many writes are taken before; negative ends the refusing
    void refuseWrites(const QString& feature, int afterWrites = 0);

    /// Breaks the connection: the camera is closed and cannot be opened until it is reconnected.
    void loseConnection();
    void reconnect();

private:
    struct Device;

    EmulatedCamera(const CameraModel& model, const EmulationOptions& options);

    bool doStartGrabbing() override;
    bool doGrabSingle(int timeoutMs) override;
    int defaultTimeoutMs() const override;

    bool openDevice();
    std::shared_ptr<Device> makeDevice();
    std::shared_ptr<Device> device() const;
    FrameLoop* loop() const;
    void makeLoop();
    void shutDown();
    void updateAcquisitionLock();
    Ostria::CGrabResultPtr render(Device& device, const FeatureValues& values,
                                  std::uint64_t number);
    FrameLoop::Frame takeFrame(std::uint64_t number);
    void deliverFrame(const Ostria::CGrabResultPtr& result);

    const CameraModel m_model;
    const EmulationOptions m_options;
    const std::shared_ptr<RegisterStore> m_store;
    Faults m_faults;

    mutable std::mutex m_mutex; // guards all below; never held while receivers are called
    Scene m_scene;
    bool m_isSceneNew = false;
    bool m_isConnected = true;
    std::shared_ptr<Device> m_device;  // null while the camera is closed
    std::unique_ptr<FrameLoop> m_loop; // from the first opening on, stays until the end
};

} // namespace Cameras::Emulation
