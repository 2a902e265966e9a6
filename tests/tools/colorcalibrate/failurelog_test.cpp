// SPDX-License-Identifier: Apache-2.0
// Tests of what is kept of the log.
#include "failurelog.h"

#include <gtest/gtest.h>

using ColorCalibrate::FailureLog;
using namespace Core::Logging;

namespace {

/// Collects what reaches the sink below.
class FailureLogTest : public ::testing::Test
{
protected:
    FailureLogTest()
        : m_before(installLogSink([this](ELogLevel, const QString& category, const QString& text) {
            told.append(category + QLatin1Char(':') + text);
        }))
    {}
    ~FailureLogTest() override { installLogSink(m_before); }

    static void say(ELogLevel level, const char* category, const char* text)
    {
        createLogEntry(level, getCatId(category), text);
    }

    QStringList told;

private:
    LogSink m_before;
};

} // namespace

TEST_F(FailureLogTest, KeepsWarningsWithoutTheirFunctions)
{
    FailureLog log;
    say(Information, "Model", "all is well");
    say(Warning, "Model", "Model::open: no answer");
    say(Error, "Model", "gone");
    EXPECT_EQ(log.failures(), (QStringList{"no answer", "gone"}));
    EXPECT_EQ(log.firstFailure(), "no answer");
    EXPECT_EQ(log.lastFailure(), "gone");
    log.clear();
    EXPECT_EQ(log.firstFailure(), "");
    EXPECT_EQ(log.lastFailure(), "");
}

TEST_F(FailureLogTest, HandsOnWhatCamerasSayOfThemselves)
{
    FailureLog log;
    say(Warning, "Model", "refused");
    say(Information, "Cameras", "opened");
    say(Warning, "Cameras", "stays changed");
    EXPECT_EQ(told, QStringList("Cameras:stays changed"));
    EXPECT_EQ(log.failures(), QStringList("refused")) << "it has been told, and fails no step";
}

TEST_F(FailureLogTest, MayBeNested)
{
    const FailureLog outer;
    {
        const FailureLog inner;
        say(Warning, "Cameras", "stays changed");
        say(Warning, "Model", "refused");
        EXPECT_EQ(inner.failures(), QStringList("refused"));
    }
    EXPECT_EQ(told, QStringList("Cameras:stays changed"));
    EXPECT_EQ(outer.failures(), QStringList());
    say(Warning, "Model", "failed");
    EXPECT_EQ(outer.lastFailure(), "failed");
}

TEST_F(FailureLogTest, AThreadMayStillWriteWhenItEnds)
{
    LogSink kept;
    {
        const FailureLog log;
        kept = installLogSink({});
        installLogSink(kept);
    }
    kept(Warning, "Cameras", "late");
    EXPECT_EQ(told, QStringList("Cameras:late"));
}
