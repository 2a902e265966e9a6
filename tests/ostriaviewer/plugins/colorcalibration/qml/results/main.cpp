// SPDX-License-Identifier: Apache-2.0
// Runs the tests of the pages with an application that message boxes and settings can live in.
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("OstriaTest");
    QApplication::setApplicationName("pages");
    return RUN_ALL_TESTS();
}
