// SPDX-License-Identifier: Apache-2.0
// Entry of the command-line tool.
#include "colorcalibrate.h"

#include "logging.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <iostream>

namespace {

/// Failures are told by the tool itself, in one line.
void dropMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/)
{}

/// No step fails by what a camera has to say of itself, such as a setting that stays changed.
void tellWarning(Core::Logging::ELogLevel level, const QString& category, const QString& text)
{
    if (level >= Core::Logging::Warning && category == QLatin1String("Cameras"))
        std::cerr << text.toStdString() << std::endl;
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(dropMessage);
    Core::Logging::installLogSink(tellWarning);
    const QCoreApplication application(argc, argv);
    // The viewer's, as grid positions and user sets are shared with it.
    QCoreApplication::setOrganizationName(QStringLiteral("Ostria"));
    QCoreApplication::setApplicationName(QStringLiteral("OstriaViewer"));
    return ColorCalibrate::run(QCoreApplication::arguments().mid(1),
                               {std::cin, std::cout, std::cerr});
}
