// SPDX-License-Identifier: Apache-2.0
// The live view rests where another window shows the camera's picture itself.
#include "viewertest.h"

#include <QDialog>
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

} // namespace
} // namespace Viewer
