// SPDX-License-Identifier: Apache-2.0
// Tests of the plugin's start in a host that has all services, or lacks some.
#include "plugintest.h"

namespace {

TEST_F(PluginTest, PutsItsCommandIntoBothMenus)
{
    start();
    ASSERT_TRUE(action());
    EXPECT_EQ(action()->text(), "Color Calibrator");
    EXPECT_FALSE(action()->isVisible());
    EXPECT_FALSE(action()->icon().isNull());
    EXPECT_EQ(action()->parent(), m_plugin);
    EXPECT_EQ(m_menus->command->id().name(), "ColorCalibration.Start");
    EXPECT_EQ(m_menus->contexts, QStringList("AppCore.Global.Context"));
    EXPECT_EQ(m_menus->containers["OstriaViewer.CameraSelectorContextMenu"].entries,
              QStringList("ColorCalibration.Start in "
                          "OstriaViewer.Group.CameraSelectorContextMenu.Misc"));
    EXPECT_EQ(m_menus->containers["OstriaViewer.Menu.Tools"].entries,
              QStringList("ColorCalibration.Start in OstriaViewer.Group.Tools.Tools"));
}

TEST_F(PluginTest, SkipsAMenuThatIsNotThere)
{
    m_menus->containers.erase("OstriaViewer.CameraSelectorContextMenu");
    start();
    EXPECT_EQ(m_menus->containers["OstriaViewer.Menu.Tools"].entries.size(), 1);
}

TEST_F(PluginTest, StartsWithoutAnyService)
{
    EXPECT_FALSE(m_plugin->setServiceRegistry(m_registry));
    EXPECT_FALSE(m_plugin->setServiceRegistry({}));
    EXPECT_TRUE(m_plugin->initialize());
    EXPECT_TRUE(m_plugin->extensionsInitialized({}));
    EXPECT_TRUE(m_plugin->checkPluginClosability(false));
    m_plugin->aboutToUninitialize();
}

TEST_F(PluginTest, WithoutAMessageLogTheHandOverFails)
{
    start({m_log});
    EXPECT_TRUE(action());
}

TEST_F(PluginTest, WithoutMenusTheSelectionDoesNoHarm)
{
    start({m_menus});
    select(camera("cVTX 1"));
}

TEST_F(PluginTest, WithoutASelectorAnOpenedCameraStillShowsTheCommand)
{
    start({m_selector});
    emit m_status->deviceOpened(camera("cVTX 1"));
    EXPECT_TRUE(action()->isVisible());
}

TEST_F(PluginTest, WithoutAStatusServiceTheSelectionStillShowsTheCommand)
{
    start({m_status});
    select(camera("cVTX 1"));
    EXPECT_TRUE(action()->isVisible());
}

TEST_F(PluginTest, TheCommandShowsForSupportedCamerasAlone)
{
    start();
    auto emulated = camera("Emulation 7");
    emulated->parameters().addInteger("DeviceColorPipelineVersion", 1);
    emulated->open = true;
    auto later = camera("Emulation 8");
    later->parameters().addInteger("DeviceColorPipelineVersion", 2);
    later->open = true;
    const QVector<QPair<QSharedPointer<FaultyCamera>, bool>> cameras{
        {camera("cVTX 1"), true}, {camera("cvtx 1"), false}, {emulated, true},
        {later, false},           {camera("cVTX 1"), true},  {camera("Other"), false}};
    for (const auto& expected : cameras) {
        select(expected.first);
        EXPECT_EQ(action()->isVisible(), expected.second) << expected.first->model.toStdString();
    }
}

TEST_F(PluginTest, WithoutAParameterServiceTheNameAloneDecides)
{
    start({m_parameters});
    auto emulated = camera("Emulation 7");
    emulated->parameters().addInteger("DeviceColorPipelineVersion", 1);
    emulated->open = true;
    select(emulated);
    EXPECT_FALSE(action()->isVisible());
    select(camera("cVTX 1"));
    EXPECT_TRUE(action()->isVisible());
}

TEST_F(PluginTest, TheCommandFollowsTheLanguageAtOnce)
{
    start();
    auto* localized = qobject_cast<Core::Plugin::ALocalizedPlugin*>(m_plugin);
    ASSERT_TRUE(localized);
    localized->setLanguage("ja");
    EXPECT_NE(action()->text(), "Color Calibrator");
    EXPECT_FALSE(action()->text().isEmpty());
    localized->setLanguage("en");
    EXPECT_EQ(action()->text(), "Color Calibrator");
    localized->setLanguage("xx");
    EXPECT_EQ(action()->text(), "Color Calibrator");
}

TEST_F(PluginTest, ALanguageSetBeforeTheStartHolds)
{
    qobject_cast<Core::Plugin::ALocalizedPlugin*>(m_plugin)->setLanguage("ja");
    start();
    EXPECT_NE(action()->text(), "Color Calibrator");
}

} // namespace
