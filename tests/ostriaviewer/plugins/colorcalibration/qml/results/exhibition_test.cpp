// SPDX-License-Identifier: Apache-2.0
// Recalibrating by itself, as exhibitions do it, on both pages that offer it.
#include "resultspages.h"

namespace {

const QStringList sequence{"applyInitialCameraImageAndPatchValues()", "setNeutralSettings()",
                           "applyInitialColorPatchValues()", "executeCalibrationAndApply()"};

class Exhibition : public ResultsPages, public testing::WithParamInterface<int>
{
protected:
    Exhibition() { m_model.m_exhibition = true; }

    void openPage()
    {
        open(GetParam());
        m_log.made.clear();
    }

    void openPageWithoutLiveImage()
    {
        open(GetParam());
        m_view->rootObject()->setProperty("autoRefreshChecked", false);
        m_log.made.clear();
    }

    bool isEnabled() { return item("nextButton")->isEnabled(); }

    void disablePage() { call(page("toolBoxLoader"), "setEnabled", false); }
};

TEST_P(Exhibition, OffersToRecalibrateOnlyWhereItIsSwitchedOn)
{
    openPage();
    EXPECT_TRUE(item("recalibrateButton")->isVisible());
    EXPECT_EQ(item("recalibrateButton")->property("text"), "Recalibrate Camera");
    m_model.m_exhibition = false;
    openPage();
    EXPECT_FALSE(item("recalibrateButton")->isVisible());
}

TEST_P(Exhibition, AdjustsTheBrightnessFirstWithThePageDisabled)
{
    openPage();
    click(item("recalibrateButton"));
    EXPECT_EQ(m_log.made, (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()"}));
    EXPECT_FALSE(isEnabled());
}

TEST_P(Exhibition, BeginsWithSpaceOnce)
{
    openPage();
    item("recalibrateButton")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(m_log.made.count("autoAdjustGray80PercentPatch()"), 1);
}

TEST_P(Exhibition, EnablesThePageWhereTheBrightnessCannotBeAdjusted)
{
    openPage();
    m_log.failing = {"autoAdjustGray80PercentPatch()"};
    click(item("recalibrateButton"));
    EXPECT_TRUE(isEnabled());
    EXPECT_EQ(m_log.made,
              (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()", "startGrab()"}));
    EXPECT_EQ(m_view->rootObject()->findChild<QObject*>("modelError")->property("text"),
              "Autoadjust values <br> impossible!");
    EXPECT_EQ(takeMessage(), "") << "the box was opened";
}

TEST_P(Exhibition, CalibratesWhenTheBrightnessIsFound)
{
    openPage();
    disablePage();
    m_log.made.clear();
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_log.made.mid(0, 4), sequence);
    EXPECT_EQ(m_log.made.mid(4), (QStringList{"startGrab()"}));
    EXPECT_TRUE(isEnabled());
    EXPECT_EQ(takeMessage(), "");
}

TEST_P(Exhibition, TakesAnImageAfterwardsWhereTheLiveImageIsOff)
{
    openPageWithoutLiveImage();
    disablePage();
    EXPECT_FALSE(m_model.m_singleShotEnabled);
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_log.made, sequence + QStringList{"singleGrab()"});
    EXPECT_TRUE(m_model.m_singleShotEnabled);
    EXPECT_TRUE(isEnabled());
}

TEST_P(Exhibition, GoesOnWithoutTheImageFromBefore)
{
    openPageWithoutLiveImage();
    m_log.failing = {"applyInitialCameraImageAndPatchValues()"};
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_log.made, sequence + QStringList{"singleGrab()"});
    EXPECT_EQ(takeMessage(), "");
}

TEST_P(Exhibition, RestoresTheCameraAfterAnyOtherFailure)
{
    const QVector<QPair<int, QString>> failures{{1, "Unable to set neutral settings."},
                                                {2, "Apply initial values failed."},
                                                {3, "Calibration process failed."}};
    for (const auto& failure : failures) {
        openPageWithoutLiveImage();
        disablePage();
        m_log.failing = {sequence[failure.first]};
        emit m_model.autoAdjustGray80PercentPatchFinished();
        EXPECT_EQ(m_log.made, sequence.mid(0, failure.first + 1) +
                                  QStringList({"restoreSettingsBackup(false)", "singleGrab()"}));
        EXPECT_TRUE(isEnabled()) << failure.second.toStdString();
        EXPECT_EQ(takeMessage(), failure.second);
    }
}

TEST_P(Exhibition, TellsTheFirstOfTwoFailures)
{
    for (int second = 1; second < 4; ++second) {
        openPageWithoutLiveImage();
        m_log.failing = {sequence[0], sequence[second]};
        emit m_model.autoAdjustGray80PercentPatchFinished();
        EXPECT_EQ(m_log.made.count("restoreSettingsBackup(false)"), 1);
        EXPECT_EQ(takeMessage(), "Unable to apply initial camera image and patch values.");
    }
}

TEST_P(Exhibition, LeavesACameraAloneThatIsLostWhileTheBrightnessIsAdjusted)
{
    for (const bool isLive : {false, true}) {
        if (isLive)
            openPage();
        else
            openPageWithoutLiveImage();
        disablePage();
        m_log.made.clear();
        emit m_model.cameraLost();
        emit m_model.autoAdjustGray80PercentPatchFinished();
        EXPECT_EQ(m_log.made, QStringList()) << isLive;
        EXPECT_EQ(takeMessage(), "") << isLive;
    }
}

TEST_P(Exhibition, LeavesACameraAloneThatIsLostInTheCalibration)
{
    openPageWithoutLiveImage();
    m_log.failing = {"applyInitialColorPatchValues()"};
    m_log.during["applyInitialColorPatchValues()"] = [this] {
        emit m_model.cameraLost();
    };
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_log.made, sequence.mid(0, 3));
    EXPECT_EQ(takeMessage(), "");
}

TEST_P(Exhibition, TheMessageOfAFailureGoesWithTheCamera)
{
    openPage();
    m_log.failing = {"setNeutralSettings()"};
    emit m_model.autoAdjustGray80PercentPatchFinished();
    auto* message = m_view->rootObject()->findChild<QObject*>("modelError");
    ASSERT_TRUE(message->property("visible").toBool());
    emit m_model.cameraLost();
    EXPECT_FALSE(message->property("visible").toBool());
}

TEST_P(Exhibition, TellsWhatFailedAlsoWhereTheCameraCannotBeRestored)
{
    openPageWithoutLiveImage();
    disablePage();
    m_log.failing = {sequence[3], "restoreSettingsBackup(false)"};
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_log.made, sequence + QStringList({"restoreSettingsBackup(false)", "singleGrab()"}));
    EXPECT_TRUE(m_model.isBackupOwed());
    EXPECT_TRUE(isEnabled());
    EXPECT_EQ(takeMessage(), "Calibration process failed.");
}

