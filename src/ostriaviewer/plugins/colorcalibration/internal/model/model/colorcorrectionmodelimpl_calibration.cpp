// SPDX-License-Identifier: Apache-2.0
// The model's calibration: grid, measuring, computing, writing.
#include "colorcorrectionmodelimpl.h"

#include "baseexception.h"
#include "camerajustify.h"
#include "chartdiscriminator.h"
#include "guarded.h"
#include "patchcolorconversion.h"
#include "sfncgeneration.h"
#include "stepkey.h"

#include <QMutexLocker>

using Core::ParameterCollection::ParameterCollectionPtr;

namespace ColorCalibration {

bool ColorCorrectionModelImpl::AutoAdjustGray80PercentPatch()
{
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    return guarded("Autoadjust failed.", "ColorCorrectionModelImpl::AutoAdjustGray80PercentPatch",
                   false, [this] {
                       if (!isCameraOpen())
                           return false;
                       justify().StartAutoBrightness(this, &m_mutex);
                       return true;
                   });
}

TrapezoidPoints ColorCorrectionModelImpl::GetGridPosition()
{
    const QMutexLocker lock(&m_mutex);
    return m_discriminator->outline();
}

bool ColorCorrectionModelImpl::SetGridPosition(const TrapezoidPoints& outline)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_discriminator->setOutline(outline);
    }
    emit GridPositionChanged();
    return true;
}

int ColorCorrectionModelImpl::GetColorPatchTrapezoids(QVector<TrapezoidPoints>& out)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetColorPatchTrapezoids", 0, [&] {
        m_discriminator->patchTrapezoids(out);
        return out.size();
    });
}

int ColorCorrectionModelImpl::GetInitialColorPatchValues(QVector<QColor>& out)
{
    const QMutexLocker lock(&m_mutex);
    out += m_initialColors;
    return out.size();
}

int ColorCorrectionModelImpl::GetTargetColorPatchValues(QVector<QColor>& out)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetTargetColorPatchValues", 0, [&] {
        out += toQColors(m_calibration->GetTargetColors(), true);
        return out.size();
    });
}

bool ColorCorrectionModelImpl::grabAndMeasure(Image& target, bool triggered)
{
    const QMutexLocker lock(&m_mutex);
    if (!isCameraOpen())
        return false;
    if (!m_imageCamera->GrabSingle(m_latestImage, triggered) || !m_latestImage.isValid())
        return false;
    if (m_discriminator->measureGrayPatch(m_latestImage.cameraImage()))
        emit Gray80PercentHitRateChanged(m_discriminator->grayHitRate());
    target = m_latestImage;
    ++m_takenImages;
    return true;
}

quint64 ColorCorrectionModelImpl::TakenImages() const
{
    return m_takenImages;
}

bool ColorCorrectionModelImpl::GrabImage(QImage& image, bool triggered)
{
    return guarded("Error: Failed to grab image.", "ColorCorrectionModelImpl::GrabImage", false,
                   [&] {
                       Image grabbed;
                       const bool succeeded = grabAndMeasure(grabbed, triggered);
                       image = grabbed.toQImage().copy();
                       return succeeded;
                   });
}

int ColorCorrectionModelImpl::GetColorPatchValues(QVector<QColor>& out, bool grabImage)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetColorPatchValues", 0,
                   [&] { return collectColors(out, grabImage); });
}

int ColorCorrectionModelImpl::collectColors(QVector<QColor>& out, bool grabImage)
{
    if (!isCameraOpen())
        return 0;
    if (grabImage || !m_imageCamera->IsGrabbing()) {
        Image grabbed;
        grabAndMeasure(grabbed, true);
    }
    m_discriminator->patchColors(out);
    if (out.isEmpty() && m_latestImage.isValid()) {
        m_discriminator->measureAllPatches(m_latestImage.cameraImage());
        m_discriminator->patchColors(out);
        emit Gray80PercentHitRateChanged(m_discriminator->grayHitRate());
    }
    return out.size();
}

void ColorCorrectionModelImpl::requireImage() const
{
    if (!m_latestImage.isValid())
        throw Core::Exception::BaseException(
            QStringLiteral("The camera delivered no image in time, so there was nothing to "
                           "measure. Check its cable, trigger and exposure time, and try again; "
                           "the first image has 200 ms, each later one 5 s."));
}

