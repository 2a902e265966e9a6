// SPDX-License-Identifier: Apache-2.0
// Tests of how the system's requests to end are kept.
#include "terminationwatch.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <csignal>

using Viewer::TerminationWatch;

// A terminal that is closed behind the viewer would leave a camera with the wizard's settings.
TEST(TerminationWatch, TellsEveryRequest)
{
    const TerminationWatch watch;
    QSignalSpy requests(&watch, &TerminationWatch::requested);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        requests.clear();
        std::raise(signal);
        EXPECT_TRUE(requests.wait()) << signal;
    }
}

TEST(TerminationWatch, GoesOnIgnoringWhatItWasStartedToIgnore)
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const TerminationWatch watch;
        EXPECT_EQ(std::signal(SIGHUP, SIG_IGN), SIG_IGN);
    }
    std::signal(SIGHUP, before);
}
