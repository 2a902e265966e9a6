// SPDX-License-Identifier: Apache-2.0
// Every call on the way to another step refused in its turn: the order of calls up to it, the
// message, and what is done about the camera.
#include "wizardwindow.h"

#include <QTest>

namespace {

using Icon = QMessageBox::Icon;

/// A call that is refused, after how many others of its sequence, and what the user is told.
struct Refusal
{
    const char* call;
    int after;
    const char* text;
};

std::string nameOf(const testing::TestParamInfo<Refusal>& info)
{
    std::string name;
    for (const char* letter = info.param.call; *letter; ++letter) {
        if (isalnum(static_cast<unsigned char>(*letter)))
            name += *letter;
    }
    return name;
}

const QStringList neutral = {
    "stopGrab()",          "setNeutralSettings()",   "executeWhitebalance()",
    "activateMonoImage()", "disableAutoFunctions()", "exposure.initialize()",
    "gain.initialize()"};

const QStringList calibration = {"stopGrab()",
                                 "storeDetectedExposureAndGain()",
                                 "restoreSettingsBackup(true)",
                                 "restoreDetectedExposureAndGain()",
                                 "applyInitialCameraImageAndPatchValues()",
                                 "setNeutralSettings()",
                                 "restoreDetectedExposureAndGain()",
                                 "applyInitialColorPatchValues()",
                                 "executeCalibrationAndApply()"};

const QStringList afterFailedCalibration =
    QStringList{"console: calibration failed: restore settings", "stopGrab()",
                "restoreSettingsBackup(false)"} +
    neutral + QStringList{"startGrab()"};

constexpr auto tooBright =
    "The image is too bright. Adjust the exposure time and the gain to achieve "
    "optimum brightness.<br>";
constexpr auto tooBrightError = "The image is too bright and the calibration failed. Adjust the "
                                "exposure time and the gain to achieve optimum brightness.<br>";
constexpr auto tooDarkError =
    "The image is too dark and the calibration failed. Adjust the exposure "
    "time and the gain to achieve optimum brightness.<br>";
constexpr auto eitherOr =
    "The calibration process failed because the image is either too bright or "
    "too dark. Adjust the brightness and try again.";

class FailureOfABackup : public WizardWindow, public testing::WithParamInterface<Refusal>
{};

TEST_P(FailureOfABackup, StaysOnTheGrid)
{
    openAt(1);
    m_log.failing = {GetParam().call};
    click("nextButton");
    const QStringList calls = {"stopGrab()", "createSettingsBackup(false)",
                               "createSettingsBackup(true)"};
    EXPECT_EQ(takeCalls(), calls.mid(0, GetParam().after + 1) + QStringList{"startGrab()"});
    EXPECT_EQ(m_model.activeStep(), 1);
    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "Color Calibrator");
    EXPECT_EQ(message.text, "not backed up");
    EXPECT_EQ(message.icon, Icon::Critical);
}

INSTANTIATE_TEST_SUITE_P(Wizard, FailureOfABackup,
                         testing::Values(Refusal{"createSettingsBackup(false)", 1, ""},
                                         Refusal{"createSettingsBackup(true)", 2, ""}),
                         nameOf);

class FailureOnTheWayToStep2 : public WizardWindow, public testing::WithParamInterface<Refusal>
{};

TEST_P(FailureOnTheWayToStep2, StaysOnTheGridAndGivesTheSettingsBack)
{
    openAt(1);
    m_log.failing = {GetParam().call};
    press(Qt::Key_Return);
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "createSettingsBackup(false)",
                                        "createSettingsBackup(true)"} +
                            neutral.mid(0, GetParam().after + 1) +
                            QStringList{"restoreSettingsBackup(false)", "startGrab()"}));
    EXPECT_EQ(m_model.activeStep(), 1);

    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "Color Calibrator");
    EXPECT_EQ(message.text, GetParam().text);
    EXPECT_EQ(message.icon, Icon::Critical);
    EXPECT_EQ(property("progress", "errorText").toString(), "");
    answer(QMessageBox::Ok);
    EXPECT_TRUE(takeCalls().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Wizard, FailureOnTheWayToStep2,
    testing::Values(Refusal{"setNeutralSettings()", 1, "Unable to set neutral settings."},
                    Refusal{"exposure.initialize()", 5,
                            "No initial parameters (min, max, value) <br> for exposure time "
                            "available."},
                    Refusal{
                        "gain.initialize()", 6,
                        "No initial parameters (min, max, value) <br> for gain value available."}),
    nameOf);

