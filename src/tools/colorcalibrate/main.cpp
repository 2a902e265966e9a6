// SPDX-License-Identifier: Apache-2.0
// Entry of the command-line tool.
#include "colorcalibrate.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    // The viewer's, as grid positions and user sets are shared with it.
    QCoreApplication::setOrganizationName(QStringLiteral("Ostria"));
    QCoreApplication::setApplicationName(QStringLiteral("OstriaViewer"));
    return ColorCalibrate::run(QCoreApplication::arguments().mid(1),
                               {std::cin, std::cout, std::cerr});
}
