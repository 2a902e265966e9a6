// SPDX-License-Identifier: Apache-2.0
// The calibrator's plugin in the viewer: whatever ends it early, the camera is given back.
#include "processcounts.h"
#include "viewertest.h"

#include <QDialog>
#include <QPointer>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickView>
#include <QThreadPool>
#include <QTimer>

namespace Viewer {
namespace {

const QString disconnected =
    "<p>The camera has been disconnected.<br/>Reconnect the camera to the computer and open it to "
    "continue using the Color Calibrator.</p>";

class CalibratorPlugin : public ViewerTest
{
protected:
    void startWithOpenCamera()
    {
        startViewer(CALIBRATOR_FOLDER);
        clickCamera(0);
        window().commands().openAction()->trigger();
        ASSERT_TRUE(waitUntil([this] { return m_first->isOpen() && command(); }))
            << "in the Tools menu";
    }

    QAction* command()
    {
        for (QAction* action : child<QMenu>("toolsMenu")->actions())
            if (action->text() == "Color Calibrator" && action->isVisible())
                return action;
        return nullptr;
    }

    /// Starts the wizard, and hands every modal window to the function once, when it has come up.
    void run(const std::function<void(QDialog&)>& onWindow)
    {
        QVector<QPointer<QWidget>> seen;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || seen.contains(dialog))
                return;
            seen.append(dialog);
            onWindow(*dialog);
        });
        watch.start(0);
        command()->trigger();
    }

    static bool isWizard(const QDialog& dialog)
    {
        return dialog.inherits("ColorCalibration::ColorCorrectionToolDlg");
    }

    static QQuickView* scene()
    {
        for (QWindow* window : QGuiApplication::allWindows())
            if (auto* view = qobject_cast<QQuickView*>(window))
                return view;
        return nullptr;
    }

    /// Changes the camera's settings as the wizard does on the way to its second step.
    static void changeSettings()
    {
        auto* model =
            scene()->rootContext()->contextProperty("qmlModelInterface").value<QObject*>();
        bool isKept = false;
        bool isNeutral = false;
        QMetaObject::invokeMethod(model, "createSettingsBackup", Q_RETURN_ARG(bool, isKept),
                                  Q_ARG(bool, false));
        QMetaObject::invokeMethod(model, "setNeutralSettings", Q_RETURN_ARG(bool, isNeutral));
        EXPECT_TRUE(isKept && isNeutral);
    }

    static void openBox(const char* name)
    {
        auto* box = scene()->rootObject()->findChild<QObject*>(name);
        ASSERT_TRUE(box) << name;
        QMetaObject::invokeMethod(box, "open");
    }

    /// Returns when the dialog has ended.
    static void openFileDialog()
    {
        auto* dialog = scene()->rootObject()->findChild<QObject*>("previousCalibrationDialog");
        ASSERT_TRUE(dialog);
        QMetaObject::invokeMethod(dialog, "openDialog");
    }

    QStringList settings()
    {
        QString text;
        m_first->parameterCollection()->saveFeatures(text, "@CameraDevice");
        QStringList lines;
        for (const QString& line : text.split('\n'))
            if (!line.startsWith('#')) // such as the date
                lines << line;
        return lines;
    }
};

TEST_F(CalibratorPlugin, QuittingWithTheWizardOpenRestoresTheSettings)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    m_first->parameterCollection()->floatParameter("Gamma")->setValue(0.75);
    const QStringList before = settings();
    int wizards = 0;
    run([&](QDialog& dialog) {
        EXPECT_TRUE(isWizard(dialog));
        ++wizards;
        changeSettings();
        EXPECT_NE(settings(), before);
        m_viewer->quit();
    });
    EXPECT_EQ(wizards, 1);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
    EXPECT_FALSE(m_first->isExclusive());
    EXPECT_EQ(settings(), before);
    m_viewer.reset();
    EXPECT_FALSE(m_first->isOpen());
}

TEST_F(CalibratorPlugin, QuittingWithAMessageOfTheWizardOpenEndsBoth)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    int boxes = 0;
    run([&](QDialog& dialog) {
        if (isWizard(dialog))
            return openBox("modelWarning");
        ++boxes;
        m_viewer->quit();
    });
    EXPECT_EQ(boxes, 1);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
    EXPECT_FALSE(m_first->isExclusive());
}

TEST_F(CalibratorPlugin, QuittingInTheQuestionLeavesTheCameraAlone)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    window().commands().startAction()->trigger();
    ASSERT_TRUE(waitForPicture());
    int windows = 0;
    run([&](QDialog& dialog) {
        EXPECT_FALSE(isWizard(dialog));
        ++windows;
        EXPECT_TRUE(m_first->isGrabbing());
        m_viewer->quit();
    });
    EXPECT_EQ(windows, 1);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
}

TEST_F(CalibratorPlugin, ACameraLostInTheQuestionIsToldInsteadOfTheWizard)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    window().commands().startAction()->trigger();
    ASSERT_TRUE(waitForPicture());
    QStringList told;
    run([&](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box) << "no wizard without a camera";
        told << box->text();
        if (auto* yes = box->button(QMessageBox::Yes)) {
            m_first->loseConnection();
            return yes->click();
        }
        box->button(QMessageBox::Ok)->click();
    });
    ASSERT_EQ(told.size(), 2);
    EXPECT_EQ(told[1], "The camera does not answer.");
    EXPECT_FALSE(m_first->isExclusive());
}