class Failures : public WizardWindow
{
protected:
    /// Step 2 with a brightness that is right.
    void openAtStep2()
    {
        openAt(2);
        m_model.setHitRate(100);
    }
};

TEST_F(Failures, OfLoadingTellsSoAndComesBeforeAnythingElse)
{
    openAt(1);
    m_model.setProperty("previousCalibrationFile", "/x.cst");
    m_log.failing = {"loadSettings(/x.cst)"};
    click("nextButton");
    EXPECT_EQ(takeCalls(),
              (QStringList{"stopGrab()", "createSettingsBackup(false)",
                           "createSettingsBackup(true)", "stopGrab()", "loadSettings(/x.cst)",
                           "restoreSettingsBackup(false)", "startGrab()"}));
    const auto message = onlyMessage();
    EXPECT_EQ(message.text, "Could not load previous settings.");
    EXPECT_EQ(message.icon, Icon::Critical);
    EXPECT_EQ(message.title, "Color Calibrator");
}

TEST_F(Failures, StartNoGrabWithoutContinuousShot)
{
    openAt(1);
    setGlobalValue("autoRefreshChecked", false);
    m_log.failing = {"setNeutralSettings()"};
    click("nextButton");
    EXPECT_FALSE(takeCalls().contains("startGrab()"));
}

TEST_F(Failures, OfTheWhiteBalanceEndTheWizard)
{
    openAt(1);
    m_log.failing = {"executeWhitebalance()"};
    click("nextButton");
    EXPECT_EQ(takeCalls(),
              (QStringList{"stopGrab()", "createSettingsBackup(false)",
                           "createSettingsBackup(true)", "stopGrab()", "setNeutralSettings()",
                           "executeWhitebalance()", "restoreSettingsBackup(false)"}));
    EXPECT_EQ(m_model.activeStep(), 1);
    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "Color Calibrator");
    EXPECT_EQ(message.text, eitherOr);
    EXPECT_EQ(message.icon, Icon::Critical);
    answer(QMessageBox::Ok);
    EXPECT_EQ(takeCalls(), QStringList{"cancel()"});
}

class FailureOnTheWayToStep3 : public Failures, public testing::WithParamInterface<Refusal>
{};

TEST_P(FailureOnTheWayToStep3, StaysOnTheBrightnessWithNeutralSettings)
{
    openAtStep2();
    m_log.failing = {GetParam().call};
    click("nextButton");
    EXPECT_EQ(takeCalls(), calibration.mid(0, GetParam().after + 1) + afterFailedCalibration);
    EXPECT_EQ(m_model.activeStep(), 2);

    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "Color Calibrator");
    EXPECT_EQ(message.text, GetParam().text);
    EXPECT_EQ(message.icon, Icon::Critical);
}

constexpr auto noDetected = "Couldn't restore detected exposure and gain values.";

INSTANTIATE_TEST_SUITE_P(
    Wizard, FailureOnTheWayToStep3,
    testing::Values(
        Refusal{"storeDetectedExposureAndGain()", 1,
                "Couldn't store detected exposure and gain values."},
        Refusal{"restoreSettingsBackup(true)", 2, "Couldn't restore preneutral camera settings."},
        Refusal{"restoreDetectedExposureAndGain()", 3, noDetected},
        Refusal{"applyInitialCameraImageAndPatchValues()", 4,
                "Couldn't apply initial camera image or set original patch color values."},
        Refusal{"setNeutralSettings()#1", 5, "Unable to set neutral settings."},
        Refusal{"restoreDetectedExposureAndGain()#2", 6, noDetected},
        Refusal{"applyInitialColorPatchValues()", 7, "Couldn't apply <br> initial values."},
        Refusal{"executeCalibrationAndApply()", 8, "Calibration process failed.<br>"}),
    nameOf);

