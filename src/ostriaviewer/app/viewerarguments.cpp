// SPDX-License-Identifier: Apache-2.0
// What the viewer is started with.
#include "viewerarguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace Viewer {

namespace {

constexpr char backendVariable[] = "OSTRIA_BACKEND";

} // namespace

// What stands in a terminal is English, whatever the language of the windows.
ParsedArguments parseArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows the pictures of cameras, and what plugins do with them."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this text."));
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption scene(QStringLiteral("scene"),
                                   QStringLiteral("Let the emulated cameras see this image."),
                                   QStringLiteral("image"));
    const QCommandLineOption plugins(QStringLiteral("plugins"),
                                     QStringLiteral("Load plugins from this folder alone."),
                                     QStringLiteral("folder"));
    const QCommandLineOption camera(
        QStringLiteral("camera"), QStringLiteral("Open this camera and show its picture at once."),
        QStringLiteral("name"));
    const QCommandLineOption backend(
        QStringLiteral("backend"),
        QStringLiteral("Show emulated cameras (\"emulation\"), those on "
                       "the network and on USB (\"genicam\"), or "
                       "\"all\", whatever the settings say."),
        QStringLiteral("kind"), qEnvironmentVariable(backendVariable));
    parser.addOptions({help, scene, plugins, camera, backend});

    ParsedArguments result;
    const bool isUnderstood = parser.parse(arguments);
    if (!isUnderstood || !parser.positionalArguments().isEmpty()) {
        result.action = ParsedArguments::Fail;
        result.text = isUnderstood ? QStringLiteral("Unexpected argument \"%1\".")
                                         .arg(parser.positionalArguments().constFirst())
                                   : parser.errorText();
    } else if (parser.isSet(help)) {
        result.action = ParsedArguments::ShowText;
        result.text = parser.helpText();
    } else if (parser.isSet(version)) {
        result.action = ParsedArguments::ShowText;
        result.text =
            QStringLiteral("ostriaviewer %1\n").arg(QCoreApplication::applicationVersion());
    }
    const QString kind = parser.value(backend);
    const std::optional<Backends> backends = backendsFromName(kind);
    if (result.action == ParsedArguments::Run && !kind.isEmpty() && !backends) {
        result.action = ParsedArguments::Fail;
        result.text =
            QStringLiteral("%1 is \"emulation\", \"genicam\" or \"all\", not \"%2\".")
                .arg(QLatin1String(parser.isSet(backend) ? "--backend" : backendVariable), kind);
    }
    result.arguments = {parser.value(scene), parser.value(plugins), parser.value(camera), backends,
                        arguments};
    return result;
}

} // namespace Viewer
