// SPDX-License-Identifier: Apache-2.0
// The window works as a whole: menus, plugins, languages, themes, layout, its end.
#include "viewertest.h"

#include "pluginsdialog.h"

#include <QDialog>
#include <QFile>
#include <QTimer>

namespace Viewer {
namespace {

using Plugin::AppCore::CContext;
using Plugin::AppCore::CId;

class MainWindowTest : public ViewerTest
{};

TEST_F(MainWindowTest, PutsAPluginsCommandIntoToolsMenuAndContextMenu)
{
    startViewer();
    const auto menus = m_viewer->registry()->find<Plugin::AppCore::IMenuService>();
    QAction tool("Tool");
    tool.setVisible(false);
    int started = 0;
    QObject::connect(&tool, &QAction::triggered, [&] { ++started; });
    auto* command =
        menus->registerAction(&tool, CId("Tool.Start"), {CContext(CId("AppCore.Global.Context"))});
    for (const auto& [menu, group] :
         {std::pair("OstriaViewer.Menu.Tools", "OstriaViewer.Group.Tools.Tools"),
          std::pair("OstriaViewer.CameraSelectorContextMenu",
                    "OstriaViewer.Group.CameraSelectorContextMenu.Misc")}) {
        ASSERT_NE(menus->actionContainer(CId(menu)), nullptr) << menu;
        menus->actionContainer(CId(menu))->addToGroup(command, CId(group));
    }
    EXPECT_FALSE(child<QMenu>("toolsMenu")->isEmpty());
    tool.setVisible(true);
    clickMenu("toolsMenu", &tool);
    EXPECT_EQ(started, 1);

    auto* tree = child<QTreeWidget>("cameras");
    const QPoint position = tree->visualItemRect(cameraItem(1)).center();
    emit tree->customContextMenuRequested(position);
    auto* menu = window().selectorPanel().contextMenu();
    ASSERT_TRUE(waitUntil([&] { return menu->isVisible(); }));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&tool).center());
    EXPECT_EQ(started, 2);
}

TEST_F(MainWindowTest, ToolsMenuSaysWhenThereIsNoTool)
{
    startViewer();
    auto* menu = child<QMenu>("toolsMenu");
    QMenuBar* bar = window().menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    ASSERT_TRUE(waitUntil([&] { return menu->isVisible(); }));
    EXPECT_EQ(menu->actions().constLast()->text(), "Open the camera to see its tools");
    EXPECT_TRUE(menu->actions().constLast()->isVisible());
    QTest::keyClick(menu, Qt::Key_Escape);
    window().commands().openAction()->trigger();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    ASSERT_TRUE(waitUntil([&] { return menu->isVisible(); }));
    EXPECT_EQ(menu->actions().constLast()->text(), "No tool for the selected camera");
    QTest::keyClick(menu, Qt::Key_Escape);
}

// Which of two is meant must not be a matter of which comes first.
TEST_F(MainWindowTest, LeavesTheChoiceAmongCamerasOfOneModelToTheUser)
{
    auto model = Cameras::Emulation::smallModel();
    model.serialNumber = "00000099";
    m_second = makeCamera(model);
    startViewer({}, model.name);
    EXPECT_TRUE(
        hasMessage("There are several cameras \"" + model.name + "\"; select one in the list."));
    EXPECT_FALSE(m_first->isOpen());
    EXPECT_FALSE(m_second->isOpen());
}

TEST_F(MainWindowTest, TakesTheCameraThatIsShownByTheNameBeforeOthersOfThatModel)
{
    auto model = Cameras::Emulation::smallModel();
    model.serialNumber = "00000099";
    m_second = makeCamera(model);
    startViewer({}, m_second->displayName());
    EXPECT_FALSE(m_first->isOpen());
    EXPECT_TRUE(m_second->isGrabbing());
}

TEST_F(MainWindowTest, TakesACamerasNameForNoMarkup)
{
    auto model = Cameras::Emulation::smallModel();
    model.name = "<b>X</b>";
    m_first = makeCamera(model);
    startViewer();
    EXPECT_EQ(cameraItem(0)->toolTip(0), "<qt>&lt;b&gt;X&lt;/b&gt; (" + model.serialNumber +
                                             ")<br>Model &lt;b&gt;X&lt;/b&gt;, closed</qt>");
}

