// SPDX-License-Identifier: Apache-2.0
// The viewer understands what it is started with.
#include "emulatedcameras.h"
#include "viewerarguments.h"

#include <gtest/gtest.h>

namespace Viewer {
namespace {

TEST(ViewerArguments, RunsWithoutAny)
{
    const ParsedArguments parsed = parseArguments({"viewer"});
    EXPECT_EQ(parsed.action, ParsedArguments::Run);
    EXPECT_EQ(parsed.arguments.all, QStringList("viewer"));
}

TEST(ViewerArguments, TakesSceneFolderAndCamera)
{
    const ParsedArguments parsed = parseArguments(
        {"viewer", "--scene", "chart.png", "--plugins=folder", "--camera", "a name"});
    EXPECT_EQ(parsed.action, ParsedArguments::Run);
    EXPECT_EQ(parsed.arguments.scene, "chart.png");
    EXPECT_EQ(parsed.arguments.pluginFolder, "folder");
    EXPECT_EQ(parsed.arguments.camera, "a name");
}

TEST(ViewerArguments, HelpNamesEachOption)
{
    const ParsedArguments parsed = parseArguments({"viewer", "--help"});
    EXPECT_EQ(parsed.action, ParsedArguments::ShowText);
    for (const char* option : {"--scene", "--plugins", "--camera", "--backend", "--version"})
        EXPECT_TRUE(parsed.text.contains(option)) << option;
}

TEST(ViewerArguments, TakesBackendsFromTheUserBeforeTheEnvironment)
{
    qputenv("OSTRIA_BACKEND", "genicam");
    EXPECT_EQ(parseArguments({"viewer"}).arguments.backends, Backends::GenICam);
    EXPECT_EQ(parseArguments({"viewer", "--backend", "all"}).arguments.backends, Backends::All);
    qunsetenv("OSTRIA_BACKEND");
    EXPECT_EQ(parseArguments({"viewer"}).arguments.backends, std::nullopt);
    const ParsedArguments parsed = parseArguments({"viewer", "--backend", "others"});
    EXPECT_EQ(parsed.action, ParsedArguments::Fail);
    EXPECT_EQ(parsed.text, "--backend is \"emulation\", \"genicam\" or \"all\", not \"others\".");
}

TEST(ViewerArguments, SayWhereABackendThatThereIsNotComesFrom)
{
    qputenv("OSTRIA_BACKEND", "others");
    const ParsedArguments parsed = parseArguments({"viewer"});
    qunsetenv("OSTRIA_BACKEND");
    EXPECT_EQ(parsed.action, ParsedArguments::Fail);
    EXPECT_EQ(parsed.text,
              "OSTRIA_BACKEND is \"emulation\", \"genicam\" or \"all\", not \"others\".");
}

TEST(ViewerArguments, RefusesWhatItDoesNotKnow)
{
    EXPECT_EQ(parseArguments({"viewer", "--unknown"}).action, ParsedArguments::Fail);
    EXPECT_EQ(parseArguments({"viewer", "--scene"}).action, ParsedArguments::Fail);
    const ParsedArguments parsed = parseArguments({"viewer", "picture.png"});
    EXPECT_EQ(parsed.action, ParsedArguments::Fail);
    EXPECT_TRUE(parsed.text.contains("picture.png"));
}

TEST(EmulatedCameras, SayWhichSceneCannotBeRead)
{
    QString error;
    emulatedCameras("/nowhere/chart.png", error);
    EXPECT_TRUE(error.contains("/nowhere/chart.png"));
    error.clear();
    EXPECT_FALSE(emulatedCameras({}, error).isEmpty());
    EXPECT_EQ(error, "");
}

} // namespace
} // namespace Viewer
