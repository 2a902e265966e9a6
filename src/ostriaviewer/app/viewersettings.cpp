// SPDX-License-Identifier: Apache-2.0
// What the viewer remembers from one start to the next.
#include "viewersettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace Viewer {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Viewer::ViewerSettings", text);
}

QString keyOf(const QString& name)
{
    return QStringLiteral("Viewer/") + name;
}

const auto versionName = QStringLiteral("Version");

} // namespace

ViewerSettings::ViewerSettings()
{
    checkReadable();
    if (m_warning.isEmpty())
        checkVersion();
}

// What stands in the file may be all that somebody has, so it is moved, not written over.
void ViewerSettings::checkReadable()
{
    QString file;
    {
        const QSettings settings;
        file = settings.fileName();
        if (settings.status() == QSettings::NoError)
            return;
        if (settings.status() == QSettings::AccessError || !QFileInfo(file).isFile()) {
            m_isKept = false;
            m_warning = tr("The settings file %1 cannot be read; the viewer starts with defaults "
                           "and remembers nothing. Check the file's permissions.")
                            .arg(file);
            return;
        }
    }
    QString aside = file + QStringLiteral(".unreadable");
    for (int number = 2; QFile::exists(aside); ++number)
        aside = QStringLiteral("%1.unreadable%2").arg(file).arg(number);
    m_isKept = QFile::rename(file, aside);
    m_warning = m_isKept
                    ? tr("The settings file is damaged; the viewer starts with defaults. The old "
                         "file was kept as %1.")
                          .arg(aside)
                    : tr("The settings file %1 is damaged; the viewer starts with defaults and "
                         "remembers nothing. Remove the file.")
                          .arg(file);
}

void ViewerSettings::checkVersion()
{
    bool isNumber = false;
    const int written = QSettings().value(keyOf(versionName), version).toInt(&isNumber);
    if (isNumber && written <= version)
        return;
    m_isKept = false;
    m_warning = tr("The settings were written by a newer viewer; this one starts with defaults and "
                   "leaves them as they are. What you change is forgotten at the end.");
}

QVariant ViewerSettings::value(const QString& name, const QVariant& defaultValue) const
{
    return m_isKept ? QSettings().value(keyOf(name), defaultValue) : defaultValue;
}

void ViewerSettings::setValue(const QString& name, const QVariant& value)
{
    if (!m_isKept)
        return;
    QSettings settings;
    settings.setValue(keyOf(versionName), version);
    settings.setValue(keyOf(name), value);
}

} // namespace Viewer
