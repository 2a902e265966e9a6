// SPDX-License-Identifier: Apache-2.0
// The page of the brightness: gauge, sliders, automatic adjustment.
#include "wizardwindow.h"

#include <QTest>

namespace {

/// What the gauge shows of a hit rate in percent.
struct Reading
{
    double hitRate;
    double angle;
    const char* comment;
    bool isDark;
    bool isBright;
};

std::string nameOf(const testing::TestParamInfo<Reading>& info)
{
    return QString("At%1").arg(info.param.hitRate).replace('.', '_').toStdString();
}

void PrintTo(const Reading& reading, std::ostream* out)
{
    *out << reading.hitRate << " percent";
}

class BrightnessPage : public WizardWindow
{
protected:
    void expire() { QMetaObject::invokeMethod(object("checkTimer"), "triggered"); }

    bool isEnabled(const char* name) { return item(name)->isEnabled(); }

    void expectEnabled(bool enabled)
    {
        for (const char* name : {"exposureSlider", "gainSlider", "autoButton", "backButton",
                                 "nextButton", "cancelButton"})
            EXPECT_EQ(isEnabled(name), enabled) << name;
        EXPECT_EQ(property("checkTimer", "controlsEnabled").toBool(), enabled);
    }
};

class Gauge : public BrightnessPage, public testing::WithParamInterface<Reading>
{};

TEST_P(Gauge, ReadsTheHitRate)
{
    openAt(2);
    // From the middle, so that each reading turns the needle.
    m_model.setHitRate(100);
    m_model.setHitRate(GetParam().hitRate);
    EXPECT_NEAR(property("gauge", "angle").toDouble(), GetParam().angle, 1e-9);
    EXPECT_EQ(property("gaugeComment", "text").toString(), GetParam().comment);
    EXPECT_EQ(globalValue("bImageToDark").toBool(), GetParam().isDark);
    EXPECT_EQ(globalValue("bImageToBright").toBool(), GetParam().isBright);
    EXPECT_TRUE(item("needle")->isVisible());
}

INSTANTIATE_TEST_SUITE_P(HitRate, Gauge,
                         testing::Values(Reading{99.5, -1, "Just right", false, false},
                                         Reading{110, 20, "Just right", false, false},
                                         Reading{119.5, 39, "Just right", false, false},
                                         Reading{120, 40, "Too bright", false, false},
                                         Reading{120.5, 41, "Too bright", false, true},
                                         Reading{145, 90, "Too bright", false, true},
                                         Reading{1000, 90, "Too bright", false, true},
                                         Reading{1100, 90, "Too bright", false, true},
                                         Reading{80.5, -39, "Just right", false, false},
                                         Reading{80, -40, "Too dark", false, false},
                                         Reading{79.5, -41, "Too dark", true, false},
                                         Reading{55, -90, "Too dark", true, false},
                                         Reading{0, -90, "Too dark", true, false}),
                         nameOf);

TEST_F(BrightnessPage, ShowsTheNeedleAtItsBrightEndBeforeAnyValue)
{
    openAt(2);
    EXPECT_TRUE(item("needle")->isVisible());
    EXPECT_DOUBLE_EQ(property("gauge", "angle").toDouble(), 90);
    EXPECT_EQ(property("gaugeComment", "text").toString(), "Too bright");
}

TEST_F(BrightnessPage, HidesTheNeedleWhereTheHitRateMeansNothing)
{
    openAt(2);
    m_model.setHitRate(1100.5);
    EXPECT_FALSE(item("needle")->isVisible());
    EXPECT_FALSE(item("gaugeComment")->isVisible());
    m_model.setHitRate(-900.5);
    EXPECT_FALSE(item("needle")->isVisible());
    m_model.setHitRate(-900);
    EXPECT_TRUE(item("needle")->isVisible());
}

TEST_F(BrightnessPage, KeepsTheFlagsWhereTheNeedleDoesNotTurn)
{
    openAt(2);
    m_model.setHitRate(200);
    setGlobalValue("bImageToBright", false);
    m_model.setHitRate(300);
    EXPECT_FALSE(globalValue("bImageToBright").toBool());
    m_model.setHitRate(130);
    EXPECT_TRUE(globalValue("bImageToBright").toBool());
}

TEST_F(BrightnessPage, TurnsTheNeedleAboutItsHub)
{
    openAt(2);
    auto* needle = item("needle");
    auto* gauge = item("gauge");
    // The hub keeps its place, six pixels above the middle of the gauge's lower edge.
    const QPointF hub(needle->width() / 2, needle->height() - needle->width() / 2);
    const QPointF place(gauge->width() / 2, gauge->height() - needle->width() / 2);
    m_model.setHitRate(100);
    EXPECT_EQ(needle->mapToItem(gauge, hub), place);
    EXPECT_LT(needle->mapToItem(gauge, {hub.x(), 0}).y(), place.y());
    m_model.setHitRate(145);
    EXPECT_NEAR(needle->mapToItem(gauge, hub).x(), place.x(), 1e-6);
    EXPECT_NEAR(needle->mapToItem(gauge, hub).y(), place.y(), 1e-6);
    EXPECT_GT(needle->mapToItem(gauge, {hub.x(), 0}).x(), place.x() + 30);
}

TEST_F(BrightnessPage, ExplainsTheGaugeUnderTheMouse)
{
    openAt(2);
    const QPoint middle = middleOf(item("gauge"));
    QTest::mouseMove(m_view.get(), middle);
    auto* toolTip = item("gaugeToolTip");
    ASSERT_TRUE(waitFor([toolTip] { return toolTip->isVisible(); }));
    EXPECT_EQ(toolTip->property("text").toString(),
              "Shows whether the target value for calibration has been reached.");
    const QPointF expected = QPointF(middle) + QPointF(5 - toolTip->width(), 15);
    EXPECT_EQ(toolTip->mapToScene({0, 0}), expected);
    QTest::mouseMove(m_view.get(), QPoint(5, 5));
    EXPECT_TRUE(waitFor([toolTip] { return !toolTip->isVisible(); }));
}

TEST_F(BrightnessPage, OpensWithoutWritingToTheCamera)
{
    m_exposure.m_min = 2;
    m_exposure.m_max = 6;
    m_exposure.m_value = 4.123;
    openAt(2);
    EXPECT_DOUBLE_EQ(m_exposure.m_value, 4.123);
    EXPECT_NEAR(property("exposureSlider", "value").toDouble(), 4.12, 1e-9);
    EXPECT_DOUBLE_EQ(property("exposureSlider", "minimumValue").toDouble(), 2);
    EXPECT_DOUBLE_EQ(property("exposureSlider", "maximumValue").toDouble(), 6);
    EXPECT_FALSE(property("checkTimer", "updateImages").toBool());
}

TEST_F(BrightnessPage, SlidersFollowTheirAdapters)
{
    openAt(2);
    ASSERT_TRUE(tabTo(item("exposureSlider")));
    press(Qt::Key_Right);
    m_exposure.report(0.7);
    m_gain.report(0.25);
    EXPECT_NEAR(property("exposureSlider", "value").toDouble(), 0.7, 1e-9);
    EXPECT_NEAR(property("gainSlider", "value").toDouble(), 0.25, 1e-9);
    m_exposure.report(0.71);
    m_exposure.report(0.7);
    EXPECT_NEAR(property("exposureSlider", "value").toDouble(), 0.7, 1e-9);
}

TEST_F(BrightnessPage, SlidersThatFollowLeaveACameraAloneThatIsLedOn)
{
    openAt(2);
    m_log.during["restoreSettingsBackup(true)"] = [this] {
        m_exposure.report(0.7);
        m_gain.report(0.25);
    };
    click("nextButton");
    ASSERT_EQ(m_model.activeStep(), 3);
    const QStringList calls = takeCalls();
    EXPECT_TRUE(calls.contains("restoreSettingsBackup(true)"));
    EXPECT_EQ(calls.filter("exposure=") + calls.filter("gain="), QStringList());
}

TEST_F(BrightnessPage, SlidersWriteWhatTheMousePicks)
{
    openAt(2);
    auto* slider = item("gainSlider");
    const QPoint nearTheEnd =
        slider->mapToScene({slider->width() - 2, slider->height() / 2}).toPoint();
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, nearTheEnd);
    EXPECT_DOUBLE_EQ(m_gain.m_value, 1.0);
    EXPECT_TRUE(slider->hasActiveFocus());
    EXPECT_TRUE(property("checkTimer", "updateImages").toBool());
}

