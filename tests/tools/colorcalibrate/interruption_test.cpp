// SPDX-License-Identifier: Apache-2.0
// Tests of how requests to end are kept.
#include "interruption.h"

#include <gtest/gtest.h>

#include <csignal>

using ColorCalibrate::Interruption;

namespace {

int caught = 0;

extern "C" void count(int /*signal*/)
{
    ++caught;
}

} // namespace

TEST(Interruption, KeepsEveryRequestToEnd)
{
    for (const int request : {SIGINT, SIGTERM, SIGHUP}) {
        const Interruption interruption;
        EXPECT_FALSE(Interruption::isRequested());
        std::raise(request);
        EXPECT_TRUE(Interruption::isRequested()) << request;
    }
}

#ifndef _WIN32
// Some systems put the default back as they call a handler; a second Ctrl-C would end the program.
TEST(Interruption, KeepsTheNextRequestWhereAHandlerIsCalledOnce)
{
    for (const int request : {SIGINT, SIGTERM, SIGHUP}) {
        const Interruption interruption;
        struct sigaction once = {};
        ASSERT_EQ(sigaction(request, nullptr, &once), 0);
        const auto handler = once.sa_handler;
        once.sa_flags |= static_cast<int>(SA_RESETHAND);
        ASSERT_EQ(sigaction(request, &once, nullptr), 0);
        std::raise(request);
        EXPECT_TRUE(Interruption::isRequested()) << request;
        struct sigaction after = {};
        ASSERT_EQ(sigaction(request, nullptr, &after), 0);
        EXPECT_EQ(after.sa_handler, handler) << request;
    }
}
#endif

TEST(Interruption, DoesNotEndWhereNobodyReadsTheOutput)
{
    const Interruption interruption;
    std::raise(SIGPIPE);
    EXPECT_FALSE(Interruption::isRequested());
}

TEST(Interruption, GoesOnIgnoringWhatItWasStartedToIgnore)
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const Interruption interruption;
        std::raise(SIGHUP);
        EXPECT_FALSE(Interruption::isRequested());
    }
    std::signal(SIGHUP, before);
}

TEST(Interruption, LeavesTheHandlersAsTheyWere)
{
    const auto before = std::signal(SIGHUP, count);
    {
        const Interruption interruption;
        std::raise(SIGHUP);
    }
    EXPECT_EQ(caught, 0);
    std::raise(SIGHUP);
    EXPECT_EQ(caught, 1);
    std::signal(SIGHUP, before);
}
