// SPDX-License-Identifier: Apache-2.0
// The one place that knows the names of camera parameters.
#pragma once

#include "icamera.h"
#include "patchcolors.h"

#include <QObject>
#include <QRecursiveMutex>
#include <QString>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <memory>
#include <utility>

namespace ColorCalibration {

class CalibrationInterface;
class BrightnessRun;

/// Writes groups of parameters under the names of the camera's generation.
///
/// The groups throw what the parameters throw; a group that throws leaves what it has written
/// before in the camera. A guarded write is skipped without a word where the parameter is missing
/// or not writable. A group that is handed a number that is not finite throws before it writes
/// anything. Where a group stores, it does so only after StoreInUserSet has armed it. Not
/// thread-safe: the model's mutex guards it.
class CameraJustify : public QObject
{
    Q_OBJECT

public:
    /// \param camera  shared; its parameters are asked for at each operation
    explicit CameraJustify(Core::CameraPoolComponents::CameraPtr camera, QObject* parent = nullptr);

    /// Ends a brightness run and waits for it.
    ~CameraJustify() override;

    void SetBlackLevelNeutral();
    void SetGammaNeutral();
    void SetColorTransformationNeutral();
    void SetHsbcNeutral();
    void DisableLut();
    void SetColorAdjustmentNeutral();
    void SetWhiteBalanceNeutral();
    void SetDemosaicingSimple();
    void DisableAllAutoFunctions();
    void DisableExposureAndGainAuto();
    void DisableTestImage();

    /// Brings the test images back that DisableTestImage has switched off, once. One that the
    /// camera refuses is logged.
    void RestoreTestImage();

    /// The best monochrome format that the camera has; nothing if it has none.
    void ActivateMonoPixelFormat();

    void WriteWhiteBalance(double red, double green, double blue);

    /// Writes the elements off the diagonal; each diagonal element becomes 1 minus the two others
    /// of its row as the camera has rounded them, so that grays stay gray.
    void WriteColorMatrix(const ColorMatrix& matrix);

    /// A camera without the stage is passed over with a log entry.
    void WriteColorAdjustment(const ColorAdjustment& adjustment);

    /// \param enable  switches the curve on; old generation alone
    void WriteGamma(double gamma, bool enable);

    /// Old generation alone.
    void WriteSrgbGamma(bool enable);

    /// Starts a brightness run on a thread of its own; one that is under way is ended before.
    /// \param calibration  not owned, outlives the run
    /// \param lock         what the calibration's operations lock, may be null; not owned
    void StartAutoBrightness(CalibrationInterface* calibration, QRecursiveMutex* lock = nullptr);

    /// Ends a brightness run and waits for it. The caller may hold the lock of the run.
    /// Thread-safe.
    void StopAutoBrightness();

    /// Keeps the camera's settings.
    /// \param initial  which of the two backups
    void CreateBackup(bool initial);

    /// Writes a backup to the camera; nothing if it is empty. What the camera refuses is logged
    /// unless it has the wanted value all the same. A normal backup stays owed until it has come
    /// back whole, and is written again with the next one, whenever that was made.
    void RestoreBackup(bool initial);

    /// To be told before settings change that the normal backup is to bring back.
    void OweBackup();

    /// What the camera holds now is what the user wants; earlier normal backups are settled.
    void ForgetOwedBackup();

    /// \return  whether the camera may hold other settings than a normal backup that was made
    bool IsBackupOwed() const;

    /// \param initial  which of the two backups
    /// \return  feature stream text; empty if there is none
    QString BackupText(bool initial) const;

    /// \return  all settings as feature stream text
    QString SaveFeaturesToString();

    /// Lines that the camera refuses are skipped, and each of them is logged.
    void LoadFeaturesFromString(const QString& text);

    /// Stores the settings in a user set, now and again after each group that is written later. If
    /// that fails selector and start-up set are those of before, and later groups store where they
    /// did before; if the camera refuses its start-up set, what is thrown says so. The first later
    /// group that stores again is logged, as it may be a neutral one.
    ///
    /// \param name          of the user set
    ///
    /// \param store         false disarms
    ///
    /// \param setAsDefault  the camera starts with this set
    void StoreInUserSet(const QString& name, bool store, bool setAsDefault);

    /// The user set during whose last storing the camera fell silent, so that nobody knows what it
    /// holds; empty if there is none. Storing in it anew settles that.
    QString UncertainUserSet() const;

signals:
    /// A brightness run has ended, of itself or because it was stopped. That of a run which another
    /// one has replaced is not told.
    void AutoBrightnessFinished();

private:
    /// Where the settings are stored after each group.
    struct UserSetChoice
    {
        QString name = QStringLiteral("UserSet1");
        bool isArmed = false;
        bool isDefault = false;
        /// The next group replaces what was stored, which the user has not been told yet.
        bool isReplacementUntold = false;
    };

    Core::ParameterCollection::ParameterCollectionPtr parameters() const;
    QString& backup(bool initial);
    /// \return  a line for each that the camera refused
    QStringList applyFeatures(const QString& text);
    /// \return  false if the camera has other settings than the backup's
    bool bringBack(const QString& backup);
    /// \return  empty if it cannot be read
    QString presentEntry(const QString& name) const;
    /// \param entry  empty: nothing to do
    /// \return  false if the camera has another one now
    bool restoreEntry(const QString& name, const QString& entry) const;
    void persistToUserSet();

    Core::CameraPoolComponents::CameraPtr m_camera;
    QString m_backup;
    QString m_initialBackup;
    /// A normal backup that has not come back whole yet.
    QString m_owedBackup;
    std::unique_ptr<BrightnessRun> m_brightnessRun;
    QRecursiveMutex m_brightnessRunMutex;
    std::atomic_uint m_brightnessRuns{0};
    UserSetChoice m_userSet;
    QString m_uncertainUserSet;
    QVector<std::pair<QString, QString>> m_testImages; ///< features and what they were
};

} // namespace ColorCalibration
