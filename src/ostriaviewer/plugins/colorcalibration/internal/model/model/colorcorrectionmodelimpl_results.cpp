// SPDX-License-Identifier: Apache-2.0
// The model's outcome: results object, user sets, files.
#include "colorcorrectionmodelimpl.h"

#include "baseexception.h"
#include "calibrationresult.h"
#include "camerajustify.h"
#include "guarded.h"
#include "patchresults.h"
#include "storableusersets.h"

#include <QJsonArray>
#include <QMutexLocker>

using Core::ParameterCollection::EnumerationEntry;

namespace ColorCalibration {

QJsonObject ColorCorrectionModelImpl::GetCalibrationResultsJson()
{
    const QMutexLocker lock(&m_mutex);
    return guarded("Get calibration results failed.",
                   "ColorCorrectionModelImpl::GetCalibrationResultsJson", QJsonObject(), [this] {
                       if (!isCameraOpen())
                           return QJsonObject();
                       m_resultsObject = collectResults();
                       return m_resultsObject;
                   });
}

QJsonObject ColorCorrectionModelImpl::collectResults()
{
    QVector<QColor> targets;
    GetTargetColorPatchValues(targets);
    QVector<QColor> current;
    GetCurrentColorPatchValues(current);
    const PatchResults patches = patchResults(m_initialColors, targets, current);

    m_imageCamera->StopGrabbing();
    const QString original = justify().BackupText(false);
    const QString calibrated = justify().SaveFeaturesToString();
    m_result->SetOriginalSettings(original);
    m_result->SetCalibratedSettings(calibrated);
    QJsonObject results = m_result->SettingsToJson();
    results.insert(QStringLiteral("Colors"), patches.colors);
    results.insert(QStringLiteral("PreciseColors"), patches.preciseColors);
    return results;
}

bool ColorCorrectionModelImpl::haveResults()
{
    // Without patches they were fetched when there was no image, and there may be one by now.
    if (m_resultsObject.value(QStringLiteral("Colors")).toObject().isEmpty())
        GetCalibrationResultsJson();
    return !m_resultsObject.isEmpty();
}

QJsonObject ColorCorrectionModelImpl::GetAvailableUserSetsJson()
{
    const QMutexLocker lock(&m_mutex);
    return guarded("Get available usersets failed.",
                   "ColorCorrectionModelImpl::GetAvailableUserSetsJson", QJsonObject(), [this] {
                       if (!isCameraOpen())
                           return QJsonObject();
                       return QJsonObject{{QStringLiteral("UserSets"), userSets()}};
                   });
}

QJsonArray ColorCorrectionModelImpl::userSets() const
{
    const auto parameters = m_imageCamera->ParameterCollection();
    if (!parameters)
        throw Core::Exception::BaseException(QStringLiteral("The camera is closed."));
    QJsonArray sets;
    for (const EnumerationEntry& entry : storableUserSets(*parameters))
        sets.append(QJsonObject{{entry.displayName, entry.name}});
    return sets;
}

bool ColorCorrectionModelImpl::StoreSettingsInUserSet(const QString& name, bool setAsDefault)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("Store settings in UserSet failed.",
                   "ColorCorrectionModelImpl::StoreSettingsInUserSet", false, [&] {
                       if (!isCameraOpen())
                           return false;
                       m_imageCamera->StopGrabbing();
                       justify().StoreInUserSet(name, true, setAsDefault);
                       return true;
                   });
}

QString ColorCorrectionModelImpl::UncertainUserSet() const
{
    const QMutexLocker lock(&m_mutex);
    return m_justify ? m_justify->UncertainUserSet() : QString();
}

bool ColorCorrectionModelImpl::SaveSettingsToFile(const QString& folder)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::SaveSettingsToFile", false, [&] {
        return isCameraOpen() && haveResults() && m_result->SaveSettingsFile(folder);
    });
}

bool ColorCorrectionModelImpl::SaveSummaryToFile(const QString& folder)
{
    const QMutexLocker lock(&m_mutex);
    return guarded("", "ColorCorrectionModelImpl::SaveSummaryToFile", false, [&] {
        return isCameraOpen() && haveResults() &&
               m_result->SaveSummary(folder, m_initialImage.toQImage(), m_latestImage.toQImage(),
                                     m_resultsObject);
    });
}

QString ColorCorrectionModelImpl::LastSavedFolder() const
{
    const QMutexLocker lock(&m_mutex);
    return m_result ? m_result->LastFolder() : QString();
}

} // namespace ColorCalibration
