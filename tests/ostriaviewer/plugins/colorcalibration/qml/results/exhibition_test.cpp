// SPDX-License-Identifier: Apache-2.0
// Recalibrating by itself, as exhibitions do it, on both pages that offer it.
#include "resultspages.h"

namespace {

const QStringList sequence{"applyInitialCameraImageAndPatchValues", "setNeutralSettings",
                           "applyInitialColorPatchValues", "executeCalibrationAndApply"};

class Exhibition : public ResultsPages, public testing::WithParamInterface<int>
{
protected:
    Exhibition() { m_model.m_exhibition = true; }

    void openPage()
    {
        open(GetParam());
        m_calls.made.clear();
    }

    void openPageWithoutLiveImage()
    {
        open(GetParam());
        m_view->rootObject()->setProperty("autoRefreshChecked", false);
        m_calls.made.clear();
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
    EXPECT_EQ(m_calls.made, (QStringList{"stopGrab", "autoAdjustGray80PercentPatch"}));
    EXPECT_FALSE(isEnabled());
}

TEST_P(Exhibition, BeginsWithSpaceOnce)
{
    openPage();
    item("recalibrateButton")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(m_calls.made.count("autoAdjustGray80PercentPatch"), 1);
}

TEST_P(Exhibition, EnablesThePageWhereTheBrightnessCannotBeAdjusted)
{
    openPage();
    m_calls.failing = {"autoAdjustGray80PercentPatch"};
    click(item("recalibrateButton"));
    EXPECT_TRUE(isEnabled());
    EXPECT_EQ(m_calls.made, (QStringList{"stopGrab", "autoAdjustGray80PercentPatch", "startGrab"}));
    EXPECT_EQ(m_view->rootObject()->findChild<QObject*>("modelError")->property("text"),
              "Autoadjust values <br> impossible!");
    EXPECT_EQ(takeMessage(), "") << "the box was opened";
}

TEST_P(Exhibition, CalibratesWhenTheBrightnessIsFound)
{
    openPage();
    disablePage();
    m_calls.made.clear();
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_calls.made.mid(0, 4), sequence);
    EXPECT_EQ(m_calls.made.mid(4), (QStringList{"startGrab"}));
    EXPECT_TRUE(isEnabled());
    EXPECT_EQ(takeMessage(), "");
}

TEST_P(Exhibition, TakesAnImageAfterwardsWhereTheLiveImageIsOff)
{
    openPageWithoutLiveImage();
    disablePage();
    EXPECT_FALSE(m_model.m_singleShot);
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_calls.made, sequence + QStringList{"singleGrab"});
    EXPECT_TRUE(m_model.m_singleShot);
    EXPECT_TRUE(isEnabled());
}

TEST_P(Exhibition, GoesOnWithoutTheImageFromBefore)
{
    openPageWithoutLiveImage();
    m_calls.failing = {"applyInitialCameraImageAndPatchValues"};
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_calls.made, sequence + QStringList{"singleGrab"});
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
        m_calls.failing = {sequence[failure.first]};
        emit m_model.autoAdjustGray80PercentPatchFinished();
        EXPECT_EQ(m_calls.made, sequence.mid(0, failure.first + 1) +
                                    QStringList({"restoreSettingsBackup", "singleGrab"}));
        EXPECT_TRUE(isEnabled()) << failure.second.toStdString();
        EXPECT_EQ(takeMessage(), failure.second);
    }
}

TEST_P(Exhibition, TellsTheFirstOfTwoFailures)
{
    for (int second = 1; second < 4; ++second) {
        openPageWithoutLiveImage();
        m_calls.failing = {sequence[0], sequence[second]};
        emit m_model.autoAdjustGray80PercentPatchFinished();
        EXPECT_EQ(m_calls.made.count("restoreSettingsBackup"), 1);
        EXPECT_EQ(takeMessage(), "Unable to apply initial camera image and patch values.");
    }
}

TEST_P(Exhibition, StartsTheLiveImageAgainAfterAFailure)
{
    openPage();
    disablePage();
    m_calls.made.clear();
    m_calls.failing = {"setNeutralSettings"};
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(m_calls.made,
              sequence.mid(0, 2) + QStringList({"restoreSettingsBackup", "startGrab"}));
    EXPECT_TRUE(isEnabled());
    takeMessage();
}

INSTANTIATE_TEST_SUITE_P(Pages, Exhibition, testing::Values(3, 4));

} // namespace
