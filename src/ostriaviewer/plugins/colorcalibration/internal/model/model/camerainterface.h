// SPDX-License-Identifier: Apache-2.0
// The camera as the wizard uses it.
#pragma once

#include "icamera.h"

#include <QImage>
#include <QString>

class QIODevice;

namespace ColorCalibration {

/// Opens and closes the camera, grabs, keeps and restores its settings.
///
/// Without an open camera each operation answers with its failure value and does nothing, unless
/// it says otherwise. No exception leaves any of them; failures are logged. Thread-safe.
class CameraInterface
{
public:
    CameraInterface() = default;
    CameraInterface(const CameraInterface&) = delete;
    CameraInterface& operator=(const CameraInterface&) = delete;
    virtual ~CameraInterface() = default;

    /// Takes the camera with exclusive rights.
    /// \return  false if the rights are refused or the camera lacks what the calibration needs; it
    ///          is given back as it was. False also while a camera is open, which stays so.
    virtual bool Open(const Core::CameraPoolComponents::CameraPtr& camera) = 0;

    /// Gives the camera back; it is closed if Open had to open it.
    virtual bool Close() = 0;

    /// One fresh image; the newest one while the camera grabs continuously.
    /// \param image      receives a copy of its own
    /// \param triggered  limits the time in which the camera has to deliver
    virtual bool GrabImage(QImage& image, bool triggered) = 0;

    /// Ends a continuous grab. True if a camera is open.
    virtual bool StopGrabbing() = 0;

    /// Applies the text of a settings file. Lines that the camera refuses are skipped. True also
    /// without an open camera.
    virtual bool LoadSettings(const QString& settings) = 0;

    /// Reads all text from the device, which stays the caller's, and applies it. False if that has
    /// no setting of a feature of the camera, or is more than a settings file can be.
    virtual bool LoadSettingsFromDevice(QIODevice* device) = 0;

    /// Switches all colour processing and all automatic functions off. True also without an open
    /// camera.
    virtual bool SetNeutralSettings() = 0;

    /// Keeps the camera's settings in memory. True also without an open camera. Made after a
    /// calibration that was kept, the backup for giving the camera back replaces those before it.
    /// \param initialImage  which of the two backups: that for the image before calibration, or
    ///                      that for giving the camera back
    virtual bool CreateSettingsBackup(bool initialImage) = 0;

    /// Writes a backup to the camera; nothing if there is none. True also without an open camera.
    virtual bool RestoreSettingsBackup(bool initialImage) = 0;

    /// Chooses a monochrome pixel format if the camera has one.
    virtual void ActivateMonoImage() = 0;

    /// Signal: the open camera cannot be reached any more.
    virtual void cameraRemoved() = 0;

    /// Whether the camera may hold other settings than the backup for giving it back, although no
    /// calibration was written since. Answers for a lost camera, too, until it is closed.
    virtual bool IsBackupOwed() const = 0;

    /// Whether the camera has the feature of at least one setting in the text of a settings file:
    /// LoadSettings would skip each line of another camera's. If not, the log says so. True also
    /// without an open camera.
    virtual bool AreOwnSettings(const QString& settings) = 0;
};

} // namespace ColorCalibration
