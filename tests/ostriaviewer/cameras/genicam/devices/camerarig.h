// SPDX-License-Identifier: Apache-2.0
// One emulated camera, to be used in process or through GigE Vision.
#pragma once

#include "emulatedcamera.h"
#include "genicamcamera.h"
#include "gigeserver.h"
#include "helddevice.h"
#include "hostcamera.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

/// A camera with what happens to cameras in the field.
class CameraRig
{
public:
    CameraRig() = default;
    virtual ~CameraRig() = default;
    CameraRig(const CameraRig&) = delete;
    CameraRig& operator=(const CameraRig&) = delete;

    virtual Cameras::HostCameraPtr camera() const = 0;

    /// The cable is pulled, and put in again.
    virtual void vanish() = 0;
    virtual void comeBack() = 0;

    /// Another program takes the camera before this one, and gives it back.
    virtual void takeByAnother() = 0;
    virtual void giveBack() = 0;
};

class ProcessRig final : public CameraRig
{
public:
    explicit ProcessRig(const Cameras::Emulation::CameraModel& model);

    Cameras::HostCameraPtr camera() const override { return m_camera; }
    void vanish() override;
    void comeBack() override;
    void takeByAnother() override;
    void giveBack() override;

private:
    QTemporaryDir m_folder;
    QSharedPointer<Cameras::Emulation::EmulatedCamera> m_camera;
};

class NetworkRig final : public CameraRig
{
public:
    explicit NetworkRig(const Cameras::Emulation::CameraModel& model,
                        const QStringList& missingFeatures = {});
    ~NetworkRig() override { letGo(); }

    Cameras::HostCameraPtr camera() const override { return m_camera; }
    void vanish() override;
    void comeBack() override;
    void takeByAnother() override;
    void giveBack() override;

    const QSharedPointer<Cameras::GenICam::GenicamCamera>& client() const { return m_camera; }
    Cameras::Emulation::EmulatedCamera& served() { return *m_served; }
    Cameras::Emulation::GigeServer& server() { return *m_server; }

    /// The camera answers nothing from its next access on, until it is let go.
    void hold() { m_device->hold(); }
    void letGo() { m_device->letGo(); }

    /// Packets as large as the loopback interface takes without fragments of the sockets' buffers.
    static Cameras::GenICam::TransportSettings settings();
    static const char* address() { return "127.0.0.1"; }

private:
    QTemporaryDir m_folder;
    QSharedPointer<Cameras::Emulation::EmulatedCamera> m_served;
    std::shared_ptr<HeldDevice> m_device;
    std::unique_ptr<Cameras::Emulation::GigeServer> m_server;
    QSharedPointer<Cameras::GenICam::GenicamCamera> m_camera;
    QSharedPointer<Cameras::GenICam::GenicamCamera> m_other;
};

/// Waits for what no signal tells.
template <class Condition>
bool becomes(const Condition& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    bool holds = condition();
    while (!holds && std::chrono::steady_clock::now() < end) {
        std::this_thread::yield();
        holds = condition();
    }
    return holds;
}

/// Whether this process has a network of its own.
bool hasLoopback();
