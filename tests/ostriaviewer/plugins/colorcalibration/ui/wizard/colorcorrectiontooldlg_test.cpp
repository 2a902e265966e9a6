// SPDX-License-Identifier: Apache-2.0
// Tests of the window of the wizard.
#include "colorcorrectiontooldlg.h"

#include "logrecorder.h"
#include "qmldatamodelinterface.h"
#include "recordinglog.h"
#include "recordingmodel.h"
#include "scene.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <thread>

namespace ColorCalibration {
namespace {

const QStringList givenBack{"StopGrabbing", "RestoreSettingsBackup false", "Close"};

class ColorCorrectionToolDlgTest : public testing::Test
{
protected:
    void SetUp() override { make(&m_window); }

    void make(QWidget* parent)
    {
        m_data = std::make_unique<QmlDataModelInterface>(&m_model);
        m_dialog = new ColorCorrectionToolDlg(m_data.get(), m_log, parent);
        m_model.takeCalls();
    }

    void TearDown() override { delete m_dialog; }

    /// Runs the dialog; the action comes when it is shown.
    void run(const std::function<void()>& action)
    {
        QTimer::singleShot(0, m_dialog.data(), action);
        m_dialog->exec();
    }

    RecordingModel m_model;
    QSharedPointer<RecordingLog> m_log = QSharedPointer<RecordingLog>::create();
    std::unique_ptr<Scene> m_scene = std::make_unique<Scene>("healthy");
    QWidget m_window;
    std::unique_ptr<QmlDataModelInterface> m_data;
    QPointer<ColorCorrectionToolDlg> m_dialog;
};

TEST_F(ColorCorrectionToolDlgTest, HoldsTheSceneAlone)
{
    EXPECT_EQ(m_dialog->windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
    EXPECT_TRUE(m_dialog->windowFlags() & Qt::WindowTitleHint);
    EXPECT_FALSE(m_dialog->windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_EQ(m_dialog->parentWidget(), &m_window);
    auto* layout = qobject_cast<QBoxLayout*>(m_dialog->layout());
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->direction(), QBoxLayout::LeftToRight);
    EXPECT_EQ(layout->spacing(), 0);
    EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    ASSERT_EQ(layout->count(), 1);
    const QWidget* container = layout->itemAt(0)->widget();
    EXPECT_EQ(container->minimumSize(), QSize(800, 750));
    EXPECT_EQ(container->maximumSize(), QSize(2000, 2000));
    EXPECT_EQ(container->focusPolicy(), Qt::TabFocus);
}

TEST_F(ColorCorrectionToolDlgTest, TheSceneIsDrawn)
{
    QColor middle;
    run([&] {
        QSignalSpy drawn(m_data->view(), &QQuickWindow::frameSwapped);
        EXPECT_TRUE(drawn.wait());
        const QImage image = m_data->view()->grabWindow();
        middle = image.pixelColor(image.rect().center());
        m_dialog->close();
    });
    EXPECT_EQ(middle, QColor(0, 255, 0));
}

TEST_F(ColorCorrectionToolDlgTest, FinishKeepsTheSettingsAndClosesTheCamera)
{
    const QSignalSpy finished(m_dialog.data(), &QDialog::finished);
    run([this] { m_data->finish(); });
    EXPECT_EQ(m_model.calls(), QStringList({"StopGrabbing", "Close"}));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(m_data->view()->rootObject()->property("cleanups").toInt(), 1);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(ColorCorrectionToolDlgTest, CancelRestoresOnce)
{
    run([this] { m_data->cancel(); });
    EXPECT_EQ(m_model.calls(), givenBack);
}

TEST_F(ColorCorrectionToolDlgTest, ADecisionThatComesAfterItsEndCountsForNoLaterRun)
{
    run([this] { m_data->finish(); });
    emit m_data->signalCancel();
    m_model.takeCalls();
    run([this] { m_dialog->close(); });
    EXPECT_EQ(m_model.calls(), givenBack);
}

TEST_F(ColorCorrectionToolDlgTest, AClosedWindowCountsAsCancel)
{
    run([this] { m_dialog->close(); });
    EXPECT_EQ(m_model.takeCalls(), givenBack);
    EXPECT_EQ(m_data->view()->rootObject()->property("cleanups").toInt(), 1);
    run([this] { m_dialog->reject(); });
    EXPECT_EQ(m_model.takeCalls(), givenBack) << "Escape";
    run([this] { m_data->finish(); });
    EXPECT_EQ(m_model.takeCalls(), QStringList({"StopGrabbing", "Close"}));
    run([this] { m_dialog->close(); });
    EXPECT_EQ(m_model.takeCalls(), givenBack) << "an earlier Finish counts no more";
}

TEST_F(ColorCorrectionToolDlgTest, EscapeBesideTheSceneEndsNothing)
{
    run([this] {
        QTest::keyClick(m_dialog, Qt::Key_Escape);
        EXPECT_TRUE(m_dialog->isVisible());
        EXPECT_TRUE(m_model.calls().isEmpty());
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return QGuiApplication::focusWindow() == m_data->view(); }, 60000))
            << "the keys are the scene's";
        m_dialog->close();
    });
}

TEST_F(ColorCorrectionToolDlgTest, EscapeLeavesThePageThatSaysWhatIsMissing)
{
    delete m_dialog;
    m_scene = std::make_unique<Scene>("missingmodule");
    make(&m_window);
    run([this] {
        QTest::keyClick(m_dialog, Qt::Key_Escape);
        EXPECT_FALSE(m_dialog->isVisible());
        m_dialog->close();
    });
    EXPECT_EQ(m_model.calls(), givenBack);
}

TEST_F(ColorCorrectionToolDlgTest, SettingsThatCannotBeGivenBackAreToldWhenTheWindowHasGone)
{
    m_model.refused = {"RestoreSettingsBackup"};
    QStringList told;
    QTimer waiter;
    QObject::connect(&waiter, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        EXPECT_FALSE(m_dialog->isVisible());
        EXPECT_EQ(m_model.calls().constLast(), "Close");
        EXPECT_EQ(box->windowTitle(), "Color Calibrator");
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        told << box->text();
        box->button(QMessageBox::Ok)->click();
    });
    waiter.start(0);
    const QString text = "The camera's original settings couldn't be restored. Load them from a "
                         "user set or a settings file.";
    run([this] { m_data->cancel(); });
    EXPECT_EQ(told, QStringList{text});
    run([this] { m_dialog->close(); });
    EXPECT_EQ(told, QStringList({text, text})) << "neither Finish nor Cancel";
    m_model.refused.clear();
    run([this] { m_data->cancel(); });
    EXPECT_EQ(told.size(), 2) << "an earlier failure counts no more";
}

