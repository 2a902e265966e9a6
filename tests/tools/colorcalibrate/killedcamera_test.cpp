// SPDX-License-Identifier: Apache-2.0
// The program on a camera whose process is killed in the middle of a calibration.
#include "commandtest.h"
#include "pseudoterminal.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <csignal>

namespace {

constexpr int patienceMs = 60000;
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

    void start(QProcess& program, const QStringList& arguments) const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            environment.insert(QLatin1String(variable), path(QLatin1String(variable)));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(COLORCALIBRATE_PROGRAM), arguments);
        ASSERT_TRUE(program.waitForStarted());
    }

    /// In a process of its own, as a real camera is.
    void serve(QProcess& camera) const
    {
        start(camera, {QStringLiteral("serve"), QStringLiteral("--camera"),
                       QStringLiteral("emA1920-60ucEMU"), QStringLiteral("--address"), address});
        ASSERT_TRUE(camera.waitForReadyRead(patienceMs))
            << camera.readAllStandardError().toStdString();
    }
};

} // namespace

TEST_P(KilledCamera, IsMissedAtOnceInPlainWords)
{
    QProcess camera;
    serve(camera);
    Terminal terminal;
    QProcess program;
    program.setStandardErrorFile(terminal.name());
    start(program,
          {QStringLiteral("calibrate"), QStringLiteral("--address"), address,
           QStringLiteral("--packet-size"), QStringLiteral("9000"), QStringLiteral("--json"),
           QStringLiteral("--save-summary"), path(QStringLiteral("summary"))});
    const QByteArray step = QByteArray(GetParam()) + '\n';
    QElapsedTimer clock;
    clock.start();
    while (!terminal.text().contains(step) && program.state() == QProcess::Running &&
           clock.elapsed() < patienceMs)
        program.waitForFinished(5);
    ASSERT_TRUE(terminal.text().contains(step)) << terminal.text().constData();
    ASSERT_EQ(::kill(static_cast<pid_t>(camera.processId()), SIGKILL), 0);
    ASSERT_TRUE(camera.waitForFinished(patienceMs));
    ASSERT_TRUE(program.waitForFinished(patienceMs)) << terminal.text().constData();
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
