// SPDX-License-Identifier: Apache-2.0
// Runs the tests of the wizard's frame with an application that windows and settings can live in.
#include "qmlfiledialog.h"

#include <QApplication>
#include <QQmlEngine>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setOrganizationName("OstriaTest");
    QApplication::setApplicationName("frame");
    qmlRegisterType<ColorCalibration::QMLFileDialog>("tavrin.filedialog", 1, 0, "QMLFileDialog");
    return RUN_ALL_TESTS();
}
