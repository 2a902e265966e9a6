// SPDX-License-Identifier: Apache-2.0
// What tests of the viewer's window share: a viewer with two small cameras, and real clicks.
#pragma once

#include "animations.h"
#include "emulationtest.h"
#include "viewerapplication.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QTest>
#include <QTreeWidget>

#include <functional>
#include <memory>
#include <optional>

namespace Viewer {

constexpr int patienceMs = 60000;

inline bool waitUntil(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, patienceMs);
}

class ViewerTest : public Cameras::Emulation::EmulationTest
{
protected:
    using EmulatedCameraPtr = QSharedPointer<Cameras::Emulation::EmulatedCamera>;

    ViewerTest()
    {
        QSettings().clear();
        auto second =
            Cameras::Emulation::smallModel(Cameras::Emulation::FeatureNames::FirstGeneration);
        m_first = makeCamera(Cameras::Emulation::smallModel());
        m_second = makeCamera(second);
    }

    ~ViewerTest() override
    {
        if (m_viewer)
            waitForAnimations(window());
    }

    void startViewer(const QString& pluginFolder = {}, const QString& camera = {})
    {
        ViewerArguments arguments;
        arguments.pluginFolder = pluginFolder.isEmpty() ? folder() : pluginFolder;
        arguments.camera = camera;
        arguments.backends = m_backends;
        m_viewer = std::make_unique<ViewerApplication>(
            arguments, QList<Cameras::HostCameraPtr>{m_first, m_second});
        m_viewer->start();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window(), patienceMs));
    }

    MainWindow& window() { return m_viewer->window(); }
    LiveView& view() { return window().liveView(); }

    template <typename Child>
    Child* child(const char* name)
    {
        auto* found = window().findChild<Child*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    /// Opens a menu of the menu bar and clicks an entry, both with the mouse.
    void clickMenu(const char* menuName, QAction* entry)
    {
        auto* menu = child<QMenu>(menuName);
        QMenuBar* bar = window().menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          bar->actionGeometry(menu->menuAction()).center());
        ASSERT_TRUE(waitUntil([&] { return menu->isVisible(); })) << menuName;
        ASSERT_TRUE(entry->isVisible() && entry->isEnabled()) << qPrintable(entry->text());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    }

    QTreeWidgetItem* cameraItem(int row)
    {
        return child<QTreeWidget>("cameras")->topLevelItem(0)->child(row);
    }
    QString shownState(int row) { return cameraItem(row)->text(1); }

    void clickCamera(int row, bool isDoubled = false) { clickItem(cameraItem(row), isDoubled); }

    void clickItem(const QTreeWidgetItem* item, bool isDoubled = false)
    {
        auto* tree = child<QTreeWidget>("cameras");
        const QPoint position = tree->visualItemRect(item).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, position);
        if (isDoubled)
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, position);
    }

    bool waitForPicture()
    {
        return waitUntil([this] { return !view().picture().isNull(); });
    }

    bool hasMessage(const QString& part)
    {
        const MessageLogModel& messages = m_viewer->messages();
        for (int row = 0; row < messages.rowCount(); ++row)
            if (messages.message(row).text.contains(part))
                return true;
        return false;
    }

    /// The message box that stands open, null if there is none.
    static QMessageBox* messageBox()
    {
        return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    }

    std::optional<Backends> m_backends = Backends::Emulation;
    EmulatedCameraPtr m_first;
    EmulatedCameraPtr m_second;
    std::unique_ptr<ViewerApplication> m_viewer;
};

} // namespace Viewer
