// SPDX-License-Identifier: Apache-2.0
// Who leaves the wizard without Finish gets the camera back as it was, whichever way out he takes.
#include "wizardrun.h"

#include <QAbstractButton>
#include <QKeyEvent>
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

class HeldEscape : public WizardRun
{
protected:
    template <typename Receiver>
    static void repeat(Receiver* receiver)
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(receiver, &event);
    }
};

TEST_F(HeldEscape, LeavesTheQuestionOpen)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        press(Qt::Key_Escape);
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        const QPointer<QMessageBox> question = box();
        repeat(question->button(QMessageBox::No));
        repeat(question->windowHandle());
        ASSERT_TRUE(question && question->isVisible());

        question->button(QMessageBox::No)->click();
        repeat(m_dialog.get());
        repeat(m_dialog->windowHandle());
        repeat(m_data->view());
        EXPECT_TRUE(m_dialog->isVisible());
        EXPECT_FALSE(box());
        EXPECT_EQ(m_data->activeStep(), 2);
        m_dialog->close();
    });
}

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
