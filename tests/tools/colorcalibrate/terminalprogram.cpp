// SPDX-License-Identifier: Apache-2.0
// The program as a process of its own, watched at a terminal.
#include "terminalprogram.h"

#include "pseudoterminal.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

void startProgram(QProcess& program, const QString& home, const QStringList& arguments)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QLatin1String(variable), home + '/' + QLatin1String(variable));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(COLORCALIBRATE_PROGRAM), arguments);
    ASSERT_TRUE(program.waitForStarted());
}

void waitForLine(QProcess& program, Terminal& terminal, const QByteArray& line)
{
    QElapsedTimer clock;
    clock.start();
    while (!terminal.text().contains(line + '\n') && program.state() == QProcess::Running &&
           clock.elapsed() < programPatienceMs)
        program.waitForFinished(5);
    ASSERT_TRUE(terminal.text().contains(line + '\n')) << terminal.text().constData();
}
