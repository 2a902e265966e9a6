// SPDX-License-Identifier: Apache-2.0
// The one object behind the wizard.
#pragma once

#include "calibrationinterface.h"
#include "calibrationresultsinterface.h"
#include "calibrationsettings.h"
#include "camerainterface.h"
#include "colorcalibrationv1.h"
#include "convertingimagecamera.h"
#include "icameraservices.h"
#include "iparametercollection.h"
#include "patchcolors.h"

#include <QJsonArray>
#include <QMutex>
#include <QPointer>
#include <QRecursiveMutex>
#include <QThread>

#include <atomic>
#include <memory>

namespace ColorCalibration {

class CalibrationResult;
class CameraJustify;
class ChartDiscriminator;

/// Owns everything that lasts while a camera is open, and the colours measured.
///
/// Thread-safe: every operation takes the recursive mutex. Signals are emitted on the caller's
/// thread, changes of parameters and the loss of the camera on the thread that the object lives in.
/// The thread that this object is runs an idle event loop.
class ColorCorrectionModelImpl : public QThread,
                                 public CameraInterface,
                                 public CalibrationInterface,
                                 public CalibrationResultsInterface
{
    Q_OBJECT

public:
    explicit ColorCorrectionModelImpl(QObject* parent = nullptr);
    ~ColorCorrectionModelImpl() override;

    /// Not owned; handed in before the first Open. Null: no camera can be opened.
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
    using CameraPtr = Core::CameraPoolComponents::CameraPtr;

    bool isCameraOpen() const;

    /// The adapter. An event loop inside of an operation may have let a Close through.
    /// \throws Core::Exception::BaseException  the camera is closed
    CameraJustify& justify() const;

    void setJustify(std::shared_ptr<CameraJustify> justify);
    void openHandle(const CameraPtr& camera);
    void attachHandle(const CameraPtr& camera, const CameraPtr& handle);
    void abandonOpening();
    void releaseCamera();
    void restoreTestImage();

    /// Settings are about to be written. A calibration counts as kept when it is written whole.
    void beginChange();

    /// What was measured belongs to settings that the camera will not have any more.
    void forgetMeasurement();
    void onConnectionLost();
    void stopBrightnessRun();

    void connectParameterSignals();
    void disconnectParameterSignals();
    void onExposureChanged();
    void onGainChanged();
    void onGainRawChanged();

    void restoreLastGridPosition();
    void storeLastGridPosition();
    bool readImageSize(double& width, double& height) const;

    bool grabAndMeasure(Image& target, bool triggered);
    int collectColors(QVector<QColor>& out, bool grabImage);

    /// Without one there is nothing to compute from, and the numbers would blame the chart.
    /// \throws Core::Exception::BaseException  none has come since settings changed
    void requireImage() const;
    void writeCalibration();
    QJsonArray userSets() const;
    QJsonObject collectResults();

    /// \return  false if there are none and they cannot be fetched
    bool haveResults();

    QPointer<ConvertingImageCamera> m_imageCamera;
    bool m_attachedToOpenCamera = false;
    bool m_connectionLost = false;
    /// Nothing has been restored since the last calibration.
    bool m_isCalibrationKept = false;
    QString m_openingFailure;
    std::atomic_uint m_openings{0};
    std::shared_ptr<CameraJustify> m_justify;
    /// Guards the pointer m_justify alone, for those who must not wait for a grab.
    mutable QMutex m_justifyMutex;
    std::unique_ptr<ColorCalibrationV1> m_calibration;
    Core::ParameterCollection::FloatParameterPtr m_exposure;
    Core::ParameterCollection::IntegerParameterPtr m_gainRaw;
    Core::ParameterCollection::FloatParameterPtr m_gain;
    std::unique_ptr<ChartDiscriminator> m_discriminator;
    QVector<QColor> m_neutralColors;
    QVector<QColor> m_currentColors;
    QVector<QColor> m_initialColors;
    CalibrationSettings m_settings;
    bool m_srgbGammaApplied = false;
    std::unique_ptr<CalibrationResult> m_result;
    /// What was fetched last; empty before, and again from the next calibration on.
    QJsonObject m_resultsObject;
    Image m_initialImage;
    Image m_latestImage;
    std::atomic<quint64> m_takenImages{0};
    double m_detectedGain = -1.0;
    double m_detectedExposure = -1.0;
    mutable QRecursiveMutex m_mutex;
    Plugin::CameraPool::ICameraStatusService* m_statusService = nullptr;
    Plugin::CameraPool::ICameraControlService* m_controlService = nullptr;
    CameraPtr m_camera;
};

} // namespace ColorCalibration
