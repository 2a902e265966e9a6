// SPDX-License-Identifier: Apache-2.0
// What every camera of the host is, whatever stands behind it.
#pragma once

#include "icamera.h"
#include "icamerainfo.h"

#include <QEnableSharedFromThis>
#include <QSharedPointer>
#include <QString>
#include <QWeakPointer>

#include <atomic>
#include <mutex>

namespace Cameras {

class CameraHandle;

/// A camera of the host: both of its faces in one object, and the exclusive rights to it. Must be
/// owned by a QSharedPointer.
///
/// While a handle with exclusive rights lives, grabbing can only be started through it; images and
/// the loss of the connection are announced by both objects. Thread-safe.
class HostCamera : public Core::CameraPoolComponents::ICamera,
                   public Core::CameraPoolComponents::ICameraInfo,
                   public QEnableSharedFromThis<HostCamera>
{
    Q_OBJECT

public:
    using CameraPtr = Core::CameraPoolComponents::CameraPtr;

    ~HostCamera() override;

    QString modelName() const override = 0; // both faces have it

    /// The cameras of one group stand together in lists.
    virtual QString groupName() const = 0;

    /// Opens the camera; nothing happens if it is open.
    /// \return  false on failure; lastErrorText says why
    virtual bool open() = 0;

    /// Ends grabbing and closes; no error if it is closed. Parameters throw from then on.
    virtual void close() = 0;

    /// For whom the camera was opened, and who may close it therefore.
    enum class Opener {
        Host,
        ControlService ///< for a part of the program that wanted exclusive rights
    };

    /// \return  what was set before; Host at first
    Opener setOpener(Opener opener) { return m_opener.exchange(opener); }

    /// A handle with exclusive rights. Its end gives them back, and ends what was grabbed by it.
    /// \return  null while another handle lives; lastErrorText says so
    CameraPtr takeExclusiveAccess();

    /// Whether a handle with exclusive rights lives.
    bool isExclusive() const;

    /// Both are refused while somebody has exclusive rights.
    bool startGrabbing() final;
    bool grabSingle(int timeoutMs) final;
    bool grabSingle() final;

    QString lastErrorText() const final;
    void clearLastError() final;
    void setLastError(const QString& text);

signals:
    /// The camera was opened or closed, or continuous grabbing began or ended; ask it. Callback, on
    /// the thread that did it, with no lock held.
    void stateChanged();

protected:
    HostCamera() = default;

    virtual bool doStartGrabbing() = 0;
    virtual bool doGrabSingle(int timeoutMs) = 0;

    /// The time-out of a single image that nobody gave one for.
    virtual int defaultTimeoutMs() const = 0;

    /// Announces an image, to be called on the camera's thread.
    void deliver(const Ostria::CGrabResultPtr& result);

    /// Announces that the connection is lost.
    void announceConnectionLost();

private:
    friend class CameraHandle;

    QSharedPointer<CameraHandle> handle() const;
    void releaseExclusiveAccess();

    std::atomic<Opener> m_opener{Opener::Host};
    mutable std::mutex m_mutex; // guards all below
    bool m_exclusive = false;
    QWeakPointer<CameraHandle> m_handle;
    QString m_lastError;
};

using HostCameraPtr = QSharedPointer<HostCamera>;

/// What people mean by a name: the one camera that is shown by it, else all of that model.
/// \param cameras  pointers to cameras
template <class List>
List camerasNamed(const List& cameras, const QString& name)
{
    List ofModel;
    for (const auto& camera : cameras) {
        if (camera->displayName() == name)
            return {camera};
        if (camera->modelName() == name)
            ofModel.append(camera);
    }
    return ofModel;
}

} // namespace Cameras
