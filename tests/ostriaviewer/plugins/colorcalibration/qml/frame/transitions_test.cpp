// SPDX-License-Identifier: Apache-2.0
// Every way from one step to another that succeeds, with the exact order of what the camera goes
// through.
#include "wizardwindow.h"

namespace {

const QStringList toStep2 = {"stopGrab()",
                             "createSettingsBackup(false)",
                             "createSettingsBackup(true)",
                             "stopGrab()",
                             "setNeutralSettings()",
                             "executeWhitebalance()",
                             "activateMonoImage()",
                             "disableAutoFunctions()",
                             "exposure.initialize()",
                             "gain.initialize()",
                             "activeStep=2",
                             "startGrab()"};

const QStringList toStep3 = {"stopGrab()",
                             "storeDetectedExposureAndGain()",
                             "restoreSettingsBackup(true)",
                             "restoreDetectedExposureAndGain()",
                             "applyInitialCameraImageAndPatchValues()",
                             "setNeutralSettings()",
                             "restoreDetectedExposureAndGain()",
                             "applyInitialColorPatchValues()",
                             "executeCalibrationAndApply()",
                             "activeStep=3",
                             "startGrab()"};

const QStringList backToStep2 = {
    "stopGrab()",          "setNeutralSettings()",   "executeWhitebalance()",
    "activateMonoImage()", "disableAutoFunctions()", "exposure.initialize()",
    "gain.initialize()",   "activeStep=2",           "startGrab()"};

class Transitions : public WizardWindow
{
protected:
    int activeCircle()
    {
        return property("progress", "active").value<QQuickItem*>()->property("step").toInt();
    }
};

TEST_F(Transitions, NextLeadsFromTheGridToTheBrightness)
{
    openAt(1);
    click("nextButton");
    EXPECT_EQ(takeCalls(), toStep2);
    EXPECT_EQ(activeCircle(), 2);
    EXPECT_TRUE(hasItem("exposureSlider"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(Transitions, ReturnLeadsFromTheGridToTheBrightness)
{
    openAt(1);
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls(), toStep2);
    EXPECT_EQ(activeCircle(), 2);
}

TEST_F(Transitions, LoadsTheChosenSettingsBeforeTheNeutralOnes)
{
    openAt(1);
    m_model.setProperty("previousCalibrationFile", "/a b/old.cst");
    click("nextButton");
    QStringList expected = toStep2;
    expected.insert(4, "loadSettings(/a b/old.cst)");
    EXPECT_EQ(takeCalls(), expected);
}

TEST_F(Transitions, StartsNoGrabWithoutContinuousShot)
{
    openAt(1);
    setGlobalValue("autoRefreshChecked", false);
    click("nextButton");
    QStringList expected = toStep2;
    expected.removeLast();
    EXPECT_EQ(takeCalls(), expected);
}

TEST_F(Transitions, NextLeadsFromTheBrightnessToTheResults)
{
    openAt(2);
    m_model.setHitRate(100);
    click("nextButton");
    EXPECT_EQ(takeCalls(), toStep3);
    EXPECT_EQ(activeCircle(), 3);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(Transitions, SucceedingDropsTheWarningThatTheImageIsTooBright)
{
    openAt(2);
    m_model.setHitRate(150);
    ASSERT_TRUE(globalValue("bImageToBright").toBool());
    click("nextButton");
    EXPECT_EQ(takeCalls(), toStep3);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(property("progress", "warningText").toString(), "");
    EXPECT_FALSE(globalValue("bImageToBright").toBool());
}

TEST_F(Transitions, NextLeadsFromTheResultsToSaving)
{
    openAt(3);
    click("nextButton");
    EXPECT_EQ(takeCalls(), (QStringList{"activeStep=4", "grabOriginalImage()", "startGrab()"}));
    EXPECT_EQ(activeCircle(), 4);
    EXPECT_EQ(property("nextButton", "text").toString(), "Finish");
}

TEST_F(Transitions, ReturnLeadsFromTheResultsToSaving)
{
    openAt(3);
    press(Qt::Key_Return);
    EXPECT_EQ(m_model.activeStep(), 4);
}

TEST_F(Transitions, FinishStopsTheImageForGood)
{
    openAt(4);
    click("nextButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "stopGrab()", "finish()"}));
    EXPECT_FALSE(globalValue("autoRefreshChecked").toBool());
    EXPECT_EQ(m_model.activeStep(), 4);
}

TEST_F(Transitions, ReturnFinishesOnTheLastStep)
{
    openAt(4);
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "stopGrab()", "finish()"}));
}

TEST_F(Transitions, BackLeadsFromTheBrightnessToTheGrid)
{
    openAt(2);
    click("backButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "restoreSettingsBackup(false)",
                                        "activeStep=1", "startGrab()"}));
    EXPECT_EQ(activeCircle(), 1);
    EXPECT_TRUE(hasItem("finderButton"));
}

TEST_F(Transitions, TheGridsCanvasLivesAcrossTheFirstTwoSteps)
{
    openAt(1);
    const QPointer<QQuickItem> canvas = item("canvasStep12");
    click("nextButton");
    click("backButton");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(item("canvasStep12"), canvas);
}

TEST_F(Transitions, BackLeadsFromTheResultsToTheBrightnessWithNeutralSettings)
{
    openAt(3);
    click("backButton");
    EXPECT_EQ(takeCalls(), backToStep2);
    EXPECT_EQ(activeCircle(), 2);
    EXPECT_TRUE(property("canvasStep12", "initial").toBool());
    ASSERT_TRUE(waitForPaint());
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
}

TEST_F(Transitions, BackLeadsFromSavingToTheResults)
{
    openAt(4);
    click("backButton");
    EXPECT_EQ(takeCalls(), (QStringList{"activeStep=3", "startGrab()"}));
    EXPECT_EQ(activeCircle(), 3);
}

TEST_F(Transitions, EndOnTheFirstStepWhereTheyBegan)
{
    openAt(4);
    for (int step = 3; step >= 1; --step) {
        click("backButton");
        EXPECT_EQ(m_model.activeStep(), step);
    }
    EXPECT_FALSE(item("backButton")->isVisible());
}

TEST_F(Transitions, AStepAnnouncedAgainGetsItsPagesAnew)
{
    openAt(1);
    const QPointer<QQuickItem> canvas = item("canvasStep12");
    const QPointer<QQuickItem> finder = item("finderButton");
    m_model.setActiveStep(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(canvas.isNull());
    EXPECT_TRUE(finder.isNull());
    EXPECT_TRUE(property("canvasStep12", "initial").toBool());
}

TEST_F(Transitions, AnyOtherNumberShowsTheFirstPages)
{
    openAt(3);
    m_model.setActiveStep(7);
    EXPECT_TRUE(hasItem("canvasStep12"));
    EXPECT_TRUE(hasItem("finderButton"));
    EXPECT_EQ(takeCalls().count("startGrab()"), 0);
}

} // namespace
