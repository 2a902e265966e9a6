// SPDX-License-Identifier: Apache-2.0
// What a user does while the camera is led to another step: calls wait for images in event loops,
// in which clicks and keys arrive.
#include "heldkeys.h"
#include "wizardwindow.h"

#include <QTest>

#include <ostream>
#include <tuple>

namespace {

/// A way to another step, and a call on it that waits.
struct Way
{
    const char* name;
    int from;
    const char* button;
    const char* call;
    int to;
};

enum class Input {
    Next,
    Back,
    Return,
    Space,
};

class InputDuring : public WizardWindow, public testing::WithParamInterface<std::tuple<Way, Input>>
{
protected:
    /// By key, as a mouse that is in the middle of a click belongs to its button.
    void use(const char* button)
    {
        item(button)->forceActiveFocus();
        press(Qt::Key_Space);
    }

    void give(Input input)
    {
        switch (input) {
        case Input::Next:
            click("nextButton");
            break;
        case Input::Back:
            click("backButton");
            break;
        case Input::Return:
            press(Qt::Key_Return);
            break;
        case Input::Space:
            press(Qt::Key_Space);
            break;
        }
    }
};

std::string nameOf(const testing::TestParamInfo<std::tuple<Way, Input>>& info)
{
    static const char* const inputs[] = {"Next", "Back", "Return", "Space"};
    return std::string(std::get<Way>(info.param).name) +
           inputs[static_cast<int>(std::get<Input>(info.param))];
}

TEST_P(InputDuring, ATransitionBeginsNoOther)
{
    const auto& [way, input] = GetParam();
    openAt(way.from);
    m_model.setHitRate(100);
    bool given = false;
    m_log.during[way.call] = [&, given_input = input] {
        given = true;
        give(given_input);
    };
    use(way.button);
    ASSERT_TRUE(given);
    EXPECT_EQ(m_model.activeStep(), way.to);
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.filter("activeStep=").size(), 1) << testing::PrintToString(calls);
    EXPECT_LE(calls.count("createSettingsBackup(false)"), 1);
    EXPECT_EQ(calls.count(way.call), 1);
    EXPECT_EQ(calls.count("autoAdjustGray80PercentPatch()"), 0);
    EXPECT_TRUE(boxes().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Wizard, InputDuring,
    testing::Combine(
        testing::Values(Way{"ToBrightness", 1, "nextButton", "executeWhitebalance()", 2},
                        Way{"ToResults", 2, "nextButton", "executeCalibrationAndApply()", 3},
                        Way{"BackToBrightness", 3, "backButton", "executeWhitebalance()", 2},
                        Way{"BackToGrid", 2, "backButton", "restoreSettingsBackup(false)", 1}),
        testing::Values(Input::Next, Input::Back, Input::Return, Input::Space)),
    nameOf);

class DuringATransition : public WizardWindow
{};

TEST_F(DuringATransition, EscapeAsksWhenItIsOver)
{
    openAt(2);
    m_model.setHitRate(100);
    bool asked = true;
    m_log.during["executeCalibrationAndApply()"] = [&] {
        press(Qt::Key_Escape);
        asked = !boxes().isEmpty();
    };
    click("nextButton");
    EXPECT_FALSE(asked);
    EXPECT_EQ(m_model.activeStep(), 3);
    ASSERT_EQ(boxes().size(), 1);
    takeCalls();
    answer(QMessageBox::Yes);
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "cancel()"}));
}

TEST_F(DuringATransition, CancelAsksWhenItIsOver)
{
    openAt(1);
    m_log.during["executeWhitebalance()"] = [&] {
        click("cancelButton");
    };
    press(Qt::Key_Return);
    EXPECT_EQ(m_model.activeStep(), 2);
    EXPECT_FALSE(takeCalls().contains("cancel()"));
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(DuringATransition, TheControlsOfThePageDoNothing)
{
    openAt(2);
    m_model.setHitRate(100);
    m_log.during["applyInitialCameraImageAndPatchValues()"] = [&] {
        press(Qt::Key_Right);
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
        for (const char* name : {"autoRefreshCheckBox", "exposureSlider", "gainSlider", "showGrid"})
            click(name);
    };
    ASSERT_TRUE(tabTo(item("nextButton")));
    press(Qt::Key_Space);
    EXPECT_EQ(m_model.activeStep(), 3);
    EXPECT_TRUE(globalValue("autoRefreshChecked").toBool());
    EXPECT_TRUE(m_model.m_showGrid);
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.count("startGrab()"), 1);
    EXPECT_TRUE(calls.filter("exposure=").isEmpty());
    EXPECT_TRUE(calls.filter("gain=").isEmpty());
}

TEST_F(DuringATransition, ResettingTheGridDoesNothing)
{
    openAt(1);
    const QPoint before = m_outline.m_upperLeft;
    m_log.during["executeWhitebalance()"] = [&] {
        press(Qt::Key_Z, Qt::ControlModifier);
    };
    click("nextButton");
    EXPECT_EQ(m_outline.m_upperLeft, before);
}