TEST_F(ColorCorrectionToolDlgTest, TheEndOfTheApplicationCountsAsCancel)
{
    QTimer::singleShot(0, [this] { run([] { QCoreApplication::quit(); }); });
    QApplication::exec();
    EXPECT_EQ(m_model.calls(), givenBack);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(ColorCorrectionToolDlgTest, ItsOwnDestructionCountsAsCancel)
{
    run([this] { delete m_dialog; });
    EXPECT_FALSE(m_dialog);
    EXPECT_EQ(m_model.calls(), givenBack);
}

TEST_F(ColorCorrectionToolDlgTest, OutlivesTheWindowThatWasItsParent)
{
    delete m_dialog;
    auto window = std::make_unique<QWidget>();
    make(window.get());
    window.reset();
    ASSERT_TRUE(m_dialog);
    m_data->resetScene();
    m_model.takeCalls();
    run([this] { m_data->finish(); });
    EXPECT_EQ(m_model.calls(), QStringList({"StopGrabbing", "Close"}));
}

TEST_F(ColorCorrectionToolDlgTest, TheEndOfItsParentWhileItIsOpenCountsAsCancel)
{
    delete m_dialog;
    auto window = std::make_unique<QWidget>();
    make(window.get());
    run([&window] { window.reset(); });
    ASSERT_TRUE(m_dialog);
    EXPECT_EQ(m_model.calls(), givenBack);
}

TEST_F(ColorCorrectionToolDlgTest, ALostCameraIsToldOnceAndClosesTheWindow)
{
    int boxes = 0;
    run([&] {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            ++boxes;
            EXPECT_EQ(box->windowTitle(), "Color Calibrator");
            EXPECT_EQ(box->text(),
                      "<p>The camera has been disconnected.<br/>Reconnect the camera to the "
                      "computer and open it to continue using the Color Calibrator.</p>");
            EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
            EXPECT_FALSE(box->iconPixmap().isNull()) << "the host's picture";
            EXPECT_EQ(box->iconPixmap().size(), QSize(32, 32));
            EXPECT_TRUE(m_model.calls().isEmpty()) << "the camera is given back after the box";
            box->button(QMessageBox::Ok)->click();
        });
        emit m_model.cameraRemoved();
    });
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(m_model.calls(), givenBack);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(ColorCorrectionToolDlgTest, ACameraLostOnAnotherThreadIsToldOnTheGuiThread)
{
    bool told = false;
    run([&] {
        QTimer::singleShot(0, [&] { std::thread([&] { emit m_model.cameraRemoved(); }).join(); });
        auto* waiter = new QTimer(m_dialog);
        QObject::connect(waiter, &QTimer::timeout, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told = true;
                box->accept();
            }
        });
        waiter->start(0);
    });
    EXPECT_TRUE(told);
    EXPECT_EQ(m_model.calls(), givenBack);
}

