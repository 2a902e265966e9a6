// SPDX-License-Identifier: Apache-2.0
// A camera on the network or on USB.
#pragma once

#include "cameraidentity.h"
#include "framestream.h"
#include "hostcamera.h"
#include "transportsettings.h"

#include <QSharedPointer>

#include <memory>
#include <mutex>
#include <utility>

namespace Cameras::GenICam {

/// A GigE Vision or USB3 Vision camera of the host.
///
/// It is asked for nothing before it is opened, and open takes control of it. When it does not
/// answer any more it is closed, and the loss is announced, on a thread of its own or in a call of
/// open that finds it first; open brings it back once it answers again. Images come on a thread of
/// the camera's own; damaged ones are left out. After grabbing, the acquisition mode is as it was
/// before.
///
/// stopGrabbing and close wait for a delivery that has begun, but not for long
/// (FrameStream::longestWait); on the delivering thread they do not wait. Thread-safe.
class GenicamCamera final : public HostCamera
{
    Q_OBJECT

public:
    static QSharedPointer<GenicamCamera> create(const CameraIdentity& identity,
                                                const TransportSettings& settings = {});
    ~GenicamCamera() override;

    QString displayName() const override;

    /// If it was not known before, the camera's own word once it was opened.
    QString modelName() const override;
    QString groupName() const override;

    CameraIdentity identity() const;

    /// Another word on who this is, such as the one of a later search. An open camera keeps its
    /// identity. If something is new, stateChanged tells.
    void setIdentity(const CameraIdentity& identity);

    /// What counts from the next opening on.
    void setTransportSettings(const TransportSettings& settings);

    /// Takes seconds if nobody answers at a network camera's address.
    bool open() override;
    void close() override;
    bool isOpen() const override;
    bool isGrabbing() const override;
    void stopGrabbing() override;
    Core::ParameterCollection::ParameterCollectionPtr parameterCollection() override;

    /// Of the present or last grabbing; zeros if there was none since the camera was opened.
    StreamStatistics statistics() const;

private:
    struct Connection;
    struct Acquisition;

    GenicamCamera(const CameraIdentity& identity, const TransportSettings& settings);

    bool doStartGrabbing() override;
    bool doGrabSingle(int timeoutMs) override;
    int defaultTimeoutMs() const override;

    std::shared_ptr<Connection> connection() const;
    std::shared_ptr<Acquisition> acquisition() const;
    std::shared_ptr<Acquisition> exchangeAcquisition(std::shared_ptr<Acquisition> next);
    bool openDevice();
    bool closeDevice();
    std::pair<QString, TransportSettings> target() const;
    std::shared_ptr<Connection> connect();
    void completeIdentity(Connection& connection);
    bool begin(bool single, std::chrono::milliseconds timeout);
    bool keep(std::shared_ptr<Acquisition> begun, const Connection& opened);
    void end();
    void reportLosses(Acquisition& ended) const;
    void lose(const Device* device);

    std::mutex m_stepMutex; // one opening, start or end at a time; taken before m_mutex

    mutable std::mutex m_mutex; // guards all below; never held while the device is used
    TransportSettings m_settings;
    CameraIdentity m_identity;
    std::shared_ptr<Connection> m_connection; // null while the camera is closed
    std::shared_ptr<Acquisition> m_acquisition;
};

} // namespace Cameras::GenICam
