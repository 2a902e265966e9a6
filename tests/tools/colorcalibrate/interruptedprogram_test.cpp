// SPDX-License-Identifier: Apache-2.0
// The program under a terminal, with Ctrl-C pressed in the middle of a calibration.
#include "commandtest.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int patienceMs = 60000;

/// A terminal that nobody sits at. What is written to it can be read here.
class Terminal
{
public:
    Terminal()
        : m_master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        EXPECT_GE(m_master, 0);
        EXPECT_EQ(::grantpt(m_master), 0);
        EXPECT_EQ(::unlockpt(m_master), 0);
        m_name = QString::fromLocal8Bit(::ptsname(m_master));
        // Held open, so that it does not hang up before the program has opened it.
        m_slave = ::open(qPrintable(m_name), O_RDWR | O_NOCTTY);
    }
    ~Terminal()
    {
        ::close(m_slave);
        ::close(m_master);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    const QString& name() const { return m_name; }

    /// All that was written so far, with line feeds alone.
    QByteArray text()
    {
        char bytes[4096];
        for (;;) {
            const auto count = ::read(m_master, bytes, sizeof bytes);
            if (count <= 0)
                break;
            m_text.append(bytes, static_cast<int>(count));
        }
        return QByteArray(m_text).replace("\r\n", "\n");
    }

private:
    int m_master;
    int m_slave = -1;
    QString m_name;
    QByteArray m_text;
};

class InterruptedProgram : public CommandTest, public testing::WithParamInterface<const char*>
{};

} // namespace

TEST_P(InterruptedProgram, EndsWithOneAndTheSettingsAsTheyWere)
{
    Terminal terminal;
    const WorkingInterrupt interrupt;
    QProcess program;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QLatin1String(variable), path(QLatin1String(variable)));
    program.setProcessEnvironment(environment);
    program.setStandardErrorFile(terminal.name());
    program.start(QStringLiteral(COLORCALIBRATE_PROGRAM),
                  {QStringLiteral("calibrate"), QStringLiteral("--camera"),
                   QStringLiteral("emA1920-60ucEMU"), QStringLiteral("--json"),
                   QStringLiteral("--save-summary"), path(QStringLiteral("summary")),
                   QStringLiteral("--user-set"), QStringLiteral("UserSet1"),
                   QStringLiteral("--default")});
    ASSERT_TRUE(program.waitForStarted());
    const QByteArray step = QByteArray(GetParam()) + '\n';
    QElapsedTimer clock;
    clock.start();
    while (!terminal.text().contains(step) && program.state() == QProcess::Running &&
           clock.elapsed() < patienceMs)
        program.waitForFinished(5);
    ASSERT_TRUE(terminal.text().contains(step)) << terminal.text().constData();
    ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), SIGINT), 0);
    ASSERT_TRUE(program.waitForFinished(patienceMs));
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
