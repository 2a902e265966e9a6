// SPDX-License-Identifier: Apache-2.0
// Sees to it that a camera is given back as it was.
#include "settingsguard.h"

#include "command.h"
#include "interruption.h"
#include "withoutfullstop.h"

#include <QStringList>

#include <algorithm>
#include <exception>
#include <thread>

namespace ColorCalibrate {
namespace {

const QString cameraNodeMap = QStringLiteral("@CameraDevice");

/// Without the comments, which carry the time.
QStringList settingLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.erase(
        std::remove_if(lines.begin(), lines.end(),
                       [](const QString& line) { return line.startsWith(QLatin1Char('#')); }),
        lines.end());
    return lines;
}

/// The name of the first setting that is not as it was.
QString firstDifference(const QStringList& wanted, const QStringList& found)
{
    const auto name = [](const QString& line) {
        return line.section(QLatin1Char('\t'), 0, 0);
    };
    for (int i = 0; i < wanted.size(); ++i)
        if (i >= found.size() || wanted.at(i) != found.at(i))
            return name(wanted.at(i));
    return found.size() > wanted.size() ? name(found.at(wanted.size())) : QString();
}

} // namespace

Core::ParameterCollection::ParameterCollectionPtr
requireParameters(const Cameras::HostCameraPtr& camera)
{
    const auto parameters = camera->isOpen() ? camera->parameterCollection() : nullptr;
    if (!parameters)
        throw CommandError(
            QStringLiteral("the camera \"%1\" has been disconnected").arg(camera->displayName()));
    return parameters;
}

SettingsGuard::SettingsGuard(const Cameras::HostCameraPtr& camera,
                             std::chrono::milliseconds longestAbsence)
    : m_camera(camera)
    , m_longestAbsence(longestAbsence)
{
    if (!camera->open())
        throw CommandError(QStringLiteral("the camera \"%1\" could not be opened: %2")
                               .arg(camera->displayName(), camera->lastErrorText()));
    try {
        m_settings = readSettings();
    } catch (const std::exception& error) {
        camera->close();
        throw CommandError(QStringLiteral("the settings of the camera \"%1\" cannot be read: %2")
                               .arg(camera->displayName(), QString::fromUtf8(error.what())));
    }
}

SettingsGuard::~SettingsGuard()
{
    m_camera->close();
}

QString SettingsGuard::readSettings() const
{
    QString text;
    requireParameters(m_camera)->saveFeatures(text, cameraNodeMap);
    return text;
}

QString SettingsGuard::restore(const std::function<void(const QString& step)>& tell)
{
    constexpr std::chrono::milliseconds pause(100);
    const auto end = std::chrono::steady_clock::now() + m_longestAbsence;
    const auto isWaitedFor = [&] {
        return !m_camera->isOpen() && !Interruption::isRequested() &&
               std::chrono::steady_clock::now() < end;
    };
    QString problem = tryToRestore();
    if (!problem.isEmpty() && isWaitedFor())
        tell(QStringLiteral("Waiting for the camera, to restore its settings"));
    while (!problem.isEmpty() && isWaitedFor()) {
        std::this_thread::sleep_for(pause);
        problem = tryToRestore();
    }
    if (problem.isEmpty())
        return QStringLiteral("; the camera's settings are as they were");
    return QStringLiteral(
               "; THE CAMERA'S SETTINGS COULD NOT BE RESTORED (%1): load a user set or a "
               "settings file before the camera is used")
        .arg(problem);
}

/// \return  what has kept it from that; empty if all is as it was
QString SettingsGuard::tryToRestore()
{
    try {
        if (!m_camera->open()) {
            const QString reason = Core::withoutFullStop(m_camera->lastErrorText());
            return reason.isEmpty() ? QStringLiteral("the connection is lost") : reason;
        }
        const QStringList wanted = settingLines(m_settings);
        if (settingLines(readSettings()) != wanted) {
            QString ignoredErrors;
            requireParameters(m_camera)->loadFeatures(m_settings, ignoredErrors, cameraNodeMap);
        }
        const QString difference = firstDifference(wanted, settingLines(readSettings()));
        return difference.isEmpty() ? QString()
                                    : QStringLiteral("%1 is not what it was").arg(difference);
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    }
}

} // namespace ColorCalibrate
