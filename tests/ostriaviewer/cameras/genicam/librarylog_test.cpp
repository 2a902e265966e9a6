// SPDX-License-Identifier: Apache-2.0
// What must hold for the complaints of the library.
#include "librarylog_p.h"
#include "logrecorder.h"

#include <glib.h>
#include <gtest/gtest.h>

#include <cstdlib>

using Cameras::GenICam::LibraryScope;
using Cameras::GenICam::LibraryTask;

namespace {

const QString camera = QStringLiteral("Camera");
const QString none;

QString toldOf(const char* complaint)
{
    const LogRecorder log;
    Cameras::GenICam::logLibraryComplaints();
    g_log(nullptr, G_LOG_LEVEL_WARNING, "%s", complaint);
    return log.entries().isEmpty() ? QString() : log.entries().constFirst().text;
}

/// More complaints than are shown.
bool isEndTold()
{
    const LogRecorder log;
    Cameras::GenICam::logLibraryComplaints();
    for (int number = 0; number < 1100; ++number)
        g_log(nullptr, G_LOG_LEVEL_WARNING, "complaint %d", number);
    return log.entries().size() == 1001 &&
           log.entries().constLast().text ==
               QLatin1String("The camera library has much to complain of; no more of it is shown.");
}

} // namespace

TEST(LibraryLog, NamesWhatTheThreadIsAt)
{
    EXPECT_EQ(toldOf("one"), QStringLiteral("The camera library reports: one."));
    const LibraryScope whole(camera, none);
    EXPECT_EQ(toldOf("two"),
              QStringLiteral("The description of the camera \"Camera\" is faulty: two."));
    const QString gain = QStringLiteral("Gain");
    const LibraryScope feature(camera, gain);
    EXPECT_EQ(toldOf("three"),
              QStringLiteral("The description of the camera \"Camera\" is faulty at the feature "
                             "\"Gain\": three."));
    const LibraryScope transfer(camera, none, LibraryTask::Transfer);
    EXPECT_EQ(toldOf("four"),
              QStringLiteral("The camera library reports of the camera \"Camera\": four."));
    EXPECT_EQ(toldOf("four"), QString()) << "each once";
}

// In a process of its own, as what was told stays told.
TEST(LibraryLogDeathTest, SaysThatThereIsMoreThanItShows)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(std::exit(isEndTold() ? 0 : 1), testing::ExitedWithCode(0), "");
}