TEST_F(Failures, OfTheCalibrationOfATooBrightImageSayWhy)
{
    openAtStep2();
    m_model.setHitRate(130);
    m_log.failing = {"executeCalibrationAndApply()"};
    click("nextButton");
    EXPECT_EQ(takeCalls(), calibration + afterFailedCalibration);
    EXPECT_EQ(onlyMessage().text, tooBrightError);
    EXPECT_EQ(onlyMessage().icon, Icon::Critical);
    EXPECT_EQ(property("progress", "warningText").toString(), "");
}

TEST_F(Failures, OfTheCalibrationOfATooDarkImageSayWhy)
{
    openAtStep2();
    m_model.setHitRate(60);
    m_log.failing = {"executeCalibrationAndApply()"};
    click("nextButton");
    EXPECT_EQ(onlyMessage().text, tooDarkError);
}

TEST_F(Failures, DarkWinsWhereBothFlagsStand)
{
    openAtStep2();
    setGlobalValue("bImageToBright", true);
    setGlobalValue("bImageToDark", true);
    m_log.failing = {"executeCalibrationAndApply()"};
    click("nextButton");
    EXPECT_EQ(onlyMessage().text, tooDarkError);
    EXPECT_FALSE(globalValue("bImageToBright").toBool());
    EXPECT_FALSE(globalValue("bImageToDark").toBool());
}

TEST_F(Failures, OfAnotherCallShowTheWarningBesidesTheError)
{
    openAtStep2();
    m_model.setHitRate(130);
    m_log.failing = {"applyInitialColorPatchValues()"};
    click("nextButton");
    QVector<Message> messages;
    for (auto* box : boxes())
        messages.append({box->windowTitle(), box->text(), box->icon()});
    ASSERT_EQ(messages.size(), 2);
    if (messages[0].icon == Icon::Critical)
        std::swap(messages[0], messages[1]);
    EXPECT_EQ(messages[0].text, tooBright);
    EXPECT_EQ(messages[0].icon, Icon::Warning);
    EXPECT_EQ(messages[0].title, "Color Calibrator");
    EXPECT_EQ(messages[1].text, "Couldn't apply <br> initial values.");
    EXPECT_EQ(messages[1].icon, Icon::Critical);
}

TEST_F(Failures, OfTheNeutralSettingsTwiceKeepTheFirstText)
{
    openAtStep2();
    m_log.failing = {"storeDetectedExposureAndGain()", "setNeutralSettings()"};
    click("nextButton");
    EXPECT_EQ(onlyMessage().text, "Couldn't store detected exposure and gain values.");
}

TEST_F(Failures, OnTheWayBackToTheBrightnessWaitForNext)
{
    openAt(3);
    m_log.failing = {"executeWhitebalance()"};
    click("backButton");
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "setNeutralSettings()",
                                        "executeWhitebalance()", "activeStep=2", "startGrab()"}));
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(property("progress", "criticalText").toString(), eitherOr);

    m_log.failing.clear();
    click("nextButton");
    EXPECT_EQ(onlyMessage().text, eitherOr);
    EXPECT_EQ(onlyMessage().icon, Icon::Critical);
    EXPECT_EQ(property("progress", "criticalText").toString(), "");
    answer(QMessageBox::Ok);
    EXPECT_EQ(takeCalls().last(), "cancel()");
}

TEST_F(Failures, OfTheWhiteBalanceEndTheWizardAlsoByEscape)
{
    openAt(1);
    m_log.failing = {"executeWhitebalance()"};
    click("nextButton");
    ASSERT_EQ(onlyMessage().text, eitherOr);
    takeCalls();
    QTest::keyClick(boxes().first(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor([this] { return boxes().isEmpty(); }));
    EXPECT_EQ(takeCalls(), QStringList{"cancel()"});
}

TEST_F(Failures, OfTheGainOnTheWayBackAreForgottenByACalibrationThatSucceeds)
{
    openAt(3);
    m_log.failing = {"gain.initialize()"};
    click("backButton");
    EXPECT_EQ(m_model.activeStep(), 2);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_NE(property("progress", "errorText").toString(), "");

    m_log.failing.clear();
    m_model.setHitRate(100);
    click("nextButton");
    EXPECT_EQ(m_model.activeStep(), 3);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(Failures, OfMonoAndAutomaticFunctionsAreNotAskedFor)
{
    openAt(1);
    m_log.failing = {"activateMonoImage()", "disableAutoFunctions()"};
    click("nextButton");
    EXPECT_EQ(m_model.activeStep(), 2);
}

} // namespace
