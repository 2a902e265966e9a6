// SPDX-License-Identifier: Apache-2.0
// The program under a terminal, with Ctrl-C pressed in the middle of a calibration.
#include "commandtest.h"
#include "pseudoterminal.h"
#include "terminalprogram.h"

#include <QDirIterator>
#include <QProcess>

#include <csignal>

namespace {

class InterruptedProgram : public CommandTest, public testing::WithParamInterface<const char*>
{};

} // namespace

TEST_P(InterruptedProgram, EndsWithOneAndTheSettingsAsTheyWere)
{
    Terminal terminal;
    const WorkingInterrupt interrupt;
    QProcess program;
    program.setStandardErrorFile(terminal.name());
    startProgram(program, folder.path(),
                 {QStringLiteral("calibrate"), QStringLiteral("--camera"),
                  QStringLiteral("emA1920-60ucEMU"), QStringLiteral("--json"),
                  QStringLiteral("--save-summary"), path(QStringLiteral("summary")),
                  QStringLiteral("--user-set"), QStringLiteral("UserSet1"),
                  QStringLiteral("--default")});
    ASSERT_NO_FATAL_FAILURE(waitForLine(program, terminal, GetParam()));
    ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), SIGINT), 0);
    ASSERT_TRUE(program.waitForFinished(programPatienceMs));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardOutput().toStdString(), "") << "no results";
    EXPECT_EQ(terminal.text().split('\n').value(terminal.text().count('\n') - 1).toStdString(),
              "colorcalibrate: cancelled; the camera's settings are as they were");
    // An emulated camera keeps its user sets in a file from the first that is stored.
    EXPECT_FALSE(QDirIterator(path(QStringLiteral("XDG_DATA_HOME")), {QStringLiteral("*.json")},
                              QDir::Files, QDirIterator::Subdirectories)
                     .hasNext());
}

INSTANTIATE_TEST_SUITE_P(Steps, InterruptedProgram,
                         testing::Values("Finding the chart", "Adjusting brightness",
                                         "Saving the summary"));
