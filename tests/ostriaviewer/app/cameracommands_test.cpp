// SPDX-License-Identifier: Apache-2.0
// Cameras are opened, started, stopped and lost as the user sees it.
#include "viewertest.h"

#include <QTreeWidget>

namespace Viewer {
namespace {

class CameraCommandsTest : public ViewerTest
{
protected:
    CameraCommands& commands() { return window().commands(); }
};

TEST_F(CameraCommandsTest, ShowEachStateInTheList)
{
    startViewer();
    clickCamera(0);
    EXPECT_EQ(shownState(0), "closed");
    clickMenu("cameraMenu", commands().openAction());
    EXPECT_TRUE(waitUntil([&] { return shownState(0) == "open"; }));
    clickMenu("cameraMenu", commands().startAction());
    EXPECT_TRUE(waitUntil([&] { return shownState(0) == "acquiring"; }));
    EXPECT_TRUE(waitForPicture());
    clickMenu("cameraMenu", commands().stopAction());
    EXPECT_TRUE(waitUntil([&] { return shownState(0) == "open"; }));
    EXPECT_FALSE(view().picture().isNull()) << "the last picture stays";
    clickMenu("cameraMenu", commands().closeAction());
    EXPECT_TRUE(waitUntil([&] { return shownState(0) == "closed"; }));
    EXPECT_TRUE(view().picture().isNull());
    EXPECT_FALSE(m_first->isOpen());
}

TEST_F(CameraCommandsTest, AreEnabledWhileTheyCanBeUsed)
{
    startViewer();
    clickCamera(0);
    const auto enabled = [this] {
        QString names;
        for (const QAction* action :
             {commands().openAction(), commands().closeAction(), commands().startAction(),
              commands().stopAction(), commands().singleAction()})
            if (action->isEnabled())
                names += action->objectName() + ' ';
        return names;
    };
    EXPECT_EQ(enabled(), "open start single ");
    commands().openAction()->trigger();
    EXPECT_TRUE(waitUntil([&] { return enabled() == "close start single "; }));
    commands().startAction()->trigger();
    EXPECT_TRUE(waitUntil([&] { return enabled() == "close stop "; }));
}

TEST_F(CameraCommandsTest, DoubleClickShowsThePictureOfAClosedCamera)
{
    startViewer();
    clickCamera(1, true);
    EXPECT_TRUE(waitForPicture());
    EXPECT_TRUE(m_second->isGrabbing());
    EXPECT_FALSE(m_first->isOpen());
}

TEST_F(CameraCommandsTest, SingleTakesOnePicture)
{
    startViewer();
    clickCamera(0);
    QTest::keyClick(&window(), Qt::Key_F6);
    EXPECT_TRUE(waitForPicture());
    EXPECT_FALSE(m_first->isGrabbing());
}

TEST_F(CameraCommandsTest, AnotherSelectionLeavesTheFirstCameraRunningButNotSeen)
{
    startViewer();
    clickCamera(0, true);
    ASSERT_TRUE(waitForPicture());
    clickCamera(1);
    EXPECT_TRUE(view().picture().isNull());
    EXPECT_TRUE(m_first->isGrabbing());
    EXPECT_TRUE(view().hint().contains(m_second->displayName()));
}

TEST_F(CameraCommandsTest, AFailedOpeningIsToldWithItsReason)
{
    m_first->faults().setTakenByAnother(true);
    startViewer();
    clickCamera(0);
    QTest::keyClick(&window(), Qt::Key_F5);
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    EXPECT_TRUE(messageBox()->text().contains("used by another application"));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    EXPECT_TRUE(hasMessage("used by another application"));
    EXPECT_EQ(m_first->lastErrorText(), "");
    EXPECT_EQ(shownState(0), "closed");
}

TEST_F(CameraCommandsTest, WhoeverHasExclusiveRightsIsNotDisturbed)
{
    startViewer();
    clickCamera(0);
    commands().openAction()->trigger();
    const auto handle = m_first->takeExclusiveAccess();
    commands().startAction()->trigger();
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    EXPECT_TRUE(messageBox()->text().contains("another part of the program"));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    EXPECT_FALSE(m_first->isGrabbing());
}

TEST_F(CameraCommandsTest, ALostIdleCameraIsToldAndCanBeOpenedAgain)
{
    startViewer();
    clickCamera(0);
    commands().openAction()->trigger();
    m_first->loseConnection();
    EXPECT_TRUE(waitUntil([this] { return hasMessage("connection to"); }));
    EXPECT_TRUE(view().hint().contains("is lost"));
    EXPECT_EQ(shownState(0), "closed");
    m_first->reconnect();
    commands().startAction()->trigger();
    EXPECT_TRUE(waitForPicture());
}

TEST_F(CameraCommandsTest, ACameraLostWhileItRunsLeavesNoPictureThatPassesForALiveOne)
{
    startViewer();
    m_first->faults().loseConnectionAfter(5);
    clickCamera(0, true);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("connection to"); }));
    EXPECT_TRUE(waitUntil([this] { return view().picture().isNull(); }));
    EXPECT_TRUE(view().hint().contains("is lost"));
    EXPECT_EQ(shownState(0), "closed");
}

TEST_F(CameraCommandsTest, FailedFramesAreToldOnceInARow)
{
    startViewer();
    m_first->faults().failFrames(20);
    clickCamera(0, true);
    EXPECT_TRUE(waitForPicture());
    EXPECT_TRUE(hasMessage("incomplete"));
    int told = 0;
    for (int row = 0; row < m_viewer->messages().rowCount(); ++row)
        told += m_viewer->messages().message(row).text.contains("incomplete") ? 1 : 0;
    EXPECT_EQ(told, 1);
}

TEST_F(CameraCommandsTest, TheStatusBarTellsRateSizeAndScale)
{
    startViewer();
    clickCamera(0, true);
    EXPECT_TRUE(waitUntil([this] { return child<QLabel>("rate")->text().contains("pictures/s"); }));
    EXPECT_TRUE(child<QLabel>("scale")->text().startsWith("96 x 64 at"));
}

} // namespace
} // namespace Viewer
