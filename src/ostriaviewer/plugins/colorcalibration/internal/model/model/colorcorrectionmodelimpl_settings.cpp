// SPDX-License-Identifier: Apache-2.0
// The model's care for settings: neutral state, backups, exposure and gain, the grid's position.
#include "colorcorrectionmodelimpl.h"

#include "baseexception.h"
#include "camerajustify.h"
#include "chartdiscriminator.h"
#include "guarded.h"
#include "parameterwrites.h"
#include "settingsfile.h"
#include "truncate.h"

#include <QDir>
#include <QIODevice>
#include <QMutexLocker>
#include <QPointF>
#include <QSettings>

#include <cmath>

namespace ColorCalibration {
namespace {

constexpr double rawGainScale = 100.0;

template <typename Parameter>
bool canRead(const Parameter& parameter)
{
    return parameter && !parameter->isEmpty() && parameter->isReadable();
}

template <typename Parameter>
bool canWrite(const Parameter& parameter)
{
    return parameter && isUsable(*parameter);
}

/// One corner of the grid in the settings.
struct Corner
{
    const char* key;
    QPointF atFirst; ///< as shares of the image
    QPoint (TrapezoidPoints::*get)() const;
    void (TrapezoidPoints::*set)(const QPoint&);
};

const std::array<Corner, 4>& corners()
{
    static const std::array<Corner, 4> all{{
        {"TopLeft", {0.1, 0.1}, &TrapezoidPoints::upperLeft, &TrapezoidPoints::setUpperLeft},
        {"TopRight", {0.9, 0.1}, &TrapezoidPoints::upperRight, &TrapezoidPoints::setUpperRight},
        {"BottomRight", {0.9, 0.9}, &TrapezoidPoints::lowerRight, &TrapezoidPoints::setLowerRight},
        {"BottomLeft", {0.1, 0.9}, &TrapezoidPoints::lowerLeft, &TrapezoidPoints::setLowerLeft},
    }};
    return all;
}

/// What the settings hold, or the first position where that is nothing that was stored here.
QPointF storedShare(const QSettings& settings, const Corner& corner)
{
    constexpr double farthest = 100.0;
    const QVariant stored = settings.value(QLatin1String(corner.key), corner.atFirst);
    const QPointF share = stored.toPointF();
    const bool isSane = stored.type() == QVariant::PointF && std::abs(share.x()) <= farthest &&
                        std::abs(share.y()) <= farthest;
    return isSane ? share : corner.atFirst;
}

void beginGridGroup(QSettings& settings, const QString& modelName)
{
    settings.beginGroup(QStringLiteral("ColCalPlugin"));
    settings.beginGroup(QStringLiteral("GridPosition %1").arg(modelName));
}

/// Settings are written behind the caller's back, so nobody would notice that they were not.
void requireStored(QSettings& settings)
{
    settings.sync();
    if (settings.status() != QSettings::NoError)
        throw Core::Exception::BaseException(
            QStringLiteral("The settings cannot be written to \"%1\".")
                .arg(QDir::toNativeSeparators(settings.fileName())));
}

} // namespace

void ColorCorrectionModelImpl::forgetMeasurement()
{
    m_latestImage = Image();
    m_discriminator->setOutline(m_discriminator->outline());
}

void ColorCorrectionModelImpl::beginChange()
{
    m_isCalibrationKept = false;
    justify().OweBackup();
}

bool ColorCorrectionModelImpl::StopGrabbing()
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::StopGrabbing", false, [this] {
        if (!isCameraOpen())
            return false;
        m_imageCamera->StopGrabbing();
        return true;
    });
}

bool ColorCorrectionModelImpl::LoadSettings(const QString& settings)
{
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    return guarded("Error: Load settings to camera failed.",
                   "ColorCorrectionModelImpl::LoadSettings", false, [&] {
                       if (!isCameraOpen())
                           return true;
                       m_imageCamera->StopGrabbing();
                       forgetMeasurement();
                       beginChange();
                       justify().LoadFeaturesFromString(settings);
                       return true;
                   });
}

bool ColorCorrectionModelImpl::LoadSettingsFromDevice(QIODevice* device)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::LoadSettingsFromDevice", false, [&] {
        if (!isCameraOpen() || !device)
            return false;
        const QString settings = readSettingsText(*device);
        return AreOwnSettings(settings) && LoadSettings(settings);
    });
}

