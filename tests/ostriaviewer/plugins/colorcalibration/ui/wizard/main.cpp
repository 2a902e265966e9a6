// SPDX-License-Identifier: Apache-2.0
// Runs the tests with what windows need.
#include "testsettings.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // All scenes of the tests have the same address.
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const TestSettings settings;
    return RUN_ALL_TESTS();
}
