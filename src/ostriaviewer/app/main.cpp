// SPDX-License-Identifier: Apache-2.0
// Entry of the viewer.
#include "drawing.h"
#include "emulatedcameras.h"
#include "largememory.h"
#include "terminationwatch.h"
#include "viewerapplication.h"
#include "viewerarguments.h"

#include <QApplication>

#include <iostream>

using Viewer::ParsedArguments;

namespace {

int show(const ParsedArguments& parsed)
{
    const bool isFailure = parsed.action == ParsedArguments::Fail;
    (isFailure ? std::cerr : std::cout) << parsed.text.toStdString();
    if (isFailure)
        std::cerr << "\nostriaviewer --help tells more.\n";
    return isFailure ? 2 : 0;
}

// Qt would end the program with words for programmers.
bool hasScreen()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

} // namespace

int main(int argc, char** argv)
{
    Viewer::giveLargeMemoryBack();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    QCoreApplication::setOrganizationName(QStringLiteral("Ostria"));
    QCoreApplication::setApplicationName(QStringLiteral("OstriaViewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OSTRIAVIEWER_VERSION));
    {
        // Help must not need a screen.
        const QCoreApplication core(argc, argv);
        const ParsedArguments early = Viewer::parseArguments(QCoreApplication::arguments());
        if (early.action == ParsedArguments::ShowText)
            return show(early);
    }
    if (!hasScreen()) {
        std::cerr << "ostriaviewer: there is no screen, as neither DISPLAY nor WAYLAND_DISPLAY is "
                     "set. Start it from a desktop, or use colorcalibrate in the terminal.\n";
        return 1;
    }
    Viewer::drawScenesQuickly();
    const QApplication application(argc, argv);
    const ParsedArguments parsed = Viewer::parseArguments(QCoreApplication::arguments());
    if (parsed.action != ParsedArguments::Run)
        return show(parsed);

    QString error;
    const auto cameras = Viewer::emulatedCameras(parsed.arguments.scene, error);
    if (!error.isEmpty()) {
        std::cerr << "ostriaviewer: " << error.toStdString() << '\n';
        return 1;
    }
    Viewer::ViewerApplication viewer(parsed.arguments, cameras);
    const Viewer::TerminationWatch watch;
    QObject::connect(&watch, &Viewer::TerminationWatch::requested, &viewer,
                     &Viewer::ViewerApplication::quit);
    viewer.start();
    return QApplication::exec();
}
