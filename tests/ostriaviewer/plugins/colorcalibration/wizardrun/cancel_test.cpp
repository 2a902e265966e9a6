// SPDX-License-Identifier: Apache-2.0
// Who leaves the wizard without Finish gets the camera back as it was, whichever way out he takes.
#include "wizardrun.h"

#include <QAbstractButton>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

class CancelOnStep : public WizardRun, public testing::WithParamInterface<int>
{
protected:
    /// Goes to the step, leaves the wizard there this way, and compares the camera's settings.
    void cancelBy(const char* way, const std::function<void()>& leave)
    {
        SCOPED_TRACE(way);
        const QStringList before = settings();
        ASSERT_GT(before.size(), 50);
        bool arrived = false;
        run([&] {
            ASSERT_NO_FATAL_FAILURE(goTo(GetParam()));
            arrived = true;
            EXPECT_EQ(settings() != before, GetParam() > 1);
            leave();
        });
        ASSERT_TRUE(arrived);
        EXPECT_EQ(settings(), before);
    }

    /// The first step has changed nothing yet, and asks nothing.
    void confirmIfAsked()
    {
        if (GetParam() > 1)
            confirm();
    }
};

TEST_P(CancelOnStep, LeavesTheCameraAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    cancelBy("button", [this] {
        click("cancelButton");
        confirmIfAsked();
    });
    cancelBy("Escape", [this] {
        press(Qt::Key_Escape);
        confirmIfAsked();
    });
    cancelBy("window closed", [this] { m_dialog->close(); });
}

class HeldKey : public WizardRun, public testing::WithParamInterface<bool>
{
protected:
    /// What a window gets of a key that is held: a repeat where the system tells so, else a release
    /// and a press of one moment.
    void repeat(QWindow* window, Qt::Key key)
    {
        const bool isTold = GetParam();
        const ulong time = laterTime();
        if (!isTold)
            sendKey(window, QEvent::KeyRelease, key, time);
        sendKey(window, QEvent::KeyPress, key, time, isTold);
    }
};

TEST_P(HeldKey, LeavesTheQuestionOpen)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        press(Qt::Key_Escape);
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        const QPointer<QMessageBox> question = box();
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
            repeat(question->windowHandle(), key);
            repeat(question->windowHandle(), key);
        }
        ASSERT_TRUE(question && question->isVisible());

        pressAndRelease(question->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(waitFor([] { return box() == nullptr; }));
        repeat(m_dialog->windowHandle(), Qt::Key_Escape);
        repeat(m_data->view(), Qt::Key_Escape);
        EXPECT_TRUE(m_dialog->isVisible());
        EXPECT_FALSE(box());
        EXPECT_EQ(m_data->activeStep(), 2);
        m_dialog->close();
    });
}

TEST_P(HeldKey, GoesNoFurtherThanOnePress)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        repeat(m_data->view(), Qt::Key_Return);
        repeat(m_data->view(), Qt::Key_Return);
        EXPECT_EQ(m_data->activeStep(), 3);
        pressAndRelease(m_data->view(), Qt::Key_Return);
        EXPECT_TRUE(waitFor([this] { return m_data->activeStep() == 4; }));
        repeat(m_data->view(), Qt::Key_Return);
        repeat(m_data->view(), Qt::Key_Return);
        EXPECT_TRUE(m_dialog->isVisible());
        m_dialog->close();
    });
}

INSTANTIATE_TEST_SUITE_P(Told, HeldKey, testing::Bool(),
                         [](const auto& each) { return each.param ? "AsRepeat" : "AsPress"; });

class QuestionOfTheWizard : public WizardRun
{};

TEST_F(QuestionOfTheWizard, StandsOverItsWindow)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        for (const QPoint& place : {QPoint(0, 0), QPoint(300, 200)}) {
            m_dialog->move(place);
            click("cancelButton");
            ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
            EXPECT_EQ(box()->windowHandle()->transientParent(), m_dialog->windowHandle());
            const QPoint from = box()->geometry().center() - m_dialog->geometry().center();
            EXPECT_LE(from.manhattanLength(), 2);
            box()->button(QMessageBox::No)->click();
            ASSERT_TRUE(waitFor([] { return box() == nullptr; }));
        }
        m_dialog->close();
    });
}

TEST_F(QuestionOfTheWizard, GivesTheKeysBack)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        for (const char* way : {"first", "again"}) {
            SCOPED_TRACE(way);
            ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
            pressAndRelease(QGuiApplication::focusWindow(), Qt::Key_Escape);
            ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
            ASSERT_TRUE(
                waitFor([] { return QGuiApplication::focusWindow() == box()->windowHandle(); }));
            pressAndRelease(box()->windowHandle(), Qt::Key_Escape);
            ASSERT_TRUE(waitFor([] { return box() == nullptr; }));
            ASSERT_TRUE(
                waitFor([this] { return QGuiApplication::focusWindow() == m_data->view(); }));
        }
        m_dialog->close();
    });
}

class ImpatientUser : public WizardRun
{
protected:
    /// As a double click: the second one arrives while the first waits for an image.
    void clickTwice(const char* name)
    {
        QTimer::singleShot(0, m_dialog.get(), [this, name] { click(name); });
        click(name);
    }
};

TEST_F(ImpatientUser, GetsTheCameraBackAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(1));
        clickTwice("nextButton");
        EXPECT_EQ(m_data->activeStep(), 2);
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), before);
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        clickTwice("backButton");
        EXPECT_EQ(m_data->activeStep(), 2);
        click("backButton");
        EXPECT_EQ(m_data->activeStep(), 1);
        click("nextButton");
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), before);
}

INSTANTIATE_TEST_SUITE_P(WizardRun, CancelOnStep, testing::Values(1, 2, 3, 4));

} // namespace
