// SPDX-License-Identifier: Apache-2.0
// A camera's settings before and after calibration, and the files that keep them.
#include "calibrationresult.h"

#include "pngencoder.h"
#include "reporthtml.h"
#include "reportlog.h"
#include "settingsfilter.h"
#include "settingsparser.h"
#include "summaryfiles.h"

#include <QFutureSynchronizer>
#include <QtConcurrentRun>

#include <utility>

namespace ColorCalibration {
namespace {

/// Without a name the folder would be made in the root of the file system.
bool isNamed(const QString& directory)
{
    if (directory.isEmpty())
        logReportFailure(QStringLiteral("Cannot save: no folder was chosen."));
    return !directory.isEmpty();
}

} // namespace

CalibrationResult::CalibrationResult(QString cameraModel, Clock clock)
    : m_cameraModel(std::move(cameraModel))
    , m_clock(std::move(clock))
{}

void CalibrationResult::SetOriginalSettings(const QString& text)
{
    m_originalSettings = FilterSettings(text);
}

void CalibrationResult::SetCalibratedSettings(const QString& text)
{
    m_calibratedSettings = FilterSettings(text);
}

QJsonObject CalibrationResult::SettingsToJson() const
{
    return {{QStringLiteral("Original"), ParseSettings(m_originalSettings)},
            {QStringLiteral("Calibrated"), ParseSettings(m_calibratedSettings)}};
}

QString CalibrationResult::makeFolder(const QString& directory, const QString& stem,
                                      const QDateTime& time)
{
    m_lastFolder = MakeOutputFolder(directory, stem, m_cameraModel, time);
    return m_lastFolder;
}

bool CalibrationResult::SaveSettingsFile(const QString& directory)
{
    if (!isNamed(directory))
        return false;
    const QString folder =
        makeFolder(directory, QStringLiteral("Camera_Settings_Tavrin"), m_clock());
    return WriteTextFile(folder + QStringLiteral("/Calibrated.cst"), m_calibratedSettings);
}

bool CalibrationResult::SaveSummary(const QString& directory, const QImage& initialImage,
                                    const QImage& latestImage, const QJsonObject& results)
{
    if (!isNamed(directory))
        return false;
    const QDateTime now = m_clock();
    const QString folder =
        makeFolder(directory, QStringLiteral("Calibration_Report"), now) + QLatin1Char('/');
    if (!WriteTextFile(folder + QStringLiteral("calibrated.cst"), m_calibratedSettings))
        return false;
    // Nearly all of the time goes into compressing, so both images are compressed side by side; the
    // files are still written, and fail, one after another.
    const QFuture<Saving::EncodedPng> initialPng =
        QtConcurrent::run(Saving::encodePng, initialImage);
    const QFuture<Saving::EncodedPng> latestPng = QtConcurrent::run(Saving::encodePng, latestImage);
    // The pixels may be lent: they are let go of before the caller goes on.
    QFutureSynchronizer<Saving::EncodedPng> atTheEnd;
    atTheEnd.addFuture(initialPng);
    atTheEnd.addFuture(latestPng);
    return WriteTextFile(folder + QStringLiteral("original.cst"), m_originalSettings) &&
           WriteTextFile(folder + QStringLiteral("calibration_report.html"),
                         BuildHtml(m_cameraModel, results, now)) &&
           WritePngFile(folder + QStringLiteral("calibrated.png"), latestPng.result()) &&
           WritePngFile(folder + QStringLiteral("original.png"), initialPng.result());
}

} // namespace ColorCalibration
