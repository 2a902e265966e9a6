// SPDX-License-Identifier: Apache-2.0
// Runs the tests with what items and event loops need.
#include "testsettings.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#ifdef OSTRIA_ADDRESS_SANITIZER
#include <sanitizer/lsan_interface.h>
#endif

namespace {

/// Qt's platform without a screen never deletes the one screen that it pretends to have.
std::unique_ptr<QGuiApplication> makeApplication(int& argc, char** argv)
{
#ifdef OSTRIA_ADDRESS_SANITIZER
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
#ifdef __GLIBC__
    // One heap for all threads, so that the C library's count of it is of all of them.
    mallopt(M_ARENA_MAX, 1);
#endif
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const std::unique_ptr<QGuiApplication> application = makeApplication(argc, argv);
    const TestSettings settings;
    return RUN_ALL_TESTS();
}
