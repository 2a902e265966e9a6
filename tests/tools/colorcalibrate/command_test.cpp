// SPDX-License-Identifier: Apache-2.0
// Tests of what every subcommand shares.
#include "command.h"

#include <gtest/gtest.h>

#include <new>

using namespace ColorCalibrate;

TEST(Command, HasWordsForAnErrorAndForALackOfMemory)
{
    EXPECT_EQ(wordsOf(CommandError(QStringLiteral("größer"))), QStringLiteral("größer"));
    EXPECT_EQ(wordsOf(std::runtime_error("so")), QStringLiteral("so"));
    EXPECT_EQ(wordsOf(std::bad_alloc()), QStringLiteral("there is not enough memory"));
    EXPECT_EQ(wordsOf(std::bad_array_new_length()), QStringLiteral("there is not enough memory"));
}