TEST_F(MainWindowTest, TellsPluginsOfSelectionOpeningAndLoss)
{
    startViewer();
    using Core::CameraPoolComponents::CameraInfoPtr;
    using Core::CameraPoolComponents::DeviceBaseInfoPtr;
    QStringList told;
    const auto selector =
        m_viewer->registry()->find<Plugin::CameraSelector::IDeviceSelectorService>();
    const auto status = m_viewer->registry()->find<Plugin::CameraPool::ICameraStatusService>();
    QObject::connect(
        selector.data(), &Plugin::CameraSelector::IDeviceSelectorService::selectionChanged,
        [&](const DeviceBaseInfoPtr& device) { told.append("selected " + device->displayName()); });
    QObject::connect(
        status.data(), &Plugin::CameraPool::IDeviceStatusService::deviceOpened,
        [&](const DeviceBaseInfoPtr& device) { told.append("opened " + device->displayName()); });
    QObject::connect(status.data(), &Plugin::CameraPool::ICameraStatusService::cameraConnectionLost,
                     status.data(), [&](const CameraInfoPtr& camera) {
                         told.append("lost " + camera->displayName());
                     });
    clickCamera(1);
    window().commands().openAction()->trigger();
    m_second->loseConnection();
    EXPECT_TRUE(waitUntil([&] { return told.size() == 3; }));
    const QString name = m_second->displayName();
    EXPECT_EQ(told, (QStringList{"selected " + name, "opened " + name, "lost " + name}));
}

TEST_F(MainWindowTest, LoadsPluginsAndTellsWhatCameOfThem)
{
    QTemporaryDir plugins;
    QFile::copy(TEST_PLUGINS "/good.so", plugins.filePath("good.so"));
    QFile::copy(TEST_PLUGINS "/foreign.so", plugins.filePath("foreign.so"));
    startViewer(plugins.path());
    EXPECT_TRUE(hasMessage("Plugin Good 1.2.0 is loaded."));
    EXPECT_TRUE(hasMessage("foreign.so is left out."));
    clickMenu("helpMenu", child<QAction>("plugins"));
    auto* dialog = window().findChild<PluginsDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->findChild<QTreeWidget*>("plugins")->topLevelItemCount(), 2);
    QTest::keyClick(dialog, Qt::Key_Escape);
}

TEST_F(MainWindowTest, TakesWhatAPluginSaysForNoMarkup)
{
    PluginReport report;
    report.file = "/plugins/a<b.so";
    report.description = "<b>good</b>";
    report.error = "R&D";
    const PluginsDialog dialog({report});
    EXPECT_EQ(dialog.findChild<QTreeWidget*>("plugins")->topLevelItem(0)->toolTip(0),
              "<qt>/plugins/a&lt;b.so<br>&lt;b&gt;good&lt;/b&gt;<br>R&amp;D</qt>");
}

TEST_F(MainWindowTest, TellsPluginsOfTheCameraThatIsSelectedFromTheBeginning)
{
    QTemporaryDir plugins;
    QFile::copy(TEST_PLUGINS "/good.so", plugins.filePath("good.so"));
    qApp->setProperty("pluginCalls", QStringList());
    startViewer(plugins.path());
    EXPECT_EQ(qApp->property("pluginCalls").toStringList().constLast(),
              "Good selected " + m_first->displayName());
}

TEST_F(MainWindowTest, SaysWhatToDoWhereThereAreNoPlugins)
{
    QTemporaryDir empty;
    for (const QString& plugins : {empty.path(), empty.filePath("nowhere")}) {
        startViewer(plugins);
        EXPECT_TRUE(hasMessage("There is no plugin in " + plugins)) << qPrintable(plugins);
        EXPECT_TRUE(hasMessage("Install it again")) << qPrintable(plugins);
        m_viewer.reset();
    }
}

TEST_F(MainWindowTest, LanguageReachesPluginsAndTheNextStart)
{
    QTemporaryDir plugins;
    QFile::copy(TEST_PLUGINS "/good.so", plugins.filePath("good.so"));
    startViewer(plugins.path());
    qApp->setProperty("pluginCalls", QStringList());
    clickMenu("languageMenu", child<QAction>("language_ko"));
    EXPECT_EQ(qApp->property("pluginCalls").toStringList(), QStringList("Good language ko"));
    m_viewer.reset();
    qApp->setProperty("pluginCalls", QStringList());
    startViewer(plugins.path());
    EXPECT_TRUE(qApp->property("pluginCalls").toStringList().contains("Good language ko"));
    EXPECT_TRUE(child<QAction>("language_ko")->isChecked());
    clickMenu("languageMenu", child<QAction>("language_en"));
}

