// SPDX-License-Identifier: Apache-2.0
// The camera adapter's care for whole states: backups, settings texts, user sets.
#include "camerajustify.h"

#include "baseexception.h"
#include "logging.h"
#include "refusedlines.h"
#include "reportfailure.h"

#include <QStringList>

#include <exception>
#include <utility>

using Core::ParameterCollection::ParameterCollectionPtr;

namespace ColorCalibration {
namespace {

const QString cameraNodeMap = QStringLiteral("@CameraDevice");
const QString setSelectorName = QStringLiteral("UserSetSelector");
const QString startSetName = QStringLiteral("UserSetDefault");

/// More than any camera's settings file has lines that could be wrong, and few enough to read.
constexpr int mostRemarks = 200;

void warn(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(adapterLogCategory());
    Core::Logging::createLogEntry(Core::Logging::Warning, category, text);
}

/// \param remark  with a place for the line
void warnOfLines(const QStringList& lines, const char* remark)
{
    for (const QString& line : lines.mid(0, mostRemarks))
        warn(QString::fromLatin1(remark).arg(line));
    if (lines.size() > mostRemarks)
        warn(QStringLiteral("At least %1 more lines of settings were skipped.")
                 .arg(lines.size() - mostRemarks));
}

} // namespace

QString& CameraJustify::backup(bool initial)
{
    return initial ? m_initialBackup : m_backup;
}

void CameraJustify::CreateBackup(bool initial)
{
    backup(initial).clear();
    backup(initial) = SaveFeaturesToString();
}

void CameraJustify::RestoreBackup(bool initial)
{
    if (backup(initial).isEmpty())
        return;
    if (initial) {
        bringBack(m_initialBackup);
        return;
    }
    OweBackup();
    // A backup that was made of a state which had not come back whole does not know the settings
    // that were missing.
    if (m_backup != m_owedBackup)
        bringBack(m_backup);
    if (bringBack(m_owedBackup))
        m_owedBackup.clear();
}

void CameraJustify::OweBackup()
{
    if (m_owedBackup.isEmpty())
        m_owedBackup = m_backup;
}

void CameraJustify::ForgetOwedBackup()
{
    m_owedBackup.clear();
}

bool CameraJustify::IsBackupOwed() const
{
    return !m_owedBackup.isEmpty();
}

QString CameraJustify::BackupText(bool initial) const
{
    return initial ? m_initialBackup : m_backup;
}

QString CameraJustify::SaveFeaturesToString()
{
    QString text;
    parameters()->saveFeatures(text, cameraNodeMap);
    return text;
}

void CameraJustify::LoadFeaturesFromString(const QString& text)
{
    warnOfLines(applyFeatures(text), "A setting was not loaded: %1");
}

QStringList CameraJustify::applyFeatures(const QString& text)
{
    QString errors;
    parameters()->loadFeatures(text, errors, cameraNodeMap);
    return errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool CameraJustify::bringBack(const QString& backup)
{
    const QStringList refused = applyFeatures(backup);
    if (refused.isEmpty())
        return true;
    const QStringList missing = unmetLines(refused, backup, *parameters(), cameraNodeMap);
    warnOfLines(missing, "A setting of the camera did not come back: %1");
    return missing.isEmpty();
}

void CameraJustify::StoreInUserSet(const QString& name, bool store, bool setAsDefault)
{
    const QString selectedBefore = store ? presentEntry(setSelectorName) : QString();
    const QString startBefore = store && setAsDefault ? presentEntry(startSetName) : QString();
    const UserSetChoice before = std::exchange(m_userSet, {name, store, setAsDefault});
    try {
        persistToUserSet();
        m_userSet.isReplacementUntold = true;
    } catch (const std::exception& failure) {
        m_userSet = before;
        restoreEntry(setSelectorName, selectedBefore);
        if (restoreEntry(startSetName, startBefore))
            throw;
        throw Core::Exception::BaseException(
            QStringLiteral("The camera may start with the user set \"%1\", which %2 saved: it "
                           "could not be told to start with \"%3\" again. %4")
                .arg(name,
                     m_uncertainUserSet == name ? QStringLiteral("may not have been")
                                                : QStringLiteral("was not"),
                     startBefore, QString::fromUtf8(failure.what())));
    }
}

QString CameraJustify::presentEntry(const QString& name) const
{
    try {
        const auto parameter = parameters()->enumerationParameter(name);
        return parameter->isReadable() ? parameter->value() : QString();
    } catch (const std::exception&) {
        // Nothing to come back to is no reason not to go on.
        return {};
    }
}

bool CameraJustify::restoreEntry(const QString& name, const QString& entry) const
{
    if (entry.isEmpty())
        return true;
    const ParameterCollectionPtr collection =
        m_camera ? m_camera->parameterCollection() : ParameterCollectionPtr();
    // What refused to change refuses to be put back, too, and is still what it was.
    return collection && (collection->enumerationParameter(name)->trySetValue(entry) ||
                          presentEntry(name) == entry);
}

void CameraJustify::persistToUserSet()
{
    if (!m_userSet.isArmed)
        return;
    const ParameterCollectionPtr collection = parameters();
    collection->enumerationParameter(setSelectorName)->setValue(m_userSet.name);
    try {
        if (m_userSet.isDefault)
            collection->enumerationParameter(startSetName)->setValue(m_userSet.name);
        collection->commandParameter(QStringLiteral("UserSetSave"))->execute();
    } catch (const std::exception&) {
        // A camera that refuses still answers. One that does not may have obeyed before.
        if (presentEntry(setSelectorName).isEmpty())
            m_uncertainUserSet = m_userSet.name;
        throw;
    }
    if (m_uncertainUserSet == m_userSet.name)
        m_uncertainUserSet.clear();
    if (std::exchange(m_userSet.isReplacementUntold, false))
        warn(QStringLiteral("The user set \"%1\" follows the camera's settings until the camera is "
                            "closed: what was stored in it has just been replaced. Store it anew "
                            "when the calibration is done.")
                 .arg(m_userSet.name));
}

QString CameraJustify::UncertainUserSet() const
{
    return m_uncertainUserSet;
}

} // namespace ColorCalibration
