// SPDX-License-Identifier: Apache-2.0
// What the viewer remembers from one start to the next.
#include "viewersettings.h"

#include "logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace Viewer {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::ViewerSettings)
};

QString keyOf(const QString& name)
{
    return QStringLiteral("Viewer/") + name;
}

const auto versionName = QStringLiteral("Version");

} // namespace

ViewerSettings::ViewerSettings()
{
    checkReadable();
    if (m_problem == Problem::None)
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
            m_problem = Problem::Unreadable;
            m_problemFile = file;
            return;
        }
    }
    QString aside = file + QStringLiteral(".unreadable");
    for (int number = 2; QFile::exists(aside); ++number)
        aside = QStringLiteral("%1.unreadable%2").arg(file).arg(number);
    m_isKept = QFile::rename(file, aside);
    m_problem = m_isKept ? Problem::DamagedAndKept : Problem::Damaged;
    m_problemFile = m_isKept ? aside : file;
}

void ViewerSettings::checkVersion()
{
    bool isNumber = false;
    const int written = QSettings().value(keyOf(versionName), version).toInt(&isNumber);
    if (isNumber && written <= version)
        return;
    m_isKept = false;
    m_problem = Problem::Newer;
}

// The language is known only after the settings.
QString ViewerSettings::warning() const
{
    switch (m_problem) {
    case Problem::None:
        break;
    case Problem::Unreadable:
        return Texts::tr("The settings file %1 cannot be read; the viewer starts with defaults and "
                         "remembers nothing. Check the file's permissions.")
            .arg(m_problemFile);
    case Problem::DamagedAndKept:
        return Texts::tr("The settings file is damaged; the viewer starts with defaults. The old "
                         "file was kept as %1.")
            .arg(m_problemFile);
    case Problem::Damaged:
        return Texts::tr("The settings file %1 is damaged; the viewer starts with defaults and "
                         "remembers nothing. Remove the file.")
            .arg(m_problemFile);
    case Problem::Newer:
        return Texts::tr("The settings were written by a newer viewer; this one starts with "
                         "defaults and leaves them as they are. What you change is forgotten at "
                         "the end.");
    }
    return {};
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
    settings.sync();
    if (settings.status() == QSettings::NoError || m_isLossTold)
        return;
    m_isLossTold = true;
    Core::Logging::createLogEntry(
        Core::Logging::Warning, Core::Logging::getCatId(QStringLiteral("Viewer")),
        Texts::tr(
            "The settings file %1 cannot be written; what you change is forgotten at the end. "
            "Check the file's permissions and the room on its disk.")
            .arg(settings.fileName()));
}

} // namespace Viewer
