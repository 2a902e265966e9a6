// SPDX-License-Identifier: Apache-2.0
// Runs the tests with what items and event loops need.
#include "testsettings.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

int main(int argc, char** argv)
{
#ifdef __GLIBC__
    // One heap for all threads, so that the C library's count of it is of all of them.
    mallopt(M_ARENA_MAX, 1);
#endif
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    const TestSettings settings;
    return RUN_ALL_TESTS();
}
