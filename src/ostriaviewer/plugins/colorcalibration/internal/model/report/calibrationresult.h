// SPDX-License-Identifier: Apache-2.0
// A camera's settings before and after calibration, and the files that keep them.
#pragma once

#include <QDateTime>
#include <QImage>
#include <QJsonObject>
#include <QString>

#include <functional>

namespace ColorCalibration {

/// Holds the settings as filtered feature stream text. Reentrant.
class CalibrationResult
{
public:
    using Clock = std::function<QDateTime()>;

    /// \param clock  the time that folders and reports carry
    explicit CalibrationResult(QString cameraModel, Clock clock = &QDateTime::currentDateTime);

    /// \param text  feature stream text of the whole camera; what FilterSettings keeps is stored
    void SetOriginalSettings(const QString& text);
    void SetCalibratedSettings(const QString& text);

    /// \return  "Original" and "Calibrated", each as ParseSettings gives it
    QJsonObject SettingsToJson() const;

    /// Writes "Calibrated.cst" into a new folder below the directory.
    /// \return  false if that failed; the log says why
    bool SaveSettingsFile(const QString& directory);

    /// Writes settings, report and images into a new folder below the directory; ends with the
    /// first file that fails. Encodes the images on threads of the global pool.
    /// \param initialImage  from before the calibration
    /// \param latestImage   from behind it
    /// \param results       the results object
    /// \return  false if one of them failed; the log says why
    bool SaveSummary(const QString& directory, const QImage& initialImage,
                     const QImage& latestImage, const QJsonObject& results);

    /// The folder that the last of both made or found; empty before the first.
    QString LastFolder() const { return m_lastFolder; }

private:
    QString makeFolder(const QString& directory, const QString& stem, const QDateTime& time);

    QString m_originalSettings;
    QString m_calibratedSettings;
    QString m_cameraModel;
    QString m_lastFolder;
    Clock m_clock;
};

} // namespace ColorCalibration
