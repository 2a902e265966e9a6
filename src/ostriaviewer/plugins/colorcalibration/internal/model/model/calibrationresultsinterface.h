// SPDX-License-Identifier: Apache-2.0
// The outcome of a calibration as the wizard shows and saves it.
#pragma once

#include <QJsonObject>
#include <QString>

namespace ColorCalibration {

/// Shows what a calibration has done, and keeps it: in the camera, in files.
///
/// Without an open camera each operation answers with its failure value, false or an empty object,
/// and does nothing. No exception leaves any of them; failures are logged. Thread-safe.
class CalibrationResultsInterface
{
public:
    CalibrationResultsInterface() = default;
    CalibrationResultsInterface(const CalibrationResultsInterface&) = delete;
    CalibrationResultsInterface& operator=(const CalibrationResultsInterface&) = delete;
    virtual ~CalibrationResultsInterface() = default;

    /// The settings before and after, and the colours of all patches. Ends a continuous grab. The
    /// current colours are those of GetCurrentColorPatchValues, so that a measurement under the
    /// calibrated settings must have come before.
    /// \return  "Original" and "Calibrated" with settings, "Colors" and "PreciseColors" with
    ///          "Patch01" to "Patch24"; all leaves are texts
    virtual QJsonObject GetCalibrationResultsJson() = 0;

    /// The user sets that can be chosen now.
    /// \return  "UserSets": array of objects {name for people: name that is written}
    virtual QJsonObject GetAvailableUserSetsJson() = 0;

    /// Stores the camera's settings in one of its user sets, now and again whenever the calibration
    /// writes to the camera until it is closed, be it neutral settings.
    /// \param name          as it is written
    /// \param setAsDefault  the camera starts with this set
    virtual bool StoreSettingsInUserSet(const QString& name, bool setAsDefault) = 0;

    /// The user set during whose last storing the connection to the camera was lost: nobody knows
    /// whether it holds the new settings. Empty if there is none, and once the camera is closed.
    virtual QString UncertainUserSet() const = 0;

    /// Writes the calibrated settings as a file that LoadSettings reads, into a new folder.
    /// \param folder  in which the new one is made
    virtual bool SaveSettingsToFile(const QString& folder) = 0;

    /// Writes report, settings and images into a new folder. The report shows the results that were
    /// fetched last; where there are none they are fetched first.
    /// \param folder  in which the new one is made
    virtual bool SaveSummaryToFile(const QString& folder) = 0;
};

} // namespace ColorCalibration
