// SPDX-License-Identifier: Apache-2.0
// After a dialog the keyboard works on, also where no window manager gives the focus.
#include "viewertest.h"

#include <QComboBox>
#include <QDockWidget>
#include <QTimer>

#include <algorithm>

namespace Viewer {
namespace {

class DialogFocusTest : public ViewerTest
{
protected:
    /// What the screen gives the keys to.
    static bool hasKeys(const QWidget& widget)
    {
        return waitUntil([&] { return QGuiApplication::focusWindow() == widget.windowHandle(); });
    }

    /// Presses a key where a keyboard would. Its release may find no window left.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_TRUE(QGuiApplication::focusWindow());
        QTest::keyPress(QGuiApplication::focusWindow(), key, modifiers);
    }
};

TEST_F(DialogFocusTest, GoesBackToTheWindow)
{
    startViewer();
    for (const char* command : {"plugins", "about", "editCameraSettings"}) {
        child<QAction>(command)->trigger();
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog) << command;
        ASSERT_TRUE(hasKeys(*dialog)) << command;
        press(Qt::Key_Escape);
        ASSERT_TRUE(hasKeys(window())) << command;
    }
    press(Qt::Key_V, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([this] { return child<QMenu>("viewMenu")->isVisible(); }));
    press(Qt::Key_Escape);
}

TEST_F(DialogFocusTest, GoesBackToTheDialogThatAsked)
{
    startViewer();
    clickCamera(0);
    window().commands().startAction()->trigger();
    child<QAction>("editCameraSettings")->trigger();
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_TRUE(hasKeys(*dialog));
    auto* backends = child<QComboBox>("backends");
    backends->setCurrentIndex(backends->findData("genicam"));
    press(Qt::Key_Return);
    QMessageBox* question = messageBox();
    ASSERT_TRUE(question);
    ASSERT_TRUE(hasKeys(*question));
    press(Qt::Key_Escape);
    EXPECT_TRUE(hasKeys(*dialog));
    press(Qt::Key_Escape);
    EXPECT_TRUE(hasKeys(window()));
}

/// The features stand in a window of their own and have the keys.
class FocusOfAFloatingPanel : public DialogFocusTest
{
protected:
    void floatFeatures()
    {
        startViewer();
        m_panel = child<QDockWidget>("featuresPanel");
        m_panel->setFloating(true);
        m_panel->show();
        m_panel->activateWindow();
        ASSERT_TRUE(hasKeys(*m_panel));
    }

    /// With the keys, which Qt gives to the main window below it where a panel had them.
    void openDialog()
    {
        child<QAction>("editCameraSettings")->trigger();
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        ASSERT_TRUE(hasKeys(window()));
        dialog->activateWindow();
        ASSERT_TRUE(hasKeys(*dialog));
    }

    QDockWidget* m_panel = nullptr;
};

TEST_F(FocusOfAFloatingPanel, ComesBackToIt)
{
    ASSERT_NO_FATAL_FAILURE(floatFeatures());
    ASSERT_NO_FATAL_FAILURE(openDialog());
    press(Qt::Key_Escape);
    EXPECT_TRUE(hasKeys(*m_panel));
}

TEST_F(FocusOfAFloatingPanel, IsNotTakenByADialogThatLeftIt)
{
    ASSERT_NO_FATAL_FAILURE(floatFeatures());
    QDialog dialog(&window());
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(hasKeys(dialog));
    m_panel->activateWindow();
    ASSERT_TRUE(hasKeys(*m_panel));
    dialog.hide();
    // Behind what the dialog's end has left to the event loop.
    bool isDone = false;
    QTimer::singleShot(0, &dialog, [&isDone] { isDone = true; });
    ASSERT_TRUE(waitUntil([&isDone] { return isDone; }));
    EXPECT_TRUE(hasKeys(*m_panel));
}

TEST_F(FocusOfAFloatingPanel, GoesToTheWindowWhereThePanelIsClosed)
{
    ASSERT_NO_FATAL_FAILURE(floatFeatures());
    ASSERT_NO_FATAL_FAILURE(openDialog());
    m_panel->hide();
    press(Qt::Key_Escape);
    EXPECT_TRUE(hasKeys(window()));
}

TEST_F(DialogFocusTest, GoesBackToTheWindowAfterTheWizard)
{
    startViewer(CALIBRATOR_FOLDER);
    clickCamera(0);
    window().commands().openAction()->trigger();
    const QList<QAction*> tools = child<QMenu>("toolsMenu")->actions();
    const auto wizard = std::find_if(tools.begin(), tools.end(), [](const QAction* action) {
        return action->text() == "Color Calibrator";
    });
    ASSERT_NE(wizard, tools.end());
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog && QGuiApplication::focusWindow() &&
            QGuiApplication::focusWindow() != dialog->windowHandle())
            QTest::keyPress(QGuiApplication::focusWindow(), Qt::Key_Escape);
    });
    watch.start(100);
    (*wizard)->trigger();
    watch.stop();
    EXPECT_TRUE(hasKeys(window()));
}

} // namespace
} // namespace Viewer
