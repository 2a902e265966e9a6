// SPDX-License-Identifier: Apache-2.0
// Cameras on the network come and go in the viewer's list.
#include "networkviewertest.h"

#include <QComboBox>

namespace Viewer {
namespace {

using CameraSourcesTest = NetworkViewerTest;

TEST_F(CameraSourcesTest, AreFoundAfterTheStartAndStandBesideTheEmulatedOnes)
{
    startViewer();
    EXPECT_EQ(m_viewer->pool().cameras().size(), 2);
    ASSERT_TRUE(waitUntil([this] { return networkItem() != nullptr; }));
    EXPECT_EQ(networkItem()->text(0), m_rig.served().displayName());
    EXPECT_EQ(networkItem()->text(1), "closed");
    EXPECT_EQ(m_viewer->pool().cameras().size(), 3);
    EXPECT_TRUE(hasMessage(m_rig.served().displayName() + " was found."));
}

TEST_F(CameraSourcesTest, SelectTheFirstOneWhereThereIsNoOther)
{
    m_backends = Backends::GenICam;
    startViewer();
    EXPECT_FALSE(window().commands().camera());
    ASSERT_TRUE(waitUntil([this] { return networkItem() != nullptr; }));
    EXPECT_TRUE(networkItem()->isSelected());
    EXPECT_EQ(window().commands().camera(), m_viewer->pool().cameras().constFirst());
}

TEST_F(CameraSourcesTest, GoWithTheCameraAndComeBackWithIt)
{
    startViewer();
    ASSERT_TRUE(isFound());
    const auto camera = m_viewer->pool().cameras().constLast();
    m_rig.vanish();
    ASSERT_TRUE(becomesAfterSearches([this] { return networkItem() == nullptr; }));
    EXPECT_TRUE(hasMessage("can no longer be found"));
    EXPECT_FALSE(m_viewer->pool().cameras().contains(camera));
    m_rig.comeBack();
    ASSERT_TRUE(isFound());
    EXPECT_EQ(m_viewer->pool().cameras().constLast(), camera);
}

TEST_F(CameraSourcesTest, AreShownAndControlledLikeAnyOther)
{
    startViewer();
    ASSERT_TRUE(isFound());
    clickItem(networkItem(), true);
    EXPECT_TRUE(waitForPicture());
    EXPECT_TRUE(waitUntil([this] { return networkItem()->text(1) == "acquiring"; }));
    window().commands().stopAction()->trigger();
    EXPECT_TRUE(waitUntil([this] { return networkItem()->text(1) == "open"; }));
    window().commands().closeAction()->trigger();
    EXPECT_TRUE(waitUntil([this] { return networkItem()->text(1) == "closed"; }));
}

TEST_F(CameraSourcesTest, SayWhenAnotherProgramHasTheCamera)
{
    m_rig.takeByAnother();
    startViewer();
    ASSERT_TRUE(isFound());
    clickItem(networkItem());
    window().commands().openAction()->trigger();
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    EXPECT_EQ(messageBox()->text(),
              m_rig.served().displayName() +
                  " could not be opened. The camera is being used by another application.");
    QTest::keyClick(messageBox(), Qt::Key_Return);
    m_rig.giveBack();
    window().commands().openAction()->trigger();
    EXPECT_TRUE(waitUntil([this] { return networkItem()->text(1) == "open"; }));
}

TEST_F(CameraSourcesTest, AtAFixedAddressAreListedAtOnceAndLearnTheirName)
{
    remember("Search", false);
    remember("Addresses", QStringList{"127.0.0.1", "127.0.0.9"});
    startViewer();
    ASSERT_EQ(m_viewer->pool().cameras().size(), 4);
    EXPECT_TRUE(becomesAfterSearches(
        [this] { return networkItem()->text(0) == m_rig.served().displayName(); }));
    EXPECT_EQ(networkItem()->parent()->child(1)->text(0), "127.0.0.9");
    EXPECT_EQ(m_viewer->pool().cameras().size(), 4);
}

TEST_F(CameraSourcesTest, AreAskedForBeforeTheSettingsCloseThem)
{
    startViewer();
    ASSERT_TRUE(isFound());
    openNetworkCamera();
    const auto camera = window().commands().camera();
    child<QAction>("editCameraSettings")->trigger();
    auto* backends = child<QComboBox>("backends");
    backends->setCurrentIndex(backends->findData("emulation"));
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    ASSERT_TRUE(messageBox());
    EXPECT_TRUE(messageBox()->text().contains(m_rig.served().displayName() + " (open)"));
    QTest::keyClick(messageBox(), Qt::Key_Escape);
    EXPECT_TRUE(camera->isOpen());
    EXPECT_TRUE(networkItem() != nullptr);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
}

TEST_F(CameraSourcesTest, FollowTheSettingsAtOnce)
{
    startViewer();
    ASSERT_TRUE(isFound());
    child<QAction>("editCameraSettings")->trigger();
    auto* backends = child<QComboBox>("backends");
    backends->setCurrentIndex(backends->findData("emulation"));
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return networkItem() == nullptr; }));
    EXPECT_EQ(m_viewer->pool().cameras().size(), 2);
    EXPECT_EQ(QSettings().value("Viewer/Cameras/Backends"), "emulation");
    EXPECT_EQ(QSettings().value("Viewer/Cameras/PacketSize"), 9000);
}

} // namespace
} // namespace Viewer
