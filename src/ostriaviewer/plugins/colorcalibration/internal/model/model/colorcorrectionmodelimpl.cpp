// SPDX-License-Identifier: Apache-2.0
// The model's frame: opening, closing, what changes by itself.
#include "colorcorrectionmodelimpl.h"

#include "baseexception.h"
#include "calibrationresult.h"
#include "camerajustify.h"
#include "chartdiscriminator.h"
#include "guarded.h"
#include "reportfailure.h"
#include "sfncgeneration.h"

#include <QMutexLocker>

using Core::CameraPoolComponents::CameraPtr;
using Core::CameraPoolComponents::ICamera;
using Core::ParameterCollection::IParameter;
using Plugin::CameraPool::ICameraControlService;
using Plugin::CameraPool::ICameraStatusService;

namespace ColorCalibration {
namespace {

constexpr int patchAreaPercent = 70;

/// Afterwards no image is on its way to a receiver any more. A camera that refuses is let go of
/// all the same.
void endDelivery(ICamera& camera)
{
    try {
        camera.stopGrabbing();
    } catch (...) {
        return;
    }
}

/// The host's live image goes on behind an opening that has failed.
void resumeDelivery(ICamera& camera)
{
    try {
        if (!camera.isGrabbing())
            camera.startGrabbing();
    } catch (...) {
        return;
    }
}

} // namespace

ColorCorrectionModelImpl::ColorCorrectionModelImpl(QObject* parent)
    : QThread(parent)
    , m_calibration(std::make_unique<ColorCalibrationV1>())
    , m_discriminator(std::make_unique<ChartDiscriminator>(patchAreaPercent))
{}

ColorCorrectionModelImpl::~ColorCorrectionModelImpl()
{
    if (m_imageCamera)
        ColorCorrectionModelImpl::Close();
}

void ColorCorrectionModelImpl::SetCameraStatusService(ICameraStatusService* service)
{
    m_statusService = service;
}

void ColorCorrectionModelImpl::SetCameraControlService(ICameraControlService* service)
{
    m_controlService = service;
}

bool ColorCorrectionModelImpl::isCameraOpen() const
{
    return m_imageCamera && m_imageCamera->IsOpen();
}

CameraJustify& ColorCorrectionModelImpl::justify() const
{
    if (!m_justify)
        throw Core::Exception::BaseException(QStringLiteral("The camera is closed."));
    return *m_justify;
}

void ColorCorrectionModelImpl::setJustify(std::shared_ptr<CameraJustify> justify)
{
    // The old one ends after the lock.
    const QMutexLocker lock(&m_justifyMutex);
    m_justify.swap(justify);
}

bool ColorCorrectionModelImpl::Open(const CameraPtr& camera)
{
    const QMutexLocker lock(&m_mutex);
    if (m_imageCamera || !camera)
        return false;
    bool wasGrabbing = false;
    m_openingFailure.clear();
    try {
        wasGrabbing = camera->isGrabbing();
        openHandle(camera);
        return true;
    } catch (...) {
        m_openingFailure = currentExceptionText();
        abandonOpening();
        if (wasGrabbing)
            resumeDelivery(*camera);
        return false;
    }
}

bool ColorCorrectionModelImpl::IsCameraOpen() const
{
    const QMutexLocker lock(&m_mutex);
    return isCameraOpen();
}

QString ColorCorrectionModelImpl::OpeningFailure() const
{
    const QMutexLocker lock(&m_mutex);
    return m_openingFailure;
}

void ColorCorrectionModelImpl::openHandle(const CameraPtr& camera)
{
    m_connectionLost = false;
    m_isCalibrationKept = false;
    // What belongs to the camera before.
    m_latestImage = Image();
    m_initialImage = Image();
    m_initialColors.clear();
    m_neutralColors.clear();
    m_currentColors.clear();
    m_detectedGain = -1.0;
    m_detectedExposure = -1.0;
    CameraPtr handle;
    if (m_statusService && m_statusService->isCameraOpen(camera)) {
        if (m_controlService)
            handle = m_controlService->getExclusiveAccess(camera);
        if (!handle)
            throw Core::Exception::BaseException(
                QStringLiteral("Get exclusive camera access failed"));
        m_attachedToOpenCamera = true;
    } else {
        if (m_controlService)
            handle = m_controlService->openWithExclusiveAccess(camera);
        if (!handle)
            throw Core::Exception::BaseException(
                QStringLiteral("Camera open with exclusive access failed"));
        m_attachedToOpenCamera = false;
    }
    attachHandle(camera, handle);
}

void ColorCorrectionModelImpl::attachHandle(const CameraPtr& camera, const CameraPtr& handle)
{
    m_camera = camera;
    m_imageCamera = new ConvertingImageCamera;
    m_imageCamera->AttachCamera(handle);
    setJustify(std::make_shared<CameraJustify>(handle));
    m_justify->DisableTestImage();
    connect(m_justify.get(), &CameraJustify::AutoBrightnessFinished, this,
            &ColorCorrectionModelImpl::AutoAdjustGray80PercentPatchFinished);
    m_result = std::make_unique<CalibrationResult>(camera->modelName());
    // The news may still be under way when this camera is closed and the next one is open. Listened
    // for before the parameters are asked for, which fails where the connection is lost already.
    const unsigned opening = ++m_openings;
    connect(handle.data(), &ICamera::cameraConnectionLost, this, [this, opening] {
        if (opening == m_openings)
            onConnectionLost();
    });
    connectParameterSignals();
    restoreLastGridPosition();
    // Nobody would ever be told of a loss that has happened before.
    if (!handle->isOpen())
        throw Core::Exception::BaseException(
            QStringLiteral("The camera has closed while it was being opened."));
}

void ColorCorrectionModelImpl::abandonOpening()
{
    try {
        releaseCamera();
    } catch (...) {
        // The camera does not answer any more; what could be given back has been.
    }
}

bool ColorCorrectionModelImpl::Close()
{
    // Before the mutex, so that a run in the middle of an image can come to its end.
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    if (!m_imageCamera)
        return false;
    return guarded("Error: Failed to close camera.", "ColorCorrectionModelImpl::Close", false,
                   [this] {
                       storeLastGridPosition();
                       releaseCamera();
                       return true;
                   });
}

/// The handle is detached and its delivery ended before anything that a receiver uses is deleted,
/// as an image may be on its way.
void ColorCorrectionModelImpl::releaseCamera()
{
    if (!m_isCalibrationKept)
        restoreTestImage();
    disconnectParameterSignals();
    m_result.reset();
    m_resultsObject = {};
    setJustify({});
    CameraPtr handle;
    if (m_imageCamera)
        handle = m_imageCamera->DetachCamera();
    if (handle)
        endDelivery(*handle);
    delete m_imageCamera.data();
    CameraPtr camera;
    camera.swap(m_camera);
    if (m_statusService)
        disconnect(m_statusService, &ICameraStatusService::cameraConnectionLost, this, nullptr);
    if (!handle)
        return;
    disconnect(handle.data(), &ICamera::cameraConnectionLost, this, nullptr);
    if (handle->isOpen() && !m_attachedToOpenCamera && m_controlService)
        m_controlService->close(camera);
}

/// The backups were made without it, as no step can work on a test image.
void ColorCorrectionModelImpl::restoreTestImage()
{
    if (!m_justify || !isCameraOpen())
        return;
    guarded("", "ColorCorrectionModelImpl::restoreTestImage", false, [this] {
        m_justify->RestoreTestImage();
        return true;
    });
}

void ColorCorrectionModelImpl::onConnectionLost()
{
    {
        const QMutexLocker lock(&m_mutex);
        // Also a word that was on its way when the camera was closed.
        if (m_connectionLost || !m_imageCamera)
            return;
        m_connectionLost = true;
    }
    emit cameraRemoved();
}

void ColorCorrectionModelImpl::connectParameterSignals()
{
    const auto parameters = m_imageCamera->ParameterCollection();
    if (!parameters)
        throw Core::Exception::BaseException(
            QStringLiteral("The camera has closed while it was being opened."));
    const auto connectTo = [this](const auto& parameter, void (ColorCorrectionModelImpl::*slot)()) {
        connect(parameter.data(), &IParameter::parameterDataChangedDecoupled, this, slot);
    };
    if (isOldGeneration(*parameters)) {
        m_gainRaw = parameters->integerParameter(QStringLiteral("GainRaw"));
        m_gain.reset();
        connectTo(m_gainRaw, &ColorCorrectionModelImpl::onGainRawChanged);
    } else {
        m_gain = parameters->floatParameter(QStringLiteral("Gain"));
        if (!m_gain || m_gain->isEmpty())
            m_gain = parameters->floatParameter(QStringLiteral("GainAbs"));
        m_gainRaw.reset();
        connectTo(m_gain, &ColorCorrectionModelImpl::onGainChanged);
    }
    m_exposure = parameters->floatParameter(QStringLiteral("ExposureTimeAbs"));
    if (m_exposure->isEmpty())
        m_exposure = parameters->floatParameter(QStringLiteral("ExposureTime"));
    connectTo(m_exposure, &ColorCorrectionModelImpl::onExposureChanged);
}

void ColorCorrectionModelImpl::disconnectParameterSignals()
{
    const auto letGo = [this](auto& parameter) {
        if (parameter)
            disconnect(parameter.data(), nullptr, this, nullptr);
        parameter.reset();
    };
    letGo(m_gain);
    letGo(m_gainRaw);
    letGo(m_exposure);
}

void ColorCorrectionModelImpl::onExposureChanged()
{
    const QMutexLocker lock(&m_mutex);
    guarded("", "ColorCorrectionModelImpl::onExposureChanged", false, [this] {
        if (m_exposure && m_exposure->isReadable())
            emit ExposureTimeValueChanged(m_exposure->value());
        return true;
    });
}

void ColorCorrectionModelImpl::onGainChanged()
{
    const QMutexLocker lock(&m_mutex);
    guarded("", "ColorCorrectionModelImpl::onGainChanged", false, [this] {
        if (m_gain && m_gain->isReadable())
            emit GainValueChanged(m_gain->value());
        return true;
    });
}

void ColorCorrectionModelImpl::onGainRawChanged()
{
    const QMutexLocker lock(&m_mutex);
    guarded("", "ColorCorrectionModelImpl::onGainRawChanged", false, [this] {
        // Reads of the raw gain divide by 100; listeners of this signal rely on the opposite.
        if (m_gainRaw && m_gainRaw->isReadable())
            emit GainValueChanged(static_cast<double>(m_gainRaw->value()) * 100.0);
        return true;
    });
}

void ColorCorrectionModelImpl::stopBrightnessRun()
{
    std::shared_ptr<CameraJustify> justify;
    {
        const QMutexLocker lock(&m_justifyMutex);
        justify = m_justify;
    }
    if (justify)
        justify->StopAutoBrightness();
}

} // namespace ColorCalibration
