// SPDX-License-Identifier: Apache-2.0
// The calibrator's own plugin in the viewer, with a camera on the network.
#include "networkviewertest.h"

namespace Viewer {
namespace {

class CalibratorCommandTest : public NetworkViewerTest
{
protected:
    void startWithNetworkCamera()
    {
        startViewer(CALIBRATOR_FOLDER);
        ASSERT_TRUE(isFound());
        ASSERT_FALSE(isShown());
        ASSERT_NO_FATAL_FAILURE(openNetworkCamera());
    }

    bool isShown()
    {
        for (const QAction* action : child<QMenu>("toolsMenu")->actions())
            if (action->text() == "Color Calibrator" && action->isVisible())
                return true;
        return false;
    }
};

TEST_F(CalibratorCommandTest, IsShownForACameraThatIsOpened)
{
    ASSERT_NO_FATAL_FAILURE(startWithNetworkCamera());
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
}

TEST_F(CalibratorCommandTest, IsShownWhenACameraThatWasSilentAnswersAgain)
{
    ASSERT_NO_FATAL_FAILURE(startWithNetworkCamera());
    clickCamera(0);
    ASSERT_TRUE(waitUntil([this] { return !isShown(); }));
    m_rig.hold();
    clickItem(networkItem());
    EXPECT_FALSE(isShown());
    m_rig.letGo();
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
}

} // namespace
} // namespace Viewer
