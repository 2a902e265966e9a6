// SPDX-License-Identifier: Apache-2.0
// The program as a process of its own, watched at a terminal.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QProcess;
class Terminal;

/// How long a program may take to a step or to its end, in milliseconds.
constexpr int programPatienceMs = 60000;

/// Starts the program with its data and settings in this folder. Fails the test where it does not
/// start.
void startProgram(QProcess& program, const QString& home, const QStringList& arguments);

/// Waits until the program shows this line on the terminal. Fails the test where the program ends
/// before or takes too long.
void waitForLine(QProcess& program, Terminal& terminal, const QByteArray& line);
