// SPDX-License-Identifier: Apache-2.0
// The model as the plugin and the tool hold it.
#include "colorcorrectionmodel.h"

#include "colorcorrectionmodelimpl.h"

namespace ColorCalibration {
namespace {

constexpr unsigned long threadEndMs = 30000;

} // namespace

ColorCorrectionModel::ColorCorrectionModel(QObject* parent)
    : QObject(parent)
    , m_impl(new ColorCorrectionModelImpl(parent))
{
    using Impl = ColorCorrectionModelImpl;
    using Facade = ColorCorrectionModel;
    m_impl->start(QThread::InheritPriority);
    connect(m_impl, &Impl::Gray80PercentHitRateChanged, this, &Facade::Gray80PercentHitRateChanged,
            Qt::DirectConnection);
    connect(m_impl, &Impl::ExposureTimeValueChanged, this, &Facade::ExposureTimeValueChanged,
            Qt::DirectConnection);
    connect(m_impl, &Impl::GainValueChanged, this, &Facade::GainValueChanged, Qt::DirectConnection);
    connect(m_impl, &Impl::GridPositionChanged, this, &Facade::GridPositionChanged,
            Qt::DirectConnection);
    connect(m_impl, &Impl::CalibrationFinished, this, &Facade::CalibrationFinished,
            Qt::DirectConnection);
    connect(m_impl, &Impl::AutoAdjustGray80PercentPatchFinished, this,
            &Facade::AutoAdjustGray80PercentPatchFinished, Qt::DirectConnection);
    connect(m_impl, &Impl::cameraRemoved, this, &Facade::cameraRemoved, Qt::DirectConnection);
}

ColorCorrectionModel::~ColorCorrectionModel()
{
    m_impl->quit();
    m_impl->wait(threadEndMs);
    delete m_impl;
}

void ColorCorrectionModel::SetCameraStatusService(Plugin::CameraPool::ICameraStatusService* service)
{
    m_impl->SetCameraStatusService(service);
}

void ColorCorrectionModel::SetCameraControlService(
    Plugin::CameraPool::ICameraControlService* service)
{
    m_impl->SetCameraControlService(service);
}

void ColorCorrectionModel::DisableAutoFunctions()
{
    m_impl->DisableAutoFunctions();
}

CalibrationSettings ColorCorrectionModel::LastCalibration() const
{
    return m_impl->LastCalibration();
}

quint64 ColorCorrectionModel::TakenImages() const
{
    return m_impl->TakenImages();
}

bool ColorCorrectionModel::IsCameraOpen() const
{
    return m_impl->IsCameraOpen();
}

QString ColorCorrectionModel::OpeningFailure() const
{
    return m_impl->OpeningFailure();
}

QString ColorCorrectionModel::LastSavedFolder() const
{
    return m_impl->LastSavedFolder();
}

bool ColorCorrectionModel::Open(const Core::CameraPoolComponents::CameraPtr& camera)
{
    return m_impl->Open(camera);
}

bool ColorCorrectionModel::Close()
{
    return m_impl->Close();
}

bool ColorCorrectionModel::GrabImage(QImage& image, bool triggered)
{
    return m_impl->GrabImage(image, triggered);
}

bool ColorCorrectionModel::StopGrabbing()
{
    return m_impl->StopGrabbing();
}

bool ColorCorrectionModel::LoadSettings(const QString& settings)
{
    return m_impl->LoadSettings(settings);
}

bool ColorCorrectionModel::LoadSettingsFromDevice(QIODevice* device)
{
    return m_impl->LoadSettingsFromDevice(device);
}

bool ColorCorrectionModel::SetNeutralSettings()
{
    return m_impl->SetNeutralSettings();
}

bool ColorCorrectionModel::CreateSettingsBackup(bool initialImage)
{
    return m_impl->CreateSettingsBackup(initialImage);
}

bool ColorCorrectionModel::RestoreSettingsBackup(bool initialImage)
{
    return m_impl->RestoreSettingsBackup(initialImage);
}

bool ColorCorrectionModel::IsBackupOwed() const
{
    return m_impl->IsBackupOwed();
}

bool ColorCorrectionModel::AreOwnSettings(const QString& settings)
{
    return m_impl->AreOwnSettings(settings);
}

void ColorCorrectionModel::ActivateMonoImage()
{
    m_impl->ActivateMonoImage();
}

bool ColorCorrectionModel::AutoAdjustGray80PercentPatch()
{
    return m_impl->AutoAdjustGray80PercentPatch();
}

TrapezoidPoints ColorCorrectionModel::GetGridPosition()
{
    return m_impl->GetGridPosition();
}

bool ColorCorrectionModel::SetGridPosition(const TrapezoidPoints& outline)
{
    return m_impl->SetGridPosition(outline);
}

int ColorCorrectionModel::GetColorPatchTrapezoids(QVector<TrapezoidPoints>& out)
{
    return m_impl->GetColorPatchTrapezoids(out);
}

int ColorCorrectionModel::GetInitialColorPatchValues(QVector<QColor>& out)
{
    return m_impl->GetInitialColorPatchValues(out);
}

int ColorCorrectionModel::GetTargetColorPatchValues(QVector<QColor>& out)
{
    return m_impl->GetTargetColorPatchValues(out);
}

int ColorCorrectionModel::GetColorPatchValues(QVector<QColor>& out, bool grabImage)
{
    return m_impl->GetColorPatchValues(out, grabImage);
}

int ColorCorrectionModel::GetCurrentColorPatchValues(QVector<QColor>& out)
{
    return m_impl->GetCurrentColorPatchValues(out);
}

bool ColorCorrectionModel::GetInitialCameraImage(QImage& image)
{
    return m_impl->GetInitialCameraImage(image);
}

bool ColorCorrectionModel::ApplyInitialColorPatchValues()
{
    return m_impl->ApplyInitialColorPatchValues();
}

bool ColorCorrectionModel::ApplyInitialCameraImageAndPatchValues()
{
    return m_impl->ApplyInitialCameraImageAndPatchValues();
}

bool ColorCorrectionModel::ExecuteCalibrationAndApply()
{
    return m_impl->ExecuteCalibrationAndApply();
}

bool ColorCorrectionModel::GetExposureTimeRange(double& min, double& value, double& max)
{
    return m_impl->GetExposureTimeRange(min, value, max);
}

bool ColorCorrectionModel::SetExposureTime(double value)
{
    return m_impl->SetExposureTime(value);
}

double ColorCorrectionModel::GetExposureTime()
{
    return m_impl->GetExposureTime();
}

bool ColorCorrectionModel::GetGainRange(double& min, double& value, double& max)
{
    return m_impl->GetGainRange(min, value, max);
}

bool ColorCorrectionModel::SetGain(double value)
{
    return m_impl->SetGain(value);
}

double ColorCorrectionModel::GetGain()
{
    return m_impl->GetGain();
}

bool ColorCorrectionModel::ExecuteWhitebalance()
{
    return m_impl->ExecuteWhitebalance();
}

bool ColorCorrectionModel::RestoreDetectedExposureAndGain()
{
    return m_impl->RestoreDetectedExposureAndGain();
}

bool ColorCorrectionModel::StoreDetectedExposureAndGain()
{
    return m_impl->StoreDetectedExposureAndGain();
}

QJsonObject ColorCorrectionModel::GetCalibrationResultsJson()
{
    return m_impl->GetCalibrationResultsJson();
}

QJsonObject ColorCorrectionModel::GetAvailableUserSetsJson()
{
    return m_impl->GetAvailableUserSetsJson();
}

bool ColorCorrectionModel::StoreSettingsInUserSet(const QString& name, bool setAsDefault)
{
    return m_impl->StoreSettingsInUserSet(name, setAsDefault);
}

QString ColorCorrectionModel::UncertainUserSet() const
{
    return m_impl->UncertainUserSet();
}

bool ColorCorrectionModel::SaveSettingsToFile(const QString& folder)
{
    return m_impl->SaveSettingsToFile(folder);
}

bool ColorCorrectionModel::SaveSummaryToFile(const QString& folder)
{
    return m_impl->SaveSummaryToFile(folder);
}

} // namespace ColorCalibration
