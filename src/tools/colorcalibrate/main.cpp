// SPDX-License-Identifier: Apache-2.0
// Entry of the command-line tool.
#include "colorcalibrate.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return ColorCalibrate::run(QCoreApplication::arguments().mid(1),
                               {std::cin, std::cout, std::cerr});
}
