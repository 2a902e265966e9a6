// SPDX-License-Identifier: Apache-2.0
// Entry of the command-line tool.
#include "colorcalibrate.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <iostream>

namespace {

/// Failures are told by the tool itself, in one line.
void dropMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/)
{}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(dropMessage);
    const QCoreApplication application(argc, argv);
    // The viewer's, as grid positions and user sets are shared with it.
    QCoreApplication::setOrganizationName(QStringLiteral("Ostria"));
    QCoreApplication::setApplicationName(QStringLiteral("OstriaViewer"));
    return ColorCalibrate::run(QCoreApplication::arguments().mid(1),
                               {std::cin, std::cout, std::cerr});
}