int ColorCorrectionModelImpl::GetCurrentColorPatchValues(QVector<QColor>& out)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetCurrentColorPatchValues", 0, [&] {
        if (!isCameraOpen())
            return 0;
        if (m_currentColors.isEmpty())
            m_discriminator->patchColors(m_currentColors);
        out += m_currentColors;
        return out.size();
    });
}

bool ColorCorrectionModelImpl::GetInitialCameraImage(QImage& image)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetInitialCameraImage", false, [&] {
        image = m_initialImage.toQImage().copy();
        return m_initialImage.isValid();
    });
}

bool ColorCorrectionModelImpl::ApplyInitialColorPatchValues()
{
    const QMutexLocker lock(&m_mutex);
    QVector<QColor> colors;
    GetColorPatchValues(colors, true);
    if (colors.isEmpty())
        return false;
    m_neutralColors = colors;
    return true;
}

bool ColorCorrectionModelImpl::ApplyInitialCameraImageAndPatchValues()
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::ApplyInitialCameraImageAndPatchValues", false,
                   [this] {
                       Image image;
                       if (!grabAndMeasure(image, true) || !image.isValid())
                           return false;
                       m_initialImage = image;
                       m_discriminator->measureAllPatches(image.cameraImage());
                       m_initialColors.clear();
                       m_discriminator->patchColors(m_initialColors);
                       return true;
                   });
}

bool ColorCorrectionModelImpl::ExecuteWhitebalance()
{
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    return guarded(
        "Whitebalance failed!", "ColorCorrectionModelImpl::ExecuteWhitebalance", false, [this] {
            if (!isCameraOpen())
                return false;
            m_imageCamera->StopGrabbing();
            QVector<QColor> colors;
            collectColors(colors, true);
            CameraJustify& adapter = justify();
            requireImage();
            m_calibration->SetStepColors(StepKey::Original, toPatchColors(colors, false));
            m_calibration->ExecuteStep(StepKey::WhiteBalance, StepKey::Original);
            auto& [red, green, blue] = m_settings.whiteBalance;
            m_calibration->GetWhiteBalance(red, green, blue);
            beginChange();
            adapter.WriteWhiteBalance(red, green, blue);
            return true;
        });
}

bool ColorCorrectionModelImpl::ExecuteCalibrationAndApply()
{
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    return guarded("Calibration failed.", "ColorCorrectionModelImpl::ExecuteCalibrationAndApply",
                   false, [this] {
                       if (!isCameraOpen())
                           return false;
                       m_currentColors.clear();
                       m_resultsObject = {};
                       m_imageCamera->StopGrabbing();
                       forgetMeasurement();
                       m_calibration->SetStepColors(StepKey::Original,
                                                    toPatchColors(m_neutralColors, false));
                       m_calibration->ExecuteAll();
                       beginChange();
                       writeCalibration();
                       m_isCalibrationKept = true;
                       emit CalibrationFinished();
                       return true;
                   });
}

CalibrationSettings ColorCorrectionModelImpl::LastCalibration() const
{
    const QMutexLocker lock(&m_mutex);
    return m_settings;
}

void ColorCorrectionModelImpl::writeCalibration()
{
    auto& [red, green, blue] = m_settings.whiteBalance;
    m_calibration->GetWhiteBalance(red, green, blue);
    justify().WriteWhiteBalance(red, green, blue);
    m_calibration->GetColorMatrix(m_settings.colorMatrix);
    justify().WriteColorMatrix(m_settings.colorMatrix);
    m_calibration->GetColorAdjustment(m_settings.colorAdjustment);
    justify().WriteColorAdjustment(m_settings.colorAdjustment);
    m_calibration->GetGamma(m_settings.gamma);
    justify().WriteGamma(m_settings.gamma, true);
    const auto parameters =
        m_imageCamera ? m_imageCamera->ParameterCollection() : ParameterCollectionPtr();
    m_srgbGammaApplied = parameters && isOldGeneration(*parameters);
    if (m_srgbGammaApplied)
        justify().WriteSrgbGamma(true);
}

} // namespace ColorCalibration
