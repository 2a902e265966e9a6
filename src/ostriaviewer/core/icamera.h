// SPDX-License-Identifier: Apache-2.0
// A camera as it is used.
#pragma once

#include "coreexport.h"
#include "grabresult.h"
#include "icamerainfo.h"
#include "iparametercollection.h"

#include <QObject>
#include <QSharedPointer>

namespace Core::CameraPoolComponents {

/// A camera, or a handle to one.
///
/// A handle that the camera control service gave out carries exclusive rights: as long as it lives,
/// nobody else gets one, and grabbing by others is refused. Its end gives the rights back.
/// Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT ICamera : public QObject
{
    Q_OBJECT

public:
    ~ICamera() override;

    virtual QString modelName() const = 0;
    virtual bool isOpen() const = 0;

    /// Whether images are being delivered continuously.
    virtual bool isGrabbing() const = 0;

    /// Delivers images until stopGrabbing.
    /// \return  false if the camera is closed or refuses
    virtual bool startGrabbing() = 0;

    /// Requests one image, which arrives through cameraImageGrabbed. Returns at once.
    /// \param timeoutMs  after which the camera gives up and delivers nothing
    /// \return  false if the request is refused
    virtual bool grabSingle(int timeoutMs) = 0;

    /// The same with a time-out of the camera's own, long enough for its exposure.
    virtual bool grabSingle() = 0;

    /// Ends continuous delivery; when it returns, no further image is delivered. No error if
    /// nothing is being grabbed.
    virtual void stopGrabbing() = 0;

    /// The camera's features; null if it is closed.
    virtual ParameterCollection::ParameterCollectionPtr parameterCollection() = 0;

signals:
    /// An image arrived, or failed to: ask the result. Callback, on a thread of the camera's; the
    /// next image waits for the receivers that are connected directly.
    void cameraImageGrabbed(Core::CameraPoolComponents::CameraInfoPtr camera,
                            Ostria::CGrabResultPtr result);

    /// The camera cannot be reached any more; emitted once. Callback, on any thread.
    void cameraConnectionLost();

protected:
    using QObject::QObject;
};

using CameraPtr = QSharedPointer<ICamera>;

} // namespace Core::CameraPoolComponents
