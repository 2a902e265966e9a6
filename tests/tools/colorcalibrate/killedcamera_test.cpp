// SPDX-License-Identifier: Apache-2.0
// The program on a camera whose process is killed in the middle of a calibration.
#include "commandtest.h"
#include "pseudoterminal.h"
#include "terminalprogram.h"

#include <QProcess>

#include <csignal>

namespace {

const QString address = QStringLiteral("127.0.0.1");

/// While the program is at a step that it shows on a terminal.
class KilledCamera : public CommandTest, public testing::WithParamInterface<const char*>
{
protected:
    void SetUp() override
    {
        if (!qEnvironmentVariableIsSet("OSTRIA_LOOPBACK"))
            GTEST_SKIP() << "the system gives no network of its own";
    }

    /// In a process of its own, as a real camera is.
    void serve(QProcess& camera) const
    {
        startProgram(camera, folder.path(),
                     {QStringLiteral("serve"), QStringLiteral("--camera"),
                      QStringLiteral("emA1920-60ucEMU"), QStringLiteral("--address"), address});
        ASSERT_TRUE(camera.waitForReadyRead(programPatienceMs))
            << camera.readAllStandardError().toStdString();
    }
};

} // namespace

// It might come back, until somebody says that it does not.
TEST_P(KilledCamera, IsMissedAtOnceInPlainWords)
{
    const WorkingInterrupt interrupt;
    QProcess camera;
    serve(camera);
    Terminal terminal;
    QProcess program;
    program.setStandardErrorFile(terminal.name());
    startProgram(program, folder.path(),
                 {QStringLiteral("calibrate"), QStringLiteral("--address"), address,
                  QStringLiteral("--packet-size"), QStringLiteral("9000"), QStringLiteral("--json"),
                  QStringLiteral("--save-summary"), path(QStringLiteral("summary"))});
    ASSERT_NO_FATAL_FAILURE(waitForLine(program, terminal, GetParam()));
    ASSERT_EQ(::kill(static_cast<pid_t>(camera.processId()), SIGKILL), 0);
    ASSERT_TRUE(camera.waitForFinished(programPatienceMs));
    ASSERT_NO_FATAL_FAILURE(
        waitForLine(program, terminal, "Waiting for the camera, to restore its settings"));
    ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), SIGINT), 0);
    ASSERT_TRUE(program.waitForFinished(programPatienceMs)) << terminal.text().constData();
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1) << terminal.text().constData();
    EXPECT_EQ(program.readAllStandardOutput().toStdString(), "") << "no results";
    const QByteArray text = terminal.text();
    EXPECT_TRUE(text.contains(
        "\ncolorcalibrate: emA1920-60ucEMU (90010002): the camera has been disconnected; THE "
        "CAMERA'S SETTINGS COULD NOT BE RESTORED ("))
        << text.constData();
    EXPECT_TRUE(text.contains("): load a user set or a settings file before the camera is used\n"))
        << text.constData();
}

INSTANTIATE_TEST_SUITE_P(Steps, KilledCamera,
                         testing::Values("Opening the camera", "Finding the chart",
                                         "Adjusting brightness", "Collecting the results"));