TEST_F(BrightnessPage, TakesAnImageAfterAChange)
{
    openAt(2);
    EXPECT_EQ(property("checkTimer", "interval").toInt(), 500);
    expire();
    EXPECT_TRUE(takeCalls().isEmpty());
    m_exposure.report(0.7);
    takeCalls();
    expire();
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
    expire();
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(BrightnessPage, TakesNoImageWhereImagesComeByThemselves)
{
    openAt(2);
    object("checkTimer")->setProperty("controlsEnabled", true);
    m_exposure.report(0.7);
    takeCalls();
    expire();
    EXPECT_TRUE(takeCalls().isEmpty());
    setGlobalValue("autoRefreshChecked", false);
    expire();
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
}

TEST_F(BrightnessPage, ShowsWhatTheAdaptersWereRefused)
{
    openAt(2);
    m_exposure.refuse("Couldn't set exposureTime!<br>");
    EXPECT_EQ(onlyMessage().text, "Couldn't set exposureTime!<br>");
    EXPECT_EQ(onlyMessage().icon, QMessageBox::Critical);
    answer(QMessageBox::Ok);
    m_gain.refuse("Couldn't set gain value!<br>");
    EXPECT_EQ(onlyMessage().text, "Couldn't set gain value!<br>");
    answer(QMessageBox::Ok);
    m_gain.refuse("");
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(BrightnessPage, IsOffWhileTheBrightnessIsAdjusted)
{
    openAt(2);
    click("autoButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()"}));
    expectEnabled(false);
    EXPECT_TRUE(property("checkTimer", "updateImages").toBool());

    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(takeCalls(), QStringList{"startGrab()"});
    expectEnabled(true);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(BrightnessPage, FollowsTheAdjustmentWithSingleImages)
{
    openAt(2);
    click("autoButton");
    takeCalls();
    expire();
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
    m_exposure.report(0.9);
    // The slider moves, and leaves the camera to the adjustment.
    EXPECT_NEAR(property("exposureSlider", "value").toDouble(), 0.9, 1e-9);
    EXPECT_TRUE(takeCalls().isEmpty());
    expire();
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
}

TEST_F(BrightnessPage, SaysThatTheBrightnessCannotBeAdjusted)
{
    openAt(2);
    m_log.failing = {"autoAdjustGray80PercentPatch()"};
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls(),
              (QStringList{"stopGrab()", "autoAdjustGray80PercentPatch()", "startGrab()"}));
    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "autoadjust error");
    EXPECT_EQ(message.text, "Autoadjust values <br> impossible!");
    EXPECT_EQ(property("autoAdjustGrayError", "width").toInt(), 300);
    expectEnabled(true);
}

