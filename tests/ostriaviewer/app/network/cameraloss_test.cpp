// SPDX-License-Identifier: Apache-2.0
// A camera that vanishes does not hold up the windows.
#include "eventloopmeter.h"
#include "featuremodel.h"
#include "networkviewertest.h"

#include <QTreeView>

namespace Viewer {
namespace {

/// The library waits 2.5 s for each answer, and for the end of its own questions; nobody waits for
/// the library for more than half a second.
constexpr qint64 heldUpMs = 1500;

class CameraLossTest : public NetworkViewerTest
{
protected:
    void startWithFeatures()
    {
        startViewer();
        ASSERT_TRUE(isFound());
        openNetworkCamera();
        m_tree = child<QTreeView>("features");
        ASSERT_TRUE(waitUntil([this] { return m_tree->isVisible(); }));
        m_tree->expandAll();
    }

    bool isLossTold()
    {
        return waitUntil([this] { return hasMessage("Reconnect the camera"); });
    }

    QTreeView* m_tree = nullptr;
};

TEST_F(CameraLossTest, WhileItRunsIsToldAndTheCameraCanBeOpenedAgain)
{
    startWithFeatures();
    window().commands().startAction()->trigger();
    ASSERT_TRUE(waitForPicture());
    const EventLoopMeter meter;
    m_rig.vanish();
    EXPECT_TRUE(isLossTold());
    EXPECT_TRUE(waitUntil([this] { return !m_tree->isVisible(); }));
    RecordProperty("longestMs", static_cast<int>(meter.longestMs()));
    EXPECT_LT(meter.longestMs(), heldUpMs);
    EXPECT_TRUE(view().picture().isNull());
    EXPECT_EQ(networkItem()->text(1), "closed");

    m_rig.comeBack();
    window().commands().startAction()->trigger();
    EXPECT_TRUE(waitForPicture());
}

TEST_F(CameraLossTest, DoesNotHoldUpWhoeverWritesAFeature)
{
    startWithFeatures();
    const auto gain =
        m_viewer->pool().cameras().constLast()->parameterCollection()->floatParameter("Gain");
    m_rig.vanish();
    const EventLoopMeter meter;
    auto* model = m_tree->model();
    const QModelIndexList found = model->match(model->index(0, 0), FeatureModel::NameRole, "Gain",
                                               1, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(found.isEmpty());
    EXPECT_FALSE(
        model->setData(found.constFirst().siblingAtColumn(FeatureModel::Value), "3", Qt::EditRole));
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Gain: "); }));
    EXPECT_TRUE(isLossTold());
    EXPECT_FALSE(gain->isAvailable());
    RecordProperty("longestMs", static_cast<int>(meter.longestMs()));
    EXPECT_LT(meter.longestMs(), heldUpMs);
}

struct Deed
{
    const char* name;
    bool isOpen;
    bool isRunning;
    QAction* (CameraCommands::*action)() const;
};

class CameraLossDuring : public CameraLossTest, public testing::WithParamInterface<Deed>
{};

TEST_P(CameraLossDuring, DoesNotHoldUpTheWindows)
{
    startWithFeatures();
    CameraCommands& commands = window().commands();
    if (GetParam().isRunning) {
        commands.startAction()->trigger();
        ASSERT_TRUE(waitForPicture());
    } else if (!GetParam().isOpen) {
        commands.closeAction()->trigger();
        ASSERT_TRUE(waitUntil([this] { return networkItem()->text(1) == "closed"; }));
    }
    m_rig.vanish();
    const EventLoopMeter meter;
    (commands.*GetParam().action)()->trigger();
    if (!GetParam().isOpen) {
        ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
        EXPECT_TRUE(messageBox()->text().contains("could not be opened. The camera \"127.0.0.1\""))
            << qPrintable(messageBox()->text());
        QTest::keyClick(messageBox(), Qt::Key_Return);
    }
    EXPECT_TRUE(waitUntil([this] { return networkItem()->text(1) == "closed"; }));
    RecordProperty("longestMs", static_cast<int>(meter.longestMs()));
    EXPECT_LT(meter.longestMs(), heldUpMs);

    m_rig.comeBack();
    commands.startAction()->trigger();
    EXPECT_TRUE(waitForPicture());
}

INSTANTIATE_TEST_SUITE_P(
    Deeds, CameraLossDuring,
    testing::Values(Deed{"Opening", false, false, &CameraCommands::openAction},
                    Deed{"Starting", true, false, &CameraCommands::startAction},
                    Deed{"OnePicture", true, false, &CameraCommands::singleAction},
                    Deed{"Stopping", true, true, &CameraCommands::stopAction},
                    Deed{"Closing", true, true, &CameraCommands::closeAction}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace Viewer
