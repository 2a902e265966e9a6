// SPDX-License-Identifier: Apache-2.0
// Who leaves the wizard without Finish gets the camera back as it was, whichever way out he takes.
#include "wizardrun.h"

#include <QTest>
#include <QTimer>

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