TEST_F(DuringATransition, TheKeysComeBackToWhatHadThem)
{
    openAt(1);
    ASSERT_TRUE(tabTo(item("nextButton")));
    m_log.failing = {"createSettingsBackup(false)"};
    press(Qt::Key_Space);
    answer(QMessageBox::Ok);
    EXPECT_TRUE(item("nextButton")->hasActiveFocus());
    ASSERT_TRUE(tabTo(item("showGrid")));
    press(Qt::Key_Return);
    EXPECT_EQ(m_model.activeStep(), 1);
    answer(QMessageBox::Ok);
    EXPECT_TRUE(item("showGrid")->hasActiveFocus());
}

/// The wizard's end while the camera is led to another step, which fails with it.
TEST_F(DuringATransition, TheEndOfTheWizardLeavesNothingBehind)
{
    for (const int step : {1, 2, 3}) {
        SCOPED_TRACE(step);
        openAt(step);
        m_log.failing = {"executeWhitebalance()", "applyInitialCameraImageAndPatchValues()"};
        const char* call =
            step == 2 ? "applyInitialCameraImageAndPatchValues()" : "executeWhitebalance()";
        m_log.during[call] = [&] {
            emit m_model.cleanupQML();
            takeCalls();
        };
        click(step == 3 ? "backButton" : "nextButton");
        EXPECT_TRUE(takeCalls().isEmpty());
        EXPECT_TRUE(boxes().isEmpty());
        m_log.failing.clear();
        m_view.reset();
        m_model.setActiveStep(1);
        m_model.m_initial = true;
    }
}

TEST_F(DuringATransition, TheQuestionIsNotAskedOverTheEndOfTheWizard)
{
    openAt(1);
    m_log.failing = {"executeWhitebalance()"};
    m_log.during["executeWhitebalance()"] = [&] {
        press(Qt::Key_Escape);
    };
    click("nextButton");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_FALSE(takeCalls().contains("cancel()"));
    answer(QMessageBox::Ok);
    EXPECT_EQ(takeCalls().count("cancel()"), 1);
}

TEST_F(DuringATransition, ATickOfTheImageTimerGrabsNothing)
{
    openAt(2);
    m_model.setHitRate(100);
    QObject* timer = object("checkTimer");
    timer->setProperty("updateImages", true);
    m_log.during["applyInitialCameraImageAndPatchValues()"] = [&] {
        takeCalls();
        QMetaObject::invokeMethod(timer, "triggered");
        EXPECT_FALSE(takeCalls().contains("singleGrab()"));
    };
    click("nextButton");
    EXPECT_EQ(m_model.activeStep(), 3);
}

TEST_F(DuringATransition, TheFirstImageStartsNoLiveImage)
{
    open();
    m_log.during["executeWhitebalance()"] = [&] {
        takeCalls();
        deliverFirstImage();
        const QStringList calls = takeCalls();
        EXPECT_FALSE(calls.contains("startGrab()"));
        EXPECT_FALSE(calls.contains("singleGrab()"));
    };
    click("nextButton");
    EXPECT_EQ(m_model.activeStep(), 2);
    EXPECT_TRUE(takeCalls().contains("startGrab()"));
}

class Keys : public WizardWindow
{
protected:
    /// What a key that is held sends besides its press, to a window that is shown as the wizard is.
    void repeat(Qt::Key key)
    {
        const ColorCalibration::HeldKeys keys;
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(m_view.get(), &event);
    }
};

TEST_F(Keys, HeldGoNoFurtherThanPressed)
{
    for (const int step : {1, 2, 3, 4}) {
        openAt(step);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            repeat(key);
            EXPECT_EQ(m_model.activeStep(), step);
            EXPECT_TRUE(takeCalls().isEmpty()) << step;
            EXPECT_TRUE(boxes().isEmpty()) << step;
        }
        m_view.reset();
        m_model.setActiveStep(1);
        m_model.m_initial = true;
    }
}

TEST_F(Keys, ReturnDuringTheSearchForTheChartLeavesTheButtonsAlive)
{
    openAt(1);
    click("finderButton");
    ASSERT_FALSE(item("nextButton")->isEnabled());
    press(Qt::Key_Return);
    EXPECT_EQ(m_model.activeStep(), 2);
    for (const char* name : {"backButton", "nextButton", "cancelButton"})
        EXPECT_TRUE(item(name)->isEnabled()) << name;
}

TEST_F(Keys, ReturnStartsTheBrightnessOnceUntilItIsDone)
{
    openAt(2);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls().count("autoAdjustGray80PercentPatch()"), 1);
    EXPECT_FALSE(item("nextButton")->isEnabled());
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_TRUE(item("nextButton")->isEnabled());
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls().count("autoAdjustGray80PercentPatch()"), 1);
}

} // namespace
