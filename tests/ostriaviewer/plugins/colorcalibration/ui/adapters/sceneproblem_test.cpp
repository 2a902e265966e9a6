// SPDX-License-Identifier: Apache-2.0
// Tests of the texts about a scene that cannot be shown.
#include "sceneproblem.h"

#include <QUrl>

#include <gtest/gtest.h>

namespace ColorCalibration {
namespace {

QQmlError errorOf(const QString& description, const QString& url = "qrc:/ColCal/main.qml")
{
    QQmlError error;
    error.setDescription(description);
    error.setUrl(QUrl(url));
    return error;
}

TEST(SceneProblem, AMissingModuleIsNamedWithItsPackage)
{
    const QVector<QPair<QString, QString>> packages{
        {"QtMultimedia", "qml-module-qtmultimedia"},
        {"QtQuick.Controls", "qml-module-qtquick-controls"},
        {"QtQuick.Dialogs", "qml-module-qtquick-dialogs"},
        {"QtQuick", "qml-module-qtquick2"},
        {"QtQuick.Window", "qml-module-qtquick-window2"},
        {"QtGraphicalEffects", "qml-module-qtgraphicaleffects"},
        {"Qt.labs.settings", "qml-module-qt-labs-settings"}};
    for (const auto& package : packages) {
        const QQmlError error =
            errorOf(QStringLiteral("module \"%1\" is not installed").arg(package.first));
        EXPECT_TRUE(leavesSceneBlank(error));
        const QString text = sceneProblemText({error});
        EXPECT_TRUE(text.contains('"' + package.first + '"')) << text.toStdString();
        EXPECT_TRUE(text.contains(package.second + ',')) << text.toStdString();
    }
}

TEST(SceneProblem, ADamagedModuleIsNamedToo)
{
    const QQmlError error = errorOf("plugin cannot be loaded for module \"QtMultimedia\": Cannot "
                                    "load library libdeclarative_multimedia.so");
    EXPECT_TRUE(leavesSceneBlank(error));
    EXPECT_TRUE(sceneProblemText({error}).contains("qml-module-qtmultimedia"));
}

TEST(SceneProblem, AMissingFileIsNamed)
{
    const QQmlError error = errorOf("No such file or directory", "qrc:/ColCal/qml/Body.qml");
    EXPECT_TRUE(leavesSceneBlank(error));
    EXPECT_TRUE(sceneProblemText({error}).contains("qrc:/ColCal/qml/Body.qml is missing"));
}

TEST(SceneProblem, ASlipOfAPageIsNoProblem)
{
    EXPECT_FALSE(leavesSceneBlank(errorOf("TypeError: Cannot read property 'x' of null")));
    EXPECT_FALSE(leavesSceneBlank(errorOf("ReferenceError: camera is not defined")));
}

TEST(SceneProblem, TheSameTextStandsOnce)
{
    const QQmlError error = errorOf("module \"QtMultimedia\" is not installed");
    EXPECT_EQ(sceneProblemText({error, error}), sceneProblemText({error}));
}

TEST(SceneProblem, ADrawingProblemSaysWhatToInstall)
{
    const QString text = drawingProblemText("Could not initialize GLX");
    EXPECT_TRUE(text.contains("Could not initialize GLX"));
    EXPECT_TRUE(text.contains("libgl1-mesa-dri"));
}

} // namespace
} // namespace ColorCalibration
