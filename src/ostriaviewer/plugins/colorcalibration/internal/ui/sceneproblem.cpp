// SPDX-License-Identifier: Apache-2.0
// From errors of the QML engine to a text that says what to do.
#include "sceneproblem.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace ColorCalibration {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SceneProblem)
};

#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
constexpr bool hasPackages = false;
#else
constexpr bool hasPackages = true;
#endif

QString headline()
{
    return Texts::tr("The Color Calibrator cannot be shown.");
}

// Names of Debian's packages; elsewhere the module's own name is the best hint.
QString packageOf(const QString& module)
{
    static const QHash<QString, QString> packages{
        {QStringLiteral("QtQuick"), QStringLiteral("qml-module-qtquick2")},
        {QStringLiteral("QtQuick.Window"), QStringLiteral("qml-module-qtquick-window2")},
        {QStringLiteral("QtQuick.PrivateWidgets"),
         QStringLiteral("qml-module-qtquick-privatewidgets")},
        {QStringLiteral("QtGraphicalEffects"), QStringLiteral("qml-module-qtgraphicaleffects")},
        {QStringLiteral("QtMultimedia"), QStringLiteral("qml-module-qtmultimedia")},
        {QStringLiteral("Qt.labs.settings"), QStringLiteral("qml-module-qt-labs-settings")},
    };
    static const QRegularExpression notInNames(QStringLiteral("[^a-z0-9]+"));
    const QString derived =
        QStringLiteral("qml-module-") + module.toLower().replace(notInNames, QStringLiteral("-"));
    return packages.value(module, derived);
}

// Where there are no packages, the modules come with the viewer.
QString remedyFor(const QString& module)
{
    if (!hasPackages)
        return Texts::tr("Install the viewer again.");
    return Texts::tr("Install the package %1, then start the Color Calibrator again.")
        .arg(packageOf(module));
}

QString missingModule(const QQmlError& error)
{
    static const QRegularExpression form(QStringLiteral(
        "(?:module \"([^\"]+)\" is not installed|cannot be loaded for module \"([^\"]+)\")"));
    const QRegularExpressionMatch match = form.match(error.description());
    return match.captured(1) + match.captured(2);
}

bool isMissingFile(const QQmlError& error)
{
    static const QRegularExpression form(
        QStringLiteral("No such file or directory|File not found|network error|unavailable$"),
        QRegularExpression::CaseInsensitiveOption);
    return form.match(error.description()).hasMatch();
}

QString adviceOn(const QQmlError& error)
{
    const QString module = missingModule(error);
    if (!module.isEmpty())
        return Texts::tr("The QML module \"%1\" is missing or damaged. %2")
            .arg(module, remedyFor(module));
    if (isMissingFile(error))
        return Texts::tr("%1 is missing. Install the viewer again.").arg(error.url().toString());
    return error.toString();
}

} // namespace

bool leavesSceneBlank(const QQmlError& error)
{
    static const QRegularExpression form(
        QStringLiteral("is not a type$|Syntax error|Expected token"));
    return !missingModule(error).isEmpty() || isMissingFile(error) ||
           form.match(error.description()).hasMatch();
}

QString sceneProblemText(const QList<QQmlError>& errors)
{
    QStringList lines{headline()};
    for (const QQmlError& error : errors)
        lines << adviceOn(error);
    lines.removeDuplicates();
    return lines.join(QLatin1Char('\n'));
}

QString drawingProblemText(const QString& error)
{
    const QString remedy =
        hasPackages ? Texts::tr("Install a graphics driver with OpenGL, in Debian the package "
                                "libgl1-mesa-dri, then start the viewer again.")
                    : Texts::tr("Install a graphics driver with OpenGL, then start the viewer "
                                "again.");
    return headline() + QLatin1Char('\n') + error + QLatin1Char('\n') + remedy;
}

} // namespace ColorCalibration
