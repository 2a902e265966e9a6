// SPDX-License-Identifier: Apache-2.0
// Between the host's camera and the model: converts what arrives, keeps the newest image.
#pragma once

#include "icamera.h"
#include "image.h"
#include "imageformatconverter.h"

#include <QObject>
#include <QRecursiveMutex>

#include <array>

namespace ColorCalibration {

/// Receives grab results, converts each into an Image and answers requests for a single one.
///
/// Thread-safe. Conversion runs on the thread that delivers; GrabSingle blocks its caller in a
/// local event loop.
class ConvertingImageCamera : public QObject
{
    Q_OBJECT

public:
    explicit ConvertingImageCamera(QObject* parent = nullptr);
    ~ConvertingImageCamera() override;

    /// Keeps the handle and listens to it.
    void AttachCamera(const Core::CameraPoolComponents::CameraPtr& handle);

    /// Lets go of the handle, also after a lost connection.
    /// \return  the handle, null if none is attached
    Core::CameraPoolComponents::CameraPtr DetachCamera();

    bool IsOpen() const;
    bool IsGrabbing() const;
    void StopGrabbing();

    /// Null when the connection is lost, no handle is attached, or the camera is closed.
    Core::ParameterCollection::ParameterCollectionPtr ParameterCollection() const;

    /// One image: a new one from a camera that is not grabbing, the newest from one that is.
    /// The first image is given 200 ms, so that a camera that does not deliver is found out soon,
    /// each later one 5 s. If its conversion has begun within that time it counts, however long
    /// that takes.
    /// \param image      receives the image; an invalid one without a handle
    /// \param triggered  gives the camera the same limit instead of its own
    /// The event loop may let a call through that deletes this object; that ends the wait too.
    /// \return  false when the connection is lost, the request is refused, or nothing came in time
    bool GrabSingle(Image& image, bool triggered);

signals:
    /// A new image is there. Emitted on the delivering thread.
    void imageGrabbed();

public slots:
    void onCameraImageGrabbed(Core::CameraPoolComponents::CameraInfoPtr camera,
                              Ostria::CGrabResultPtr result);
    void onCammeraConnectionLost();

private:
    /// For calls without the mutex: the camera may wait for a delivery, and that needs the mutex.
    Core::CameraPoolComponents::CameraPtr reachableCamera() const;
    bool waitForImage(const Core::CameraPoolComponents::CameraPtr& camera, int timeoutMs,
                      bool triggered);
    quint64 receivedImages() const;
    bool convert(const Ostria::COstriaImage& source, Image& target);
    bool toMeasuring(const Ostria::COstriaImage& source, Ostria::COstriaImage& target);
    bool toDisplay(const Ostria::COstriaImage& source, Image& target);

    Ostria::CImageFormatConverter m_displayConverter;
    Ostria::CImageFormatConverter m_measuringConverter;
    Core::CameraPoolComponents::CameraPtr m_camera;
    std::array<Image, 2> m_buffers;
    int m_writeIndex = 0;
    quint64 m_received = 0;
    bool m_connectionLost = false;
    bool m_firstGrab = true;
    mutable QRecursiveMutex m_mutex;
};

} // namespace ColorCalibration