bool ColorCorrectionModelImpl::AreOwnSettings(const QString& settings)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::AreOwnSettings", false, [&] {
        if (!isCameraOpen())
            return true;
        const auto parameters = m_imageCamera->ParameterCollection();
        if (parameters && !hasOwnSettings(settings, *parameters))
            throw Core::Exception::BaseException(
                QStringLiteral("The camera has none of the features in this settings file."));
        return true;
    });
}

bool ColorCorrectionModelImpl::SetNeutralSettings()
{
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    return guarded("Error: Set neutral camera settings failed.",
                   "ColorCorrectionModelImpl::SetNeutralSettings", false, [this] {
                       if (!isCameraOpen())
                           return true;
                       m_imageCamera->StopGrabbing();
                       forgetMeasurement();
                       beginChange();
                       justify().SetBlackLevelNeutral();
                       justify().SetGammaNeutral();
                       justify().SetColorTransformationNeutral();
                       justify().SetHsbcNeutral();
                       justify().DisableLut();
                       justify().SetColorAdjustmentNeutral();
                       justify().SetWhiteBalanceNeutral();
                       justify().SetDemosaicingSimple();
                       // Last, so that nothing moves the values again.
                       justify().DisableAllAutoFunctions();
                       return true;
                   });
}

bool ColorCorrectionModelImpl::CreateSettingsBackup(bool initialImage)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("Error: Backup of camera settings failed.",
                   "ColorCorrectionModelImpl::CreateSettingsBackup", false, [&] {
                       if (!isCameraOpen())
                           return true;
                       m_imageCamera->StopGrabbing();
                       justify().CreateBackup(initialImage);
                       // The settings from before a calibration that was kept are owed no more.
                       if (!initialImage && m_isCalibrationKept)
                           justify().ForgetOwedBackup();
                       return true;
                   });
}

bool ColorCorrectionModelImpl::RestoreSettingsBackup(bool initialImage)
{
    // A run that went on would write exposure time and gain over what is restored.
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    return guarded("Error: Restore of camera settings failed.",
                   "ColorCorrectionModelImpl::RestoreSettingsBackup", false, [&] {
                       m_isCalibrationKept = false;
                       if (!isCameraOpen())
                           return true;
                       m_imageCamera->StopGrabbing();
                       forgetMeasurement();
                       justify().RestoreBackup(initialImage);
                       return true;
                   });
}

bool ColorCorrectionModelImpl::IsBackupOwed() const
{
    const QMutexLocker lock(&m_mutex);
    return m_justify && !m_isCalibrationKept && m_justify->IsBackupOwed();
}

void ColorCorrectionModelImpl::ActivateMonoImage()
{
    const QMutexLocker lock(&m_mutex);
    guarded("", "ColorCorrectionModelImpl::ActivateMonoImage", false, [this] {
        if (isCameraOpen())
            justify().ActivateMonoPixelFormat();
        return true;
    });
}

void ColorCorrectionModelImpl::DisableAutoFunctions()
{
    const QMutexLocker lock(&m_mutex);
    guarded("", "ColorCorrectionModelImpl::DisableAutoFunctions", false, [this] {
        if (isCameraOpen())
            justify().DisableAllAutoFunctions();
        return true;
    });
}

bool ColorCorrectionModelImpl::GetExposureTimeRange(double& min, double& value, double& max)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetExposureTimeRange", false, [&] {
        if (!isCameraOpen() || !canRead(m_exposure))
            return false;
        min = m_exposure->minimum();
        max = m_exposure->maximum();
        value = m_exposure->value();
        return true;
    });
}

bool ColorCorrectionModelImpl::SetExposureTime(double value)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::SetExposureTime", false, [&] {
        if (!isCameraOpen() || !canWrite(m_exposure))
            return false;
        m_exposure->setValue(value);
        return true;
    });
}

double ColorCorrectionModelImpl::GetExposureTime()
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetExposureTime", -1.0, [this] {
        return isCameraOpen() && canRead(m_exposure) ? m_exposure->value() : -1.0;
    });
}

