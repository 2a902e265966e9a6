// SPDX-License-Identifier: Apache-2.0
// Tests of how failures become log entries.
#include "reportfailure.h"

#include "baseexception.h"
#include "guarded.h"
#include "logrecorder.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <stdexcept>

using ColorCalibration::guarded;
using ColorCalibration::reportFailure;

namespace {

template <typename Exception>
QStringList entriesFor(const Exception& exception, const QString& message)
{
    const LogRecorder log;
    try {
        throw exception;
    } catch (...) {
        reportFailure(message, QStringLiteral("Class::function"), QStringLiteral("a.category"));
    }
    QStringList entries;
    for (const LogEntry& entry : log.entries()) {
        EXPECT_EQ(entry.level, 2);
        EXPECT_EQ(entry.category, "a.category");
        entries.append(entry.text);
    }
    return entries;
}

TEST(ReportFailure, LogsMessageAndFunctionWithAFormatForEachKind)
{
    EXPECT_EQ(entriesFor(Core::Exception::BaseException(QStringLiteral("sä 50 %1")), "Failed."),
              (QStringList{"Failed.", QStringLiteral("Class::function:sä 50 %1")}));
    EXPECT_EQ(entriesFor(std::runtime_error("told 100 %1 %2"), "Failed."),
              (QStringList{"Failed.", "Class::function: told 100 %1 %2"}));
    EXPECT_EQ(entriesFor(42, "Failed."),
              (QStringList{"Failed.", "Class::function: Unspecified exception occurred."}));
}

TEST(ReportFailure, LeavesTheFirstEntryOutWithoutAMessage)
{
    EXPECT_EQ(entriesFor(std::logic_error("why"), QString()), QStringList{"Class::function: why"});
}

TEST(ReportFailure, GuardedGivesTheResultOrTheFailureValue)
{
    const LogRecorder log;
    EXPECT_EQ(guarded("message", "function", -1, [] { return 5; }), 5);
    EXPECT_TRUE(log.entries().isEmpty());
    EXPECT_EQ(guarded("message", "function", -1, []() -> int { throw std::bad_alloc(); }), -1);
    EXPECT_EQ(log.entries().size(), 2);
    EXPECT_EQ(log.entries().first().category,
              "ostria.viewer.plugins.colorCalibration.colorCorrectionModel");
}

} // namespace
