// SPDX-License-Identifier: Apache-2.0
// The live view rests where another window shows the camera's picture itself.
#include "viewertest.h"

#include <QDialog>
#include <QDir>
#include <QTimer>

namespace Viewer {
namespace {

class LiveSessionTest : public ViewerTest
{
protected:
    /// Opens the first camera and takes a picture.
    void showPicture()
    {
        startViewer();
        clickCamera(0);
        window().commands().openAction()->trigger();
        window().commands().singleAction()->trigger();
        ASSERT_TRUE(waitForPicture());
        m_shown = view().picture().cacheKey();
    }

    bool isPictureNew() { return view().picture().cacheKey() != m_shown; }

    /// Runs a modal dialog over the window until the function has returned.
    void runDialog(const std::function<void()>& inDialog)
    {
        QDialog dialog(&window());
        QTimer::singleShot(0, &dialog, [&] {
            inDialog();
            dialog.close();
        });
        dialog.exec();
    }

    qint64 m_shown = 0;
};

TEST_F(LiveSessionTest, RestsBehindAModalWindowThatHoldsTheCamera)
{
    ASSERT_NO_FATAL_FAILURE(showPicture());
    const auto held = m_first->takeExclusiveAccess();
    ASSERT_TRUE(held);
    // Who converts the same frame meanwhile is done with it.
    FrameConverter other;
    bool isOtherDone = false;
    QObject::connect(&other, &FrameConverter::frameReady, [&] { isOtherDone = true; });
    QObject::connect(
        held.data(), &Core::CameraPoolComponents::ICamera::cameraImageGrabbed,
        [inlet = other.openInlet()](const auto& /*camera*/, const auto& result) { inlet(result); });
    runDialog([&] {
        ASSERT_TRUE(held->grabSingle(patienceMs));
        ASSERT_TRUE(waitUntil([&] { return isOtherDone; }));
        EXPECT_FALSE(isPictureNew());
    });
    EXPECT_TRUE(waitUntil([this] { return isPictureNew(); }))
        << "the window's last picture is shown when it has gone";
}

TEST_F(LiveSessionTest, GoesOnBehindAModalWindowThatDoesNotHoldTheCamera)
{
    ASSERT_NO_FATAL_FAILURE(showPicture());
    runDialog([this] {
        window().commands().singleAction()->trigger();
        EXPECT_TRUE(waitUntil([this] { return isPictureNew(); }));
    });
}

#ifdef Q_OS_LINUX
TEST_F(LiveSessionTest, LeavesNoThreadBehindThatWorkedForALostCamera)
{
    const auto threads = [] {
        return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    };
    const auto loseCamera = [this] {
        startViewer();
        clickCamera(0);
        window().commands().openAction()->trigger();
        window().commands().startAction()->trigger();
        ASSERT_TRUE(waitForPicture());
        m_first->loseConnection();
        ASSERT_TRUE(waitUntil([this] { return hasMessage("is lost"); }));
        m_viewer.reset();
        m_first->reconnect();
    };
    // The first time makes what stays for the next.
    ASSERT_NO_FATAL_FAILURE(loseCamera());
    const int before = threads();
    ASSERT_GT(before, 0);
    for (int again = 0; again < 3; ++again)
        ASSERT_NO_FATAL_FAILURE(loseCamera());
    EXPECT_TRUE(waitUntil([&] { return threads() <= before; })) << threads() << ", not " << before;
}
#endif

} // namespace
} // namespace Viewer
