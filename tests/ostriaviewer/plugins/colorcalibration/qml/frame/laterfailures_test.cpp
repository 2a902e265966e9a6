// SPDX-License-Identifier: Apache-2.0
// Failures while an earlier one is being undone, and on the way back: what is called, what is told
// and when, and what is still owed to the camera.
#include "wizardwindow.h"

#include <QAbstractButton>

namespace {

using Icon = QMessageBox::Icon;

constexpr auto exposureText =
    "No initial parameters (min, max, value) <br> for exposure time available.";
constexpr auto gainText = "No initial parameters (min, max, value) <br> for gain value available.";
constexpr auto neutralText = "Unable to set neutral settings.";
constexpr auto loadText = "Could not load previous settings.";
constexpr auto failedText = "Calibration process failed.<br>";
constexpr auto eitherOr =
    "The calibration process failed because the image is either too bright or "
    "too dark. Adjust the brightness and try again.";
constexpr auto notBackText = "not restored"; // the double's words

const QStringList calibration = {"stopGrab()",
                                 "storeDetectedExposureAndGain()",
                                 "restoreSettingsBackup(true)",
                                 "restoreDetectedExposureAndGain()",
                                 "applyInitialCameraImageAndPatchValues()",
                                 "setNeutralSettings()",
                                 "restoreDetectedExposureAndGain()",
                                 "applyInitialColorPatchValues()",
                                 "executeCalibrationAndApply()"};

/// With a settings file chosen, so that each of its calls is made.
const QStringList neutral = {"stopGrab()",
                             "loadSettings(/x.cst)",
                             "setNeutralSettings()",
                             "executeWhitebalance()",
                             "activateMonoImage()",
                             "disableAutoFunctions()",
                             "exposure.initialize()",
                             "gain.initialize()"};

/// A call of the above that is refused, and what is told of it.
struct Refusal
{
    const char* name;
    QString call;
    /// Of the message box; empty if the failure before has the word.
    QString error;
    bool endsWizard = false;

    QStringList calls() const
    {
        return neutral.mid(0, neutral.indexOf(call.section('#', 0, 0)) + 1);
    }
};

std::string nameOf(const testing::TestParamInfo<Refusal>& info)
{
    return info.param.name;
}

class LaterFailure : public WizardWindow
{
protected:
    void openWithFileAt(int step)
    {
        openAt(step);
        m_model.setHitRate(100);
        m_model.setProperty("previousCalibrationFile", "/x.cst");
    }

    /// The texts of the boxes that are open, each as it must be but for its text.
    QStringList errors()
    {
        QStringList texts;
        for (const auto* box : boxes()) {
            EXPECT_EQ(box->windowTitle(), "Color Calibrator");
            EXPECT_EQ(box->icon(), Icon::Critical);
            EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
            texts << box->text();
        }
        texts.sort();
        return texts;
    }

    void acceptAll()
    {
        for (auto* box : boxes())
            box->button(QMessageBox::Ok)->click();
        ASSERT_TRUE(waitFor([this] { return boxes().isEmpty(); }));
    }

