// SPDX-License-Identifier: Apache-2.0
// A camera on the network or on USB.
#pragma once

#include "cameraidentity.h"
#include "framestream.h"
#include "hostcamera.h"
#include "stepqueue_p.h"
#include "transportsettings.h"

#include <QSharedPointer>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace Cameras::GenICam {

class Acquisition;
class AcquisitionFeatures;

/// A GigE Vision or USB3 Vision camera of the host.
///
/// It is asked for nothing before it is opened, and open takes control of it. When it does not
/// answer any more it is closed, and the loss is announced, on a thread of its own or in a call of
/// open that finds it first; open brings it back once it answers again, and then ends what was
/// under way. Images come on a thread of the camera's own; damaged ones are left out. After
/// grabbing, the acquisition mode is as it was before.
///
/// What the camera is told to start, stop and close it happens in that order, and holds up the
/// thread of the application object for less than half a second, another one until it is done; if
/// Patience says how long, that holds. What is not done by then still is:
/// - A start answers true, and the camera counts as grabbing. If it fails after all, the log and
///   stateChanged tell.
/// - After stopGrabbing nothing more is delivered, after close the camera is closed and parameters
///   throw, whatever the camera still has to do.
///
/// open waits for a network camera as long as that answers anything. What answers later is given
/// back.
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
    struct Opening;
    struct Beginning;

    GenicamCamera(const CameraIdentity& identity, const TransportSettings& settings);

    bool doStartGrabbing() override;
    bool doGrabSingle(int timeoutMs) override;
    int defaultTimeoutMs() const override;

    QSharedPointer<GenicamCamera> strongSelf();
    std::shared_ptr<Connection> connection() const;
    std::shared_ptr<Acquisition> acquisition() const;
    std::shared_ptr<const AcquisitionFeatures> unfinished() const;
    bool isGrabbingNow() const; // with the mutex
    void waitWhileItAnswers(const StepQueue::StepPtr& step) const;
    std::pair<QString, TransportSettings> target() const;
    bool begin(std::optional<std::chrono::milliseconds> timeout);
    void lose(const Device* device);
    void keepUnfinished(const Acquisition& ended);
    static void reportLosses(Acquisition& ended, const QString& name);
    static void giveBack(std::shared_ptr<Connection> closed);

    // Steps, on their thread.
    void carryOut(Opening& opening);
    void carryOut(Beginning& beginning);
    std::shared_ptr<Connection> connect();
    void completeIdentity(Connection& connection);

    StepQueue m_steps;

    mutable std::mutex m_mutex; // guards all below; never held while the device is used
    TransportSettings m_settings;
    CameraIdentity m_identity;
    std::shared_ptr<Connection> m_connection; // null while the camera is closed
    std::shared_ptr<Acquisition> m_acquisition;
    std::shared_ptr<const AcquisitionFeatures> m_unfinished; // what the camera is to get back
    bool m_isUnfinishedTold = false;
};

} // namespace Cameras::GenICam