TEST_F(MainWindowTest, ThemesChangeColorsAndStay)
{
    startViewer();
    const auto lightness = [this] {
        return window().palette().color(QPalette::Window).lightness();
    };
    auto* themes = child<QAction>("darkTheme");
    themes->trigger();
    EXPECT_LT(lightness(), 80);
    EXPECT_GT(window().palette().color(QPalette::WindowText).lightness(), 200);
    m_viewer.reset();
    startViewer();
    EXPECT_LT(lightness(), 80);
    child<QAction>("lightTheme")->trigger();
    EXPECT_GT(lightness(), 200);
    child<QAction>("desktopTheme")->trigger();
    EXPECT_TRUE(child<QAction>("desktopTheme")->isChecked());
}

TEST_F(MainWindowTest, RemembersItsLayout)
{
    startViewer();
    auto* messages = child<QDockWidget>("messagesPanel");
    ASSERT_TRUE(messages->isVisible());
    clickMenu("viewMenu", messages->toggleViewAction());
    EXPECT_FALSE(messages->isVisible());
    window().close();
    m_viewer.reset();
    startViewer();
    EXPECT_FALSE(child<QDockWidget>("messagesPanel")->isVisible());
    EXPECT_TRUE(child<QDockWidget>("camerasPanel")->isVisible());
}

TEST_F(MainWindowTest, SettingsOfANewerViewerAreToldAndKept)
{
    QSettings().setValue("Viewer/Version", 99);
    QSettings().setValue("Viewer/Layout", "of the future");
    startViewer();
    EXPECT_TRUE(hasMessage("newer viewer"));
    window().close();
    m_viewer.reset();
    EXPECT_EQ(QSettings().value("Viewer/Layout").toString(), "of the future");
}

TEST_F(MainWindowTest, ClosedDuringAGrabItGivesTheCameraBack)
{
    startViewer();
    clickCamera(0, true);
    ASSERT_TRUE(waitForPicture());
    window().close();
    m_viewer.reset();
    EXPECT_FALSE(m_first->isOpen());
    EXPECT_FALSE(m_first->isGrabbing());
}

TEST_F(MainWindowTest, QuittingEndsADialogThatIsOpenFirst)
{
    startViewer();
    QDialog dialog(&window());
    QTimer::singleShot(0, &window(), [&] {
        EXPECT_FALSE(window().close()) << "a dialog is open";
        m_viewer->quit();
    });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
}

TEST_F(MainWindowTest, StaysWhenAPluginMayNotBeClosed)
{
    QTemporaryDir plugins;
    QFile::copy(TEST_PLUGINS "/good.so", plugins.filePath("good.so"));
    startViewer(plugins.path());
    qApp->setProperty("failingCall", "Good closable");
    EXPECT_FALSE(window().close());
    qApp->setProperty("failingCall", QString());
    EXPECT_TRUE(window().close());
}

TEST_F(MainWindowTest, StartsWithTheCameraThatIsNamed)
{
    startViewer({}, m_second->modelName());
    EXPECT_TRUE(waitForPicture());
    EXPECT_TRUE(m_second->isGrabbing());
}

class EmptyAtStart : public ViewerTest
{
protected:
    EmptyAtStart()
    {
        ViewerSettings().setValue("Cameras/Search", false);
        m_backends = Backends::GenICam;
    }

    void startEmpty()
    {
        startViewer();
        ASSERT_TRUE(m_viewer->pool().cameras().isEmpty());
    }

    void appear(const EmulatedCameraPtr& camera) { m_viewer->pool().add(camera); }
    bool isSelected(const EmulatedCameraPtr& camera) { return selected() == camera; }
    Cameras::HostCameraPtr selected() { return window().commands().camera(); }
};

TEST_F(EmptyAtStart, SelectsTheFirstCameraThatAppearsAndNoOther)
{
    ASSERT_NO_FATAL_FAILURE(startEmpty());
    EXPECT_FALSE(selected());
    appear(m_second);
    EXPECT_TRUE(isSelected(m_second));
    appear(m_first);
    EXPECT_TRUE(isSelected(m_second));
}

TEST_F(EmptyAtStart, LeavesTheSelectionToTheUserFromThenOn)
{
    ASSERT_NO_FATAL_FAILURE(startEmpty());
    appear(m_first);
    ASSERT_TRUE(isSelected(m_first));
    m_viewer->pool().remove(m_first);
    EXPECT_FALSE(selected());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    appear(m_second);
    EXPECT_FALSE(selected());
}

TEST_F(MainWindowTest, TellsOfACameraThatIsNotThere)
{
    startViewer({}, "no such camera");
    EXPECT_TRUE(hasMessage("no such camera"));
}

} // namespace
} // namespace Viewer