    QString waiting(const char* text) { return property("progress", text).toString(); }
};

class FailureAfterACalibration : public LaterFailure, public testing::WithParamInterface<Refusal>
{};

TEST_P(FailureAfterACalibration, StaysOnTheBrightness)
{
    openWithFileAt(2);
    const Refusal& refusal = GetParam();
    m_log.failing = {"executeCalibrationAndApply()", refusal.call};
    click("nextButton");
    QStringList calls = calibration +
                        QStringList{"console: calibration failed: restore settings", "stopGrab()",
                                    "restoreSettingsBackup(false)"} +
                        refusal.calls();
    if (!refusal.endsWizard)
        calls << "startGrab()";
    EXPECT_EQ(takeCalls(), calls);
    EXPECT_EQ(m_model.activeStep(), 2);

    QStringList texts{refusal.error.isEmpty() ? failedText : refusal.error};
    if (refusal.endsWizard)
        texts << eitherOr;
    EXPECT_EQ(errors(), texts);
    acceptAll();
    EXPECT_EQ(takeCalls(), refusal.endsWizard ? QStringList{"cancel()"} : QStringList());
}

INSTANTIATE_TEST_SUITE_P(Wizard, FailureAfterACalibration,
                         testing::Values(Refusal{"Load", "loadSettings(/x.cst)", loadText},
                                         Refusal{"Neutral", "setNeutralSettings()#2", ""},
                                         Refusal{"WhiteBalance", "executeWhitebalance()", "", true},
                                         Refusal{"Exposure", "exposure.initialize()", exposureText},
                                         Refusal{"Gain", "gain.initialize()", gainText}),
                         nameOf);

class FailureOnTheWayBack : public LaterFailure, public testing::WithParamInterface<Refusal>
{};

TEST_P(FailureOnTheWayBack, IsToldByTheNextOneThatHasNoOtherWord)
{
    openWithFileAt(3);
    const Refusal& refusal = GetParam();
    m_log.failing = {refusal.call};
    click("backButton");
    EXPECT_EQ(takeCalls(), refusal.calls() + (QStringList{"activeStep=2", "startGrab()"}));
    EXPECT_EQ(m_model.activeStep(), 2);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(waiting("errorText"), refusal.error);
    EXPECT_EQ(waiting("criticalText"), refusal.endsWizard ? eitherOr : "");

    m_log.failing = {"executeCalibrationAndApply()"};
    click("nextButton");
    QStringList texts{refusal.error.isEmpty() ? failedText : refusal.error};
    if (refusal.endsWizard)
        texts << eitherOr;
    EXPECT_EQ(errors(), texts);
    EXPECT_EQ(waiting("errorText"), "");
    EXPECT_EQ(waiting("criticalText"), "");
}

INSTANTIATE_TEST_SUITE_P(Wizard, FailureOnTheWayBack,
                         testing::Values(Refusal{"Load", "loadSettings(/x.cst)", loadText},
                                         Refusal{"Neutral", "setNeutralSettings()", neutralText},
                                         Refusal{"WhiteBalance", "executeWhitebalance()", "", true},
                                         Refusal{"Exposure", "exposure.initialize()", exposureText},
                                         Refusal{"Gain", "gain.initialize()", gainText}),
                         nameOf);

TEST_F(LaterFailure, OfTheRestoreAfterACalibrationChangesNothingOfTheRest)
{
    openWithFileAt(2);
    m_log.failing = {"executeCalibrationAndApply()", "restoreSettingsBackup(false)"};
    click("nextButton");
    EXPECT_EQ(takeCalls(), calibration +
                               (QStringList{"console: calibration failed: restore settings",
                                            "stopGrab()", "restoreSettingsBackup(false)"}) +
                               neutral + QStringList{"startGrab()"});
    EXPECT_EQ(m_model.activeStep(), 2);
    EXPECT_EQ(errors(), QStringList{failedText});
    EXPECT_TRUE(m_model.isBackupOwed());
}

class OwedBackup : public LaterFailure
{
protected:
    /// Next on the first step while the camera still refuses what it is owed.
    void expectNextToBeRefused()
    {
        click("nextButton");
        EXPECT_EQ(takeCalls(),
                  (QStringList{"stopGrab()", "restoreSettingsBackup(false)", "startGrab()"}));
        EXPECT_EQ(m_model.activeStep(), 1);
        EXPECT_EQ(errors(), QStringList{notBackText});
        acceptAll();
    }

    void expectNextToSucceed()
    {
        m_log.failing.clear();
        click("nextButton");
        EXPECT_EQ(m_model.activeStep(), 2);
        EXPECT_EQ(takeCalls().mid(0, 4),
                  (QStringList{"stopGrab()", "restoreSettingsBackup(false)",
                               "createSettingsBackup(false)", "createSettingsBackup(true)"}));
    }
};

TEST_F(OwedBackup, IsKeptUntilItIsBackInTheCamera)
{
    openAt(2);
    m_log.failing = {"restoreSettingsBackup(false)"};
    click("backButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "restoreSettingsBackup(false)",
                                        "activeStep=1", "startGrab()"}));
    EXPECT_TRUE(boxes().isEmpty());
    expectNextToBeRefused();
    expectNextToSucceed();
}

TEST_F(OwedBackup, OfAStepThatFailedIsKeptToo)
{
    openAt(1);
    m_log.failing = {"setNeutralSettings()", "restoreSettingsBackup(false)"};
    click("nextButton");
    EXPECT_EQ(takeCalls(),
              (QStringList{"stopGrab()", "createSettingsBackup(false)",
                           "createSettingsBackup(true)", "stopGrab()", "setNeutralSettings()",
                           "restoreSettingsBackup(false)", "startGrab()"}));
    EXPECT_EQ(errors(), QStringList{neutralText});
    acceptAll();
    expectNextToBeRefused();
    expectNextToSucceed();
}

TEST_F(OwedBackup, ThatIsBackIsNotRestoredAgain)
{
    openAt(2);
    click("backButton");
    takeCalls();
    click("nextButton");
    EXPECT_TRUE(takeCalls().filter("restoreSettingsBackup").isEmpty());
}

TEST_F(OwedBackup, IsKeptAfterACalibrationThatFailed)
{
    openAt(2);
    m_model.setHitRate(100);
    m_log.failing = {"storeDetectedExposureAndGain()", "restoreSettingsBackup(false)"};
    click("nextButton");
    answer(QMessageBox::Ok);
    m_log.failing = {"restoreSettingsBackup(false)"};
    click("backButton");
    takeCalls();
    expectNextToBeRefused();
}

} // namespace
