// SPDX-License-Identifier: Apache-2.0
// The model as the plugin and the tool hold it.
#pragma once

#include "calibrationinterface.h"
#include "calibrationresultsinterface.h"
#include "calibrationsettings.h"
#include "camerainterface.h"
#include "icameraservices.h"

#include <QObject>

namespace ColorCalibration {

class ColorCorrectionModelImpl;

/// Forwards every call and every signal to and from its implementation. Thread-safe.
class ColorCorrectionModel : public QObject,
                             public CameraInterface,
                             public CalibrationInterface,
                             public CalibrationResultsInterface
{
    Q_OBJECT

public:
    explicit ColorCorrectionModel(QObject* parent = nullptr);

    /// Closes the camera. Waits up to 30 s for the implementation's thread.
    ~ColorCorrectionModel() override;

    /// Not owned; handed in before the first Open.
    void SetCameraStatusService(Plugin::CameraPool::ICameraStatusService* service);
    void SetCameraControlService(Plugin::CameraPool::ICameraControlService* service);

    /// Switches all automatic functions of the open camera off.
    void DisableAutoFunctions();

    /// What the last calibration computed; neutral before the first.
    CalibrationSettings LastCalibration() const;

    /// How many images this object has taken. Where an operation goes on without a new image, the
    /// number stays; of a camera that is grabbing continuously the newest image counts each time.
    quint64 TakenImages() const;

    /// False also once the open camera has been lost.
    bool IsCameraOpen() const;

    /// Why the last Open failed, where the camera's own error text does not know it; empty if it
    /// did not fail.
    QString OpeningFailure() const;

    /// The folder that settings or a summary were saved into last, since the camera was opened;
    /// empty before that.
    QString LastSavedFolder() const;

    bool Open(const Core::CameraPoolComponents::CameraPtr& camera) override;
    bool Close() override;
    bool GrabImage(QImage& image, bool triggered) override;
    bool StopGrabbing() override;
    bool LoadSettings(const QString& settings) override;
    bool LoadSettingsFromDevice(QIODevice* device) override;
    bool SetNeutralSettings() override;
    bool CreateSettingsBackup(bool initialImage) override;
    bool RestoreSettingsBackup(bool initialImage) override;
    void ActivateMonoImage() override;
    bool IsBackupOwed() const override;
    bool AreOwnSettings(const QString& settings) override;

    bool AutoAdjustGray80PercentPatch() override;
    TrapezoidPoints GetGridPosition() override;
    bool SetGridPosition(const TrapezoidPoints& outline) override;
    int GetColorPatchTrapezoids(QVector<TrapezoidPoints>& out) override;
    int GetInitialColorPatchValues(QVector<QColor>& out) override;
    int GetTargetColorPatchValues(QVector<QColor>& out) override;
    int GetColorPatchValues(QVector<QColor>& out, bool grabImage) override;
    int GetCurrentColorPatchValues(QVector<QColor>& out) override;
    bool GetInitialCameraImage(QImage& image) override;
    bool ApplyInitialColorPatchValues() override;
    bool ApplyInitialCameraImageAndPatchValues() override;
    bool ExecuteCalibrationAndApply() override;
    bool GetExposureTimeRange(double& min, double& value, double& max) override;
    bool SetExposureTime(double value) override;
    double GetExposureTime() override;
    bool GetGainRange(double& min, double& value, double& max) override;
    bool SetGain(double value) override;
    double GetGain() override;
    bool ExecuteWhitebalance() override;
    bool RestoreDetectedExposureAndGain() override;
    bool StoreDetectedExposureAndGain() override;

    QJsonObject GetCalibrationResultsJson() override;
    QJsonObject GetAvailableUserSetsJson() override;
    bool StoreSettingsInUserSet(const QString& name, bool setAsDefault) override;
    QString UncertainUserSet() const override;
    bool SaveSettingsToFile(const QString& folder) override;
    bool SaveSummaryToFile(const QString& folder) override;

signals:
    void Gray80PercentHitRateChanged(double value) override;
    void ExposureTimeValueChanged(double value) override;
    void GainValueChanged(double value) override;
    void GridPositionChanged() override;
    void CalibrationFinished() override;
    void AutoAdjustGray80PercentPatchFinished() override;
    void cameraRemoved() override;

private:
    ColorCorrectionModelImpl* m_impl;
};

} // namespace ColorCalibration