TEST_F(BrightnessPage, OffersSingleShotsAgainAfterTheAdjustment)
{
    openAt(2);
    // Its images come on a machine that is slow.
    object("checkTimer")->setProperty("running", false);
    click("autoRefreshCheckBox");
    takeCalls();
    click("autoButton");
    EXPECT_FALSE(isEnabled("singleShotButton"));
    EXPECT_EQ(takeCalls(), QStringList{"autoAdjustGray80PercentPatch()"});
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_TRUE(isEnabled("singleShotButton"));
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(BrightnessPage, AsksNothingOfACameraThatIsLostWhileItIsAdjusted)
{
    openAt(2);
    click("autoButton");
    takeCalls();
    emit m_model.cameraLost();
    ASSERT_TRUE(property("checkTimer", "updateImages").toBool());
    expire();
    EXPECT_TRUE(takeCalls().isEmpty()) << "the adjustment is still under way";
    emit m_model.autoAdjustGray80PercentPatchFinished();
    expire();
    EXPECT_TRUE(takeCalls().isEmpty()) << "and has ended";
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(BrightnessPage, ItsMessagesGoWithTheCamera)
{
    openAt(2);
    m_gain.refuse("Couldn't set gain value!<br>");
    ASSERT_EQ(boxes().size(), 1);
    emit m_model.cameraLost();
    EXPECT_TRUE(waitFor([this] { return boxes().isEmpty(); })) << "the loss tells enough";
    m_log.failing = {"autoAdjustGray80PercentPatch()"};
    click("autoButton");
    ASSERT_EQ(boxes().size(), 1);
    emit m_model.cameraLost();
    EXPECT_TRUE(waitFor([this] { return boxes().isEmpty(); }));
}

TEST_F(BrightnessPage, IsSetBackWhenTheWindowCloses)
{
    openAt(2);
    EXPECT_TRUE(property("checkTimer", "running").toBool());
    setGlobalValue("autoRefreshChecked", false);
    emit m_model.cleanupQML();
    EXPECT_FALSE(property("checkTimer", "running").toBool());
    EXPECT_TRUE(globalValue("autoRefreshChecked").toBool());
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "stopGrab()"}));
}

} // namespace
