// SPDX-License-Identifier: Apache-2.0
// Runs the tool inside the test and keeps what it prints.
#pragma once

#include "trapezoidpoints.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <string>

struct Outcome
{
    int code;
    std::string out;
    std::string err;
};

/// Runs the tool with these arguments, reading this as standard input.
Outcome runTool(const QStringList& arguments, const std::string& in = {});

/// The code, nothing on standard output, and one line of message that names all these words.
void expectFailure(const Outcome& outcome, int code, const QStringList& words);

/// While it lives, programs are started with Ctrl-C working, also where this one ignores it, as a
/// program in the background of a script does.
class WorkingInterrupt
{
public:
    WorkingInterrupt()
        : m_previous(std::signal(SIGINT, SIG_DFL))
    {}
    ~WorkingInterrupt() { std::signal(SIGINT, m_previous); }
    WorkingInterrupt(const WorkingInterrupt&) = delete;
    WorkingInterrupt& operator=(const WorkingInterrupt&) = delete;

private:
    void (*m_previous)(int);
};

/// 24 lines of the chart's target colours.
std::string targetLines();

/// A folder for the files of one test.
class CommandTest : public testing::Test
{
protected:
    /// Removes the user sets that the test has stored.
    ~CommandTest() override;

    QString path(const QString& name) const { return folder.filePath(name); }
    QString writeFile(const QString& name, const QByteArray& content) const;

    /// A chart of target colours, linear, 120 x 80 pixels at (10, 20) of a gray image.
    static QImage chartImage(QImage::Format format, int levels);
    static QString chartGrid() { return QStringLiteral("10,20 130,20 10,100 130,100"); }
    QString writeChart(const QString& name, QImage::Format format, int levels) const;

    QTemporaryDir folder;
};
