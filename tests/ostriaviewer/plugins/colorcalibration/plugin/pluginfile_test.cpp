// SPDX-License-Identifier: Apache-2.0
// Tests of the plugin's file: what it says of itself, loading and unloading.
#include "iplugin.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QPointer>

#include <gtest/gtest.h>

namespace {

TEST(PluginFile, SaysWhatItIsBeforeItIsLoaded)
{
    const QPluginLoader loader(TEST_PLUGIN);
    const QJsonObject record = loader.metaData();
    EXPECT_FALSE(loader.isLoaded());
    EXPECT_EQ(record["IID"].toString(), "tavrin.ostriaApp.OstriaViewerPlugin");
    EXPECT_EQ(record["className"].toString(), "CColorCalibrationPlugin");
    const QJsonObject data = record["MetaData"].toObject();
    EXPECT_EQ(data["Name"].toString(), "ColorCalibration");
    EXPECT_EQ(data["Version"].toString(), "7.3.0");
    EXPECT_EQ(data["CompatVersion"].toString(), "7.3.0");
    EXPECT_TRUE(data["Required"].isBool());
    EXPECT_FALSE(data["Required"].toBool(true));
    EXPECT_EQ(data["Description"].toString(),
              "The color calibration plugin for the Tavrin medical cameras.");
}

TEST(PluginFile, NamesTheNinePluginsThatItNeeds)
{
    const QJsonArray needed =
        QPluginLoader(TEST_PLUGIN).metaData()["MetaData"].toObject()["Dependencies"].toArray();
    QStringList texts;
    for (const QJsonValue& entry : needed) {
        EXPECT_EQ(entry.toObject().keys(), QStringList({"Name", "Version"}));
        texts << entry["Name"].toString() + " " + entry["Version"].toString();
    }
    EXPECT_EQ(texts, QStringList({"AppCore 2.0.0", "CameraPool 2.0.0", "DataProcessingCore 2.0.0",
                                  "MessageLogCore 2.0.0", "ParameterCollectionPool 2.0.0",
                                  "CameraSelector 7.3.0", "ImageView 7.3.0", "ViewerShell 7.3.0",
                                  "VideoRecording 7.3.0"}));
}

TEST(PluginFile, HasOneInstanceHoweverOftenItIsLoaded)
{
    QPluginLoader first(TEST_PLUGIN);
    QPluginLoader second(TEST_PLUGIN);
    QObject* instance = first.instance();
    ASSERT_TRUE(instance) << first.errorString().toStdString();
    EXPECT_EQ(first.instance(), instance);
    EXPECT_EQ(second.instance(), instance);
    EXPECT_TRUE(qobject_cast<Core::Plugin::IPlugin*>(instance));
    EXPECT_TRUE(qobject_cast<Core::Plugin::ALocalizedPlugin*>(instance));
    EXPECT_STREQ(instance->metaObject()->className(),
                 "Plugin::ColorCalibration::CColorCalibrationPlugin");
    second.unload();
    EXPECT_TRUE(first.unload());
}

TEST(PluginFile, BringsItsResourcesAndTakesThemAway)
{
    const QStringList files{":/ColCal/main.qml", ":/ColCal/icons/cct_icon_22x22.png",
                            ":/ColCal/resources/summary.css",
                            ":/translation/ColorCalibration_ja.qm",
                            ":/ColCal/languages/ColorCorrectionToolPlugin_de.qm"};
    QPluginLoader loader(TEST_PLUGIN);
    for (int round = 0; round < 2; ++round) {
        const QPointer<QObject> instance = loader.instance();
        ASSERT_TRUE(instance);
        for (const QString& file : files)
            EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
        EXPECT_TRUE(loader.unload());
        EXPECT_FALSE(instance);
        for (const QString& file : files)
            EXPECT_FALSE(QFile::exists(file)) << file.toStdString();
    }
}

} // namespace
