// SPDX-License-Identifier: Apache-2.0
// Runs the tests with what event loops need.
#include "testsettings.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    const TestSettings settings;
    return RUN_ALL_TESTS();
}
