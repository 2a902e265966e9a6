// SPDX-License-Identifier: Apache-2.0
// Entry of the command-line tool.
#include "colorcalibrate.h"

#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv)
{
    // Images are read and painted, but nothing is shown: no display is needed.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return ColorCalibrate::run(QGuiApplication::arguments().mid(1),
                               {std::cin, std::cout, std::cerr});
}