bool ColorCorrectionModelImpl::GetGainRange(double& min, double& value, double& max)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetGainRange", false, [&] {
        if (!isCameraOpen())
            return false;
        if (canRead(m_gain)) {
            min = m_gain->minimum();
            max = m_gain->maximum();
            value = m_gain->value();
            return true;
        }
        if (!canRead(m_gainRaw))
            return false;
        min = static_cast<double>(m_gainRaw->minimum()) / rawGainScale;
        max = static_cast<double>(m_gainRaw->maximum()) / rawGainScale;
        value = static_cast<double>(m_gainRaw->value()) / rawGainScale;
        return true;
    });
}

bool ColorCorrectionModelImpl::SetGain(double value)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::SetGain", false, [&] {
        if (!isCameraOpen())
            return false;
        if (canWrite(m_gain)) {
            m_gain->setValue(value);
            return true;
        }
        if (!canWrite(m_gainRaw))
            return false;
        m_gainRaw->setValue(truncateToInt(value * rawGainScale), true);
        return true;
    });
}

double ColorCorrectionModelImpl::GetGain()
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::GetGain", -1.0, [this] {
        if (!isCameraOpen())
            return -1.0;
        if (canRead(m_gain))
            return m_gain->value();
        return canRead(m_gainRaw) ? static_cast<double>(m_gainRaw->value()) / rawGainScale : -1.0;
    });
}

bool ColorCorrectionModelImpl::StoreDetectedExposureAndGain()
{
    // Values in the middle of a search are none that were found.
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    m_detectedGain = GetGain();
    m_detectedExposure = GetExposureTime();
    return m_detectedGain > -1.0 && m_detectedExposure > -1.0;
}

bool ColorCorrectionModelImpl::RestoreDetectedExposureAndGain()
{
    stopBrightnessRun();
    const QMutexLocker lock(&m_mutex);
    if (!(m_detectedGain > -1.0) || !(m_detectedExposure > -1.0))
        return false;
    const bool disabled =
        guarded("", "ColorCorrectionModelImpl::RestoreDetectedExposureAndGain", false, [this] {
            if (!isCameraOpen())
                return false;
            justify().DisableExposureAndGainAuto();
            return true;
        });
    if (!disabled)
        return false;
    SetGain(m_detectedGain);
    SetExposureTime(m_detectedExposure);
    return true;
}

bool ColorCorrectionModelImpl::readImageSize(double& width, double& height) const
{
    const auto parameters = m_imageCamera->ParameterCollection();
    if (!parameters)
        return false;
    const auto widthParameter = parameters->integerParameter(QStringLiteral("Width"));
    const auto heightParameter = parameters->integerParameter(QStringLiteral("Height"));
    if (!canRead(widthParameter) || !canRead(heightParameter))
        return false;
    width = static_cast<double>(widthParameter->value());
    height = static_cast<double>(heightParameter->value());
    return width > 0.0 && height > 0.0;
}

void ColorCorrectionModelImpl::restoreLastGridPosition()
{
    guarded("Failed to restore old grid position.",
            "ColorCorrectionModelImpl::restoreLastGridPosition", false, [this] {
                double width = 0.0;
                double height = 0.0;
                if (!readImageSize(width, height))
                    return false;
                QSettings settings;
                beginGridGroup(settings, m_camera->modelName());
                TrapezoidPoints outline;
                for (const Corner& corner : corners()) {
                    const QPointF share = storedShare(settings, corner);
                    (outline.*corner.set)(QPointF(share.x() * width, share.y() * height).toPoint());
                }
                return SetGridPosition(outline);
            });
}

void ColorCorrectionModelImpl::storeLastGridPosition()
{
    guarded("Failed to restore old grid position.",
            "ColorCorrectionModelImpl::storeLastGridPosition", false, [this] {
                double width = 0.0;
                double height = 0.0;
                if (!readImageSize(width, height))
                    return false;
                QSettings settings;
                beginGridGroup(settings, m_camera->modelName());
                const TrapezoidPoints outline = GetGridPosition();
                for (const Corner& corner : corners()) {
                    const QPoint point = (outline.*corner.get)();
                    settings.setValue(QLatin1String(corner.key),
                                      QPointF(point.x() / width, point.y() / height));
                }
                requireStored(settings);
                return true;
            });
}

} // namespace ColorCalibration