TEST_F(ColorCorrectionToolDlgTest, EachFailedGrabIsAWarningInBothLogs)
{
    const LogRecorder recorder;
    emit m_data->forwardImageGrabFailed();
    emit m_data->forwardImageGrabFailed();
    const QString text = "Image acquisition is slowed down by certain parameter settings in the "
                         "camera, e.g., exposure time.";
    ASSERT_EQ(m_log->entries.size(), 2);
    for (const RecordingLog::Entry& entry : m_log->entries) {
        EXPECT_EQ(entry.level, Core::Logging::Warning);
        EXPECT_EQ(entry.source, "Ostria Color Calibrator");
        EXPECT_EQ(entry.text, text);
        EXPECT_TRUE(entry.time.isNull());
    }
    ASSERT_EQ(recorder.entries().size(), 2);
    EXPECT_EQ(recorder.entries().first().category,
              "ostria.viewer.plugins.colorCalibration.colorCorrectionTool");
    EXPECT_EQ(recorder.entries().first().level, Core::Logging::Warning);
    EXPECT_EQ(recorder.entries().first().text, text);
}

TEST_F(ColorCorrectionToolDlgTest, MessagesKeepTheirLevel)
{
    m_data->LogMessage("done", Core::Logging::Information);
    ASSERT_TRUE(QMetaObject::invokeMethod(m_dialog, "addLogMessage", Q_ARG(QString, "alone")));
    ASSERT_EQ(m_log->entries.size(), 2);
    EXPECT_EQ(m_log->entries[0].level, Core::Logging::Information);
    EXPECT_EQ(m_log->entries[0].text, "done");
    EXPECT_EQ(m_log->entries[1].level, Core::Logging::Warning);
}

TEST_F(ColorCorrectionToolDlgTest, WithoutAMessageLogTheCategoryAloneReceivesTheEntry)
{
    delete m_dialog;
    m_data = std::make_unique<QmlDataModelInterface>(&m_model);
    m_dialog = new ColorCorrectionToolDlg(m_data.get(), {}, nullptr);
    const LogRecorder recorder;
    m_data->LogMessage("done", Core::Logging::Information);
    EXPECT_EQ(recorder.entries().size(), 1);
}

TEST_F(ColorCorrectionToolDlgTest, ASceneThatIsMissingIsNamedInsteadOfABlankWindow)
{
    delete m_dialog;
    m_scene = std::make_unique<Scene>("missingmodule");
    make(&m_window);
    run([this] {
        const auto* label = m_dialog->findChild<QLabel*>("sceneProblem");
        ASSERT_TRUE(label);
        EXPECT_TRUE(label->isVisible());
        EXPECT_TRUE(label->text().contains("qml-module-not-there"));
        m_dialog->findChild<QPushButton*>()->click();
    });
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(m_model.takeCalls(), givenBack);
    ASSERT_EQ(m_log->entries.size(), 1);
    EXPECT_EQ(m_log->entries[0].level, Core::Logging::Error);

    m_scene = std::make_unique<Scene>("healthy");
    m_data->resetScene();
    EXPECT_FALSE(m_dialog->findChild<QLabel*>("sceneProblem"));
    EXPECT_TRUE(m_dialog->layout()->itemAt(0)->widget()->isVisibleTo(m_dialog));
}

TEST_F(ColorCorrectionToolDlgTest, AGraphicsProblemIsShownToo)
{
    emit m_data->view()->sceneGraphError(QQuickWindow::ContextNotAvailable, "No GL here");
    EXPECT_FALSE(m_dialog->findChild<QLabel*>("sceneProblem")) << "hides the view while it draws";
    QCoreApplication::processEvents();
    const auto* label = m_dialog->findChild<QLabel*>("sceneProblem");
    ASSERT_TRUE(label);
    EXPECT_TRUE(label->text().contains("No GL here"));
}

} // namespace
} // namespace ColorCalibration
