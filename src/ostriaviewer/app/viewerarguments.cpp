// SPDX-License-Identifier: Apache-2.0
// What the viewer is started with.
#include "viewerarguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace Viewer {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Viewer::ViewerArguments", text);
}

} // namespace

ParsedArguments parseArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Shows the pictures of cameras, and what plugins do with them."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  tr("Show this text."));
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption scene(QStringLiteral("scene"),
                                   tr("Let the emulated cameras see this image."), tr("image"));
    const QCommandLineOption plugins(QStringLiteral("plugins"),
                                     tr("Load plugins from this folder alone."), tr("folder"));
    const QCommandLineOption camera(
        QStringLiteral("camera"), tr("Open this camera and show its picture at once."), tr("name"));
    parser.addOptions({help, scene, plugins, camera});

    ParsedArguments result;
    const bool isUnderstood = parser.parse(arguments);
    if (!isUnderstood || !parser.positionalArguments().isEmpty()) {
        result.action = ParsedArguments::Fail;
        result.text =
            isUnderstood
                ? tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst())
                : parser.errorText();
    } else if (parser.isSet(help)) {
        result.action = ParsedArguments::ShowText;
        result.text = parser.helpText();
    } else if (parser.isSet(version)) {
        result.action = ParsedArguments::ShowText;
        result.text =
            QStringLiteral("ostriaviewer %1\n").arg(QCoreApplication::applicationVersion());
    }
    result.arguments = {parser.value(scene), parser.value(plugins), parser.value(camera),
                        arguments};
    return result;
}

} // namespace Viewer
