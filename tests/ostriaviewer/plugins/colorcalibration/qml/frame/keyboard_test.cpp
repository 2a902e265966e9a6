// SPDX-License-Identifier: Apache-2.0
// The wizard without a mouse: Tab comes to every control, Space uses it.
#include "wizardwindow.h"

#include <QAccessible>

namespace {

class Keyboard : public WizardWindow
{
protected:
    void use(const char* name)
    {
        ASSERT_TRUE(tabTo(item(name))) << name;
        takeCalls();
        press(Qt::Key_Space);
    }
};

TEST_F(Keyboard, ReachesEveryControlOfTheGridPage)
{
    openAt(1);
    setGlobalValue("autoRefreshChecked", false);
    for (const char* name : {"upperLeft", "upperRight", "lowerRight", "lowerLeft", "showGrid",
                             "autoRefreshCheckBox", "textInput", "openIcon", "finderButton",
                             "singleShotButton", "nextButton", "cancelButton"})
        EXPECT_TRUE(tabTo(item(name))) << name;
}

TEST_F(Keyboard, ReachesEveryControlOfTheBrightnessPage)
{
    openAt(2);
    setGlobalValue("autoRefreshChecked", false);
    for (const char* name :
         {"showGrid", "autoRefreshCheckBox", "exposureSlider", "gainSlider", "autoButton",
          "singleShotButton", "backButton", "nextButton", "cancelButton"})
        EXPECT_TRUE(tabTo(item(name))) << name;
}

TEST_F(Keyboard, ReachesTheNavigationFromTheResultsAndFromSaving)
{
    openAt(3);
    EXPECT_TRUE(tabTo(item("autoRefreshCheckBox")));
    EXPECT_TRUE(tabTo(item("backButton")));
    EXPECT_TRUE(tabTo(item("nextButton")));
    press(Qt::Key_Space);
    ASSERT_EQ(m_model.activeStep(), 4);
    EXPECT_TRUE(tabTo(item("autoRefreshCheckBox")));
    EXPECT_TRUE(tabTo(item("cancelButton")));
}

TEST_F(Keyboard, BeginsWithTheDefaultButtonOfThePage)
{
    openAt(1);
    EXPECT_TRUE(item("finderButton")->hasActiveFocus());
    EXPECT_TRUE(property("finderButton", "isDefault").toBool());
    press(Qt::Key_Return);
    EXPECT_TRUE(item("autoButton")->hasActiveFocus());
    EXPECT_TRUE(property("autoButton", "isDefault").toBool());
}

TEST_F(Keyboard, SpaceUsesTheButtonsOfTheGridPage)
{
    openAt(1);
    use("autoRefreshCheckBox");
    EXPECT_EQ(takeCalls(), QStringList{"stopGrab()"});
    use("singleShotButton");
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
    use("autoRefreshCheckBox");
    EXPECT_EQ(takeCalls(), QStringList{"startGrab()"});
    use("showGrid");
    EXPECT_FALSE(m_model.m_showGrid);
    use("showGrid");
    EXPECT_TRUE(m_model.m_showGrid);
    EXPECT_EQ(takeCalls(), QStringList{"updateTrapezoidList()"});
    use("finderButton");
    EXPECT_EQ(takeCalls(), QStringList{"findChartAsync()"});
}

TEST_F(Keyboard, SpaceUsesNextBackAndCancel)
{
    openAt(1);
    use("nextButton");
    EXPECT_EQ(m_model.activeStep(), 2);
    use("backButton");
    EXPECT_EQ(m_model.activeStep(), 1);
    use("cancelButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "cancel()"}));
}

TEST_F(Keyboard, ReturnInThePathGoesToTheNextStep)
{
    openAt(1);
    ASSERT_TRUE(tabTo(item("textInput")));
    press(Qt::Key_Return);
    EXPECT_EQ(m_model.activeStep(), 2);
}

TEST_F(Keyboard, ReturnStartsTheAutomaticBrightnessOnTheSecondStep)
{
    openAt(2);
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()"}));
    EXPECT_EQ(m_model.activeStep(), 2);
}

TEST_F(Keyboard, SpaceStartsTheAutomaticBrightness)
{
    openAt(2);
    use("autoButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()"}));
}

TEST_F(Keyboard, EnterOfTheNumberPadDoesWhatReturnDoes)
{
    openAt(1);
    ASSERT_TRUE(tabTo(item("textInput")));
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(m_model.activeStep(), 2);
    takeCalls();
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()"}));
    EXPECT_EQ(m_model.activeStep(), 2);
}

TEST_F(Keyboard, ArrowsMoveTheSliders)
{
    openAt(2);
    ASSERT_TRUE(tabTo(item("exposureSlider")));
    takeCalls();
    press(Qt::Key_Right);
    EXPECT_EQ(takeCalls(), QStringList{"exposure=0.51"});
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(takeCalls(), (QStringList{"exposure=0.50", "exposure=0.49"}));
    ASSERT_TRUE(tabTo(item("gainSlider")));
    press(Qt::Key_Right);
    EXPECT_EQ(takeCalls(), QStringList{"gain=0.51"});
}

TEST_F(Keyboard, WhatHasTheFocusHasANameForScreenReaders)
{
    openAt(1);
    for (const char* name : {"textInput", "openIcon"}) {
        const auto* attached = QAccessible::queryAccessibleInterface(item(name));
        ASSERT_TRUE(attached) << name;
        EXPECT_EQ(attached->text(QAccessible::Name), "Load camera settings") << name;
    }
}

} // namespace
