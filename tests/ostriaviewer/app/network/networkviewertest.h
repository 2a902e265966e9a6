// SPDX-License-Identifier: Apache-2.0
// A viewer that looks for cameras within this computer, and a camera there.
#pragma once

#include "camerarig.h"
#include "viewertest.h"

namespace Viewer {

class NetworkViewerTest : public ViewerTest
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
        m_backends = Backends::All;
        remember("Interfaces", QStringList("lo"));
        remember("PacketSize", 9000);
    }

    /// Puts a value into the settings with which the viewer starts.
    static void remember(const char* name, const QVariant& value)
    {
        QSettings settings;
        settings.setValue("Viewer/Version", ViewerSettings::version);
        settings.setValue(QString("Viewer/Cameras/%1").arg(name), value);
    }

    /// Null if it is not in the list. It has the model of an emulated one.
    QTreeWidgetItem* networkItem()
    {
        auto* tree = child<QTreeWidget>("cameras");
        for (int row = 0; row < tree->topLevelItemCount(); ++row)
            if (tree->topLevelItem(row)->text(0) == "Network cameras")
                return tree->topLevelItem(row)->child(0);
        return nullptr;
    }

    /// Searches until something is so.
    bool becomesAfterSearches(const std::function<bool()>& condition)
    {
        auto* search = child<QAction>("searchCameras");
        return waitUntil([&] {
            search->trigger();
            return condition();
        });
    }

    bool isFound()
    {
        return becomesAfterSearches([this] { return networkItem() != nullptr; });
    }

    void openNetworkCamera()
    {
        clickItem(networkItem());
        window().commands().openAction()->trigger();
        ASSERT_TRUE(waitUntil([this] { return networkItem()->text(1) == "open"; }));
    }

    NetworkRig m_rig{Cameras::Emulation::smallModel()};
};

} // namespace Viewer
