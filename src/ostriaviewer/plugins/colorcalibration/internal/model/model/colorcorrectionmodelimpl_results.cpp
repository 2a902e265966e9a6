// SPDX-License-Identifier: Apache-2.0
// The model's outcome: results object, user sets, files.
#include "colorcorrectionmodelimpl.h"

#include "baseexception.h"
#include "camerajustify.h"
#include "guarded.h"

#include <QJsonArray>
#include <QMutexLocker>

using Core::ParameterCollection::EnumerationEntry;

namespace ColorCalibration {

QJsonObject ColorCorrectionModelImpl::GetCalibrationResultsJson()
{
    return {};
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
    const auto selector = parameters->enumerationParameter(QStringLiteral("UserSetSelector"));
    QJsonArray sets;
    for (const EnumerationEntry& entry : selector->entries()) {
        if (entry.isSettable && entry.name.contains(QLatin1String("userset"), Qt::CaseInsensitive))
            sets.append(QJsonObject{{entry.displayName, entry.name}});
    }
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

bool ColorCorrectionModelImpl::SaveSettingsToFile(const QString& folder)
{
    Q_UNUSED(folder)
    return false;
}

bool ColorCorrectionModelImpl::SaveSummaryToFile(const QString& folder)
{
    Q_UNUSED(folder)
    return false;
}

} // namespace ColorCalibration