TEST_F(CalibratorPlugin, ACameraLostInTheBoxThatRefusesItIsNoFault)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    auto held = m_first->takeExclusiveAccess();
    ASSERT_TRUE(held);
    QStringList told;
    run([&](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box);
        told << box->text();
        m_first->loseConnection();
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(told, QStringList("The camera is being used by another part of the program."));
    held.reset();
    m_first->reconnect();
    window().commands().openAction()->trigger();
    int wizards = 0;
    run([&](QDialog& dialog) {
        wizards += isWizard(dialog) ? 1 : 0;
        dialog.close();
    });
    EXPECT_EQ(wizards, 1) << "reconnected and opened it can be calibrated";
}

TEST_F(CalibratorPlugin, ACameraLostWhileTheWizardOpensIsToldOnce)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    // Comes with the first event after the window was made.
    QTimer::singleShot(0, &window(), [this] { m_first->loseConnection(); });
    QStringList told;
    run([&](QDialog& dialog) {
        if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            told << box->text();
            box->button(QMessageBox::Ok)->click();
        }
    });
    EXPECT_EQ(told, QStringList(disconnected));
    EXPECT_FALSE(m_first->isExclusive());
}

TEST_F(CalibratorPlugin, ACameraLostWithItsFirstImageIsToldOnce)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    m_first->faults().loseConnectionAfter(1);
    QStringList told;
    run([&](QDialog& dialog) {
        if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            told << box->text();
            box->button(QMessageBox::Ok)->click();
        }
    });
    EXPECT_EQ(told, QStringList(disconnected));
}

TEST_F(CalibratorPlugin, ACameraLostBehindAFileDialogOfTheWizardEndsBoth)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    QPointer<QDialog> wizard;
    QPointer<QDialog> files;
    int losses = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!files || !files->isVisible() || wizard->isVisible())
            return;
        ADD_FAILURE() << "locks the viewer";
        files->reject();
    });
    watch.start(0);
    run([&](QDialog& dialog) {
        if (isWizard(dialog)) {
            wizard = &dialog;
            QTimer::singleShot(0, &dialog, openFileDialog);
        } else if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            losses += box->text() == disconnected ? 1 : 0;
            box->button(QMessageBox::Ok)->click();
        } else {
            EXPECT_FALSE(files);
            files = &dialog;
            // Not within the watch, which sees no window before it has returned.
            QTimer::singleShot(0, &window(), [this] { m_first->loseConnection(); });
        }
    });
    EXPECT_TRUE(wizard);
    EXPECT_EQ(losses, 1);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(m_first->isExclusive());
}

TEST_F(CalibratorPlugin, QuittingWithAFileDialogOfTheWizardOpenEndsBoth)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    int dialogs = 0;
    run([&](QDialog& dialog) {
        if (isWizard(dialog)) {
            QTimer::singleShot(0, &dialog, openFileDialog);
            return;
        }
        ++dialogs;
        m_viewer->quit();
    });
    EXPECT_EQ(dialogs, 1);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
    EXPECT_FALSE(m_first->isExclusive());
}

#if defined(Q_OS_LINUX)

/// What is drawn with and the engine of the scene keep threads, so that the first start may leave
/// some.
TEST_F(CalibratorPlugin, LeavesNoThreadBehindHoweverItEnds)
{
    auto& pool = *QThreadPool::globalInstance();
    const int expiry = pool.expiryTimeout();
    pool.setExpiryTimeout(0);
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    const auto close = [](QDialog& dialog) {
        EXPECT_TRUE(waitUntil([] { return scene()->rootObject() != nullptr; }));
        dialog.close();
    };
    int before = 0;
    for (int round = 0; round < 5; ++round) {
        if (round == 1)
            before = threadCount();
        run(close);
        m_first->faults().loseConnectionAfter(1);
        run([](QDialog& dialog) {
            if (auto* box = qobject_cast<QMessageBox*>(&dialog))
                box->button(QMessageBox::Ok)->click();
        });
        m_first->reconnect();
        ASSERT_TRUE(waitUntil([this] { return window().commands().openAction()->isEnabled(); }));
        window().commands().openAction()->trigger();
        ASSERT_TRUE(m_first->isOpen());
    }
    EXPECT_TRUE(waitUntil([&] { return threadCount() <= before; }))
        << threadCount() << " and " << before;
    pool.setExpiryTimeout(expiry);
}

#endif

class MessageOfTheWizard : public CalibratorPlugin, public testing::WithParamInterface<const char*>
{};

TEST_P(MessageOfTheWizard, EndsWithItWhereTheCameraIsLost)
{
    ASSERT_NO_FATAL_FAILURE(startWithOpenCamera());
    int boxes = 0;
    int losses = 0;
    run([&](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (!box) {
            scene()
                ->rootContext()
                ->contextProperty("qmlModelInterface")
                .value<QObject*>()
                ->setProperty("activeStep", 2);
            return openBox(GetParam());
        }
        if (box->text() == disconnected) {
            ++losses;
            box->button(QMessageBox::Ok)->click();
        } else {
            ++boxes;
            // Not within the watch, which sees no window before it has returned.
            QTimer::singleShot(0, &window(), [this] { m_first->loseConnection(); });
        }
    });
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(losses, 1);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(m_first->isExclusive());
}

INSTANTIATE_TEST_SUITE_P(CalibratorPlugin, MessageOfTheWizard,
                         testing::Values("modelError", "modelWarning", "criticalError",
                                         "cancelWarningDialog", "autoAdjustGrayError"),
                         [](const auto& box) { return std::string(box.param); });

} // namespace
} // namespace Viewer
