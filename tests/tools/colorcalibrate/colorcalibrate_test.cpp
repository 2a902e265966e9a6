// SPDX-License-Identifier: Apache-2.0
// The tool as a whole: help, unknown words, exit codes, pipes.
#include "commandtest.h"

#include <QProcess>

TEST(ColorCalibrateTool, ExplainsItself)
{
    const Outcome help = runTool({QStringLiteral("--help")});
    EXPECT_EQ(help.code, 0);
    EXPECT_EQ(help.err, "");
    const std::string names[] = {"compute", "find", "measure"};
    for (const std::string& name : names) {
        EXPECT_NE(help.out.find(name), std::string::npos);
        const Outcome own = runTool({QString::fromStdString(name), QStringLiteral("--help")});
        EXPECT_EQ(own.code, 0) << own.err;
        EXPECT_EQ(own.err, "");
        EXPECT_EQ(own.out.rfind("Usage: colorcalibrate " + name, 0), 0u) << own.out;
        EXPECT_NE(own.out.find("--json"), std::string::npos) << own.out;
    }
    EXPECT_EQ(runTool({QStringLiteral("-h")}).out, help.out);
    EXPECT_EQ(runTool({QStringLiteral("--version")}).out.rfind("colorcalibrate ", 0), 0u);
}

TEST(ColorCalibrateTool, RefusesWhatItDoesNotKnow)
{
    expectFailure(runTool({}), 2, {QStringLiteral("missing"), QStringLiteral("--help")});
    expectFailure(runTool({QStringLiteral("paint")}), 2, {QStringLiteral("paint")});
    expectFailure(runTool({QStringLiteral("--verbose")}), 2, {QStringLiteral("--verbose")});
}

TEST(ColorCalibrateTool, GoesOnBehindTheParsersWordsWithoutAFullStop)
{
    const Outcome missing = runTool({QStringLiteral("calibrate"), QStringLiteral("--camera")});
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.err.rfind("colorcalibrate: Missing value after '--camera'; usage: ", 0), 0u)
        << missing.err;
    const Outcome unknown = runTool({QStringLiteral("find"), QStringLiteral("--x")});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err.rfind("colorcalibrate: Unknown option 'x'; usage: ", 0), 0u)
        << unknown.err;
}

TEST(ColorCalibrateTool, SaysItInOneLineWhateverNamesHold)
{
    const QString name = QStringLiteral("two\nlines\r\x1b[31m");
    expectFailure(runTool({name}), 2, {QStringLiteral("two?lines")});
    expectFailure(runTool({QStringLiteral("compute"), name}), 1, {QStringLiteral("two?lines")});
    expectFailure(runTool({QStringLiteral("measure"), QStringLiteral("a.png"),
                           QStringLiteral("--grid"), name}),
                  2, {QStringLiteral("two?lines")});
}

TEST(ColorCalibrateTool, RefusesEmptyArguments)
{
    for (const char* subcommand : {"compute", "measure", "find"})
        expectFailure(runTool({QLatin1String(subcommand), QString()}), 2,
                      {QStringLiteral("an argument is empty")});
    expectFailure(runTool({QStringLiteral("find"), QStringLiteral("a.png"),
                           QStringLiteral("--draw"), QString()}),
                  2, {QStringLiteral("an argument is empty")});
}

TEST(ColorCalibrateTool, RefusesArgumentsThatAreNoText)
{
    const QString name = QStringLiteral("bad\uFFFD");
    const QString words = QStringLiteral("\"bad\uFFFD\" has bytes that are no text");
    expectFailure(runTool({QStringLiteral("find"), name}), 2, {words});
    expectFailure(
        runTool({QStringLiteral("find"), QStringLiteral("a.png"), QStringLiteral("--draw"), name}),
        2, {words});

    // Where they come from: names of files may have any bytes.
    const QTemporaryDir folder;
    QProcess program;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder.path());
    program.start(QStringLiteral("sh"), {QStringLiteral("-c"),
                                         QStringLiteral("exec \"$0\" calibrate --camera none "
                                                        "--save-settings \"$(printf 'bad\\377')\""),
                                         QStringLiteral(COLORCALIBRATE_PROGRAM)});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), 2);
    EXPECT_TRUE(QString::fromUtf8(program.readAllStandardError()).contains(words));
}

TEST(ColorCalibrateTool, RunsAsAProgramInAPipe)
{
    QProcess program;
    program.start(QStringLiteral(COLORCALIBRATE_PROGRAM),
                  {QStringLiteral("compute"), QStringLiteral("-"), QStringLiteral("--json")});
    ASSERT_TRUE(program.waitForStarted());
    program.write(QByteArray::fromStdString(targetLines()));
    program.closeWriteChannel();
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.readAllStandardError(), "");
    EXPECT_EQ(program.readAllStandardOutput().toStdString(),
              runTool({QStringLiteral("compute"), QStringLiteral("-"), QStringLiteral("--json")},
                      targetLines())
                  .out);
}

TEST(ColorCalibrateTool, EndsWithItsCodes)
{
    const auto codeOf = [](const QStringList& arguments) {
        return QProcess::execute(QStringLiteral(COLORCALIBRATE_PROGRAM), arguments);
    };
    EXPECT_EQ(codeOf({QStringLiteral("--version")}), 0);
    EXPECT_EQ(codeOf({QStringLiteral("compute"), QStringLiteral("/no/such/file")}), 1);
    EXPECT_EQ(codeOf({QStringLiteral("paint")}), 2);
}