TEST_P(Exhibition, StartsTheLiveImageAgainAfterAFailure)
{
    openPage();
    disablePage();
    m_log.made.clear();
    m_log.failing = {"setNeutralSettings()"};
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_log.made,
              sequence.mid(0, 2) + QStringList({"restoreSettingsBackup(false)", "startGrab()"}));
    EXPECT_TRUE(isEnabled());
    takeMessage();
}

INSTANTIATE_TEST_SUITE_P(Pages, Exhibition, testing::Values(3, 4));

class LeavingTheResults : public ResultsPages
{
protected:
    LeavingTheResults() { m_model.m_exhibition = true; }
};

TEST_F(LeavingTheResults, LeavesTheNextPageDisabledUntilTheBrightnessIsFound)
{
    open(3);
    click(item("recalibrateButton"));
    press(Qt::Key_Return);
    ASSERT_EQ(m_model.activeStep(), 4);
    EXPECT_FALSE(item("nextButton")->isEnabled());
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_TRUE(item("nextButton")->isEnabled());
}

TEST_F(LeavingTheResults, DoesNothingOnTheWayToAnotherStep)
{
    open(3);
    QStringList made{"nothing yet"};
    m_log.during["executeWhitebalance()"] = [&] {
        m_log.made.clear();
        emit m_model.autoAdjustGray80PercentPatchFinished();
        made = m_log.made;
    };
    item("backButton")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(made.isEmpty()) << made.join(' ').toStdString();
    EXPECT_EQ(m_model.activeStep(), 2);
}

} // namespace
