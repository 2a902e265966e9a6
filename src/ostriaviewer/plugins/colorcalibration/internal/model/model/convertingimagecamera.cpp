// SPDX-License-Identifier: Apache-2.0
// Between the host's camera and the model.
#include "convertingimagecamera.h"

#include "logging.h"
#include "stride.h"

#include <QEventLoop>
#include <QMutexLocker>
#include <QPointer>
#include <QTimer>

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::CameraPtr;
using Core::CameraPoolComponents::ICamera;

namespace ColorCalibration {
namespace {

constexpr int firstGrabTimeoutMs = 200;
constexpr int grabTimeoutMs = 5000;

void logFailedConversion(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(
        QStringLiteral("ostria.viewer.plugins.colorCalibration.convertingImageCamera"));
    Core::Logging::createLogEntry(Core::Logging::Debug, category, text);
}

} // namespace

ConvertingImageCamera::ConvertingImageCamera(QObject* parent)
    : QObject(parent)
{
    m_displayConverter.setOutputPixelFormat(Ostria::PixelType::BGRa8);
    m_displayConverter.setOutputOrientation(Ostria::ImageOrientation::TopDown);
    m_measuringConverter.setOutputPixelFormat(Ostria::PixelType::RGB16);
}

ConvertingImageCamera::~ConvertingImageCamera()
{
    DetachCamera();
}

void ConvertingImageCamera::AttachCamera(const CameraPtr& handle)
{
    const QMutexLocker lock(&m_mutex);
    m_camera = handle;
    connect(handle.data(), &ICamera::cameraImageGrabbed, this,
            &ConvertingImageCamera::onCameraImageGrabbed, Qt::DirectConnection);
    connect(handle.data(), &ICamera::cameraConnectionLost, this,
            &ConvertingImageCamera::onCammeraConnectionLost, Qt::AutoConnection);
}

CameraPtr ConvertingImageCamera::DetachCamera()
{
    const QMutexLocker lock(&m_mutex);
    if (m_camera) {
        disconnect(m_camera.data(), &ICamera::cameraImageGrabbed, this, nullptr);
        disconnect(m_camera.data(), &ICamera::cameraConnectionLost, this, nullptr);
    }
    CameraPtr handle;
    handle.swap(m_camera);
    return handle;
}

CameraPtr ConvertingImageCamera::reachableCamera() const
{
    const QMutexLocker lock(&m_mutex);
    return m_connectionLost ? CameraPtr() : m_camera;
}

bool ConvertingImageCamera::IsOpen() const
{
    const CameraPtr camera = reachableCamera();
    return camera && camera->isOpen();
}

bool ConvertingImageCamera::IsGrabbing() const
{
    const CameraPtr camera = reachableCamera();
    return camera && camera->isGrabbing();
}

void ConvertingImageCamera::StopGrabbing()
{
    if (const CameraPtr camera = reachableCamera())
        camera->stopGrabbing();
}

Core::ParameterCollection::ParameterCollectionPtr ConvertingImageCamera::ParameterCollection() const
{
    const CameraPtr camera = reachableCamera();
    return camera ? camera->parameterCollection()
                  : Core::ParameterCollection::ParameterCollectionPtr();
}

bool ConvertingImageCamera::GrabSingle(Image& image, bool triggered)
{
    int timeoutMs = grabTimeoutMs;
    {
        const QMutexLocker lock(&m_mutex);
        if (m_connectionLost)
            return false;
        if (m_firstGrab)
            timeoutMs = firstGrabTimeoutMs;
    }
    bool inTime = true;
    // The event loop lets through whatever its thread has to do, closing the camera included, and
    // that deletes this object.
    const QPointer<ConvertingImageCamera> self(this);
    const CameraPtr camera = reachableCamera();
    if (camera && !camera->isGrabbing())
        inTime = waitForImage(camera, timeoutMs, triggered);
    if (!self)
        return false;
    const QMutexLocker lock(&m_mutex);
    m_firstGrab = false;
    if (!inTime || m_connectionLost)
        return false;
    image = m_buffers[static_cast<std::size_t>(m_writeIndex)];
    return true;
}

bool ConvertingImageCamera::waitForImage(const CameraPtr& camera, int timeoutMs, bool triggered)
{
    QEventLoop loop;
    QTimer timer;
    bool arrived = false;
    timer.setSingleShot(true);
    // Queued, as an image may arrive before the loop runs, on this very thread even.
    const auto onImage = [&] {
        arrived = true;
        loop.quit();
    };
    connect(this, &ConvertingImageCamera::imageGrabbed, &loop, onImage, Qt::QueuedConnection);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    connect(camera.data(), &ICamera::cameraConnectionLost, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    const QPointer<ConvertingImageCamera> self(this);
    const quint64 before = receivedImages();
    const bool accepted = triggered ? camera->grabSingle(timeoutMs) : camera->grabSingle();
    if (!accepted)
        return false;
    timer.start(timeoutMs);
    loop.exec();
    // An image may be in the middle of its conversion, which a busy machine makes long.
    if (arrived || (self && receivedImages() != before))
        return true;
    // Else the image of this request could be taken for that of the next one.
    if (camera->isOpen())
        camera->stopGrabbing();
    return false;
}

// Waits for the end of a conversion.
quint64 ConvertingImageCamera::receivedImages() const
{
    const QMutexLocker lock(&m_mutex);
    return m_received;
}

void ConvertingImageCamera::onCameraImageGrabbed(CameraInfoPtr /*camera*/,
                                                 Ostria::CGrabResultPtr result)
{
    const QMutexLocker lock(&m_mutex);
    if (!result || !result->GrabSucceeded())
        return;
    Image image;
    if (!convert(result->image(), image))
        return;
    ++m_received;
    m_writeIndex = (m_writeIndex - 1) & 1;
    m_buffers[static_cast<std::size_t>(m_writeIndex)] = image;
    emit imageGrabbed();
}

bool ConvertingImageCamera::convert(const Ostria::COstriaImage& source, Image& target)
{
    Ostria::COstriaImage measuring;
    if (!toMeasuring(source, measuring))
        return false;
    return toDisplay(measuring, target);
}

bool ConvertingImageCamera::toMeasuring(const Ostria::COstriaImage& source,
                                        Ostria::COstriaImage& target)
{
    try {
        const std::size_t stride = Ostria::ComputeStride(Ostria::PixelType::RGB16, source.width());
        m_measuringConverter.setOutputPaddingX(
            Ostria::ComputePaddingX(stride, Ostria::PixelType::RGB16, source.width()));
        m_measuringConverter.Convert(target, source);
        return true;
    } catch (...) {
        logFailedConversion(QStringLiteral("Failed to convert the rgb16 image"));
        return false;
    }
}

bool ConvertingImageCamera::toDisplay(const Ostria::COstriaImage& source, Image& target)
{
    try {
        target = Image::fromCameraImage(Color32, source);
        const auto stride = static_cast<std::size_t>(target.stride());
        m_displayConverter.setOutputPaddingX(
            Ostria::ComputePaddingX(stride, Ostria::PixelType::BGRa8, target.width()));
        m_displayConverter.Convert(target.writableBuffer(),
                                   stride * static_cast<std::size_t>(target.height()), source);
        return true;
    } catch (...) {
        logFailedConversion(QStringLiteral("Failed to convert the rgb8 image"));
        return false;
    }
}

void ConvertingImageCamera::onCammeraConnectionLost()
{
    const QMutexLocker lock(&m_mutex);
    m_connectionLost = true;
}

} // namespace ColorCalibration
