// SPDX-License-Identifier: Apache-2.0
// A camera that refuses a setting on the way to a step: what the user reads, and what the camera
// has.
#include "wizardrun.h"

#include <QTest>

namespace {

/// A feature of one of the groups that are made neutral, each later than the one before.
class Refusal : public WizardRun, public testing::WithParamInterface<const char*>
{};

TEST_P(Refusal, OfANeutralSettingIsToldAndLeavesTheCameraAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(1));
        m_camera->refuseWrites(GetParam());
        click("nextButton");
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        EXPECT_EQ(box()->windowTitle(), "Color Calibrator");
        EXPECT_EQ(box()->text(), "Unable to set neutral settings.");
        EXPECT_EQ(box()->icon(), QMessageBox::Critical);
        EXPECT_EQ(m_data->activeStep(), 1);
        EXPECT_EQ(settings(), before);
        // The restore that was refused in part is made again when the wizard ends.
        m_camera->refuseWrites(GetParam(), -1);
        QTest::keyClick(box(), Qt::Key_Escape);
        click("cancelButton");
    });
    EXPECT_EQ(settings(), before);
}

INSTANTIATE_TEST_SUITE_P(WizardRun, Refusal, testing::Values("Gamma", "BalanceRatio"),
                         [](const auto& feature) { return std::string(feature.param); });

/// A feature that is refused from a write on, and what is told of it on the way to step 3.
struct LaterRefusal
{
    const char* name;
    const char* feature;
    int afterWrites;
    const char* text;
};

class FailureAfterTheBrightness : public WizardRun, public testing::WithParamInterface<LaterRefusal>
{};

TEST_P(FailureAfterTheBrightness, LeavesTheCameraToCancelAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        ASSERT_NO_FATAL_FAILURE(adjustBrightness());
        m_camera->refuseWrites(GetParam().feature, GetParam().afterWrites);
        click("nextButton");
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        EXPECT_EQ(boxes().size(), 1);
        EXPECT_EQ(box()->text(), GetParam().text);
        EXPECT_EQ(box()->icon(), QMessageBox::Critical);
        EXPECT_EQ(m_data->activeStep(), 2);
        EXPECT_NE(settings(), before) << "neutral again";
        m_camera->refuseWrites(GetParam().feature, -1);
        QTest::keyClick(box(), Qt::Key_Escape);
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), before);
}

INSTANTIATE_TEST_SUITE_P(
    WizardRun, FailureAfterTheBrightness,
    testing::Values(LaterRefusal{"NeutralGamma", "Gamma", 1, "Unable to set neutral settings."},
                    LaterRefusal{"CalibratedGamma", "Gamma", 2, "Calibration process failed.<br>"}),
    [](const auto& refusal) { return std::string(refusal.param.name); });

class NoImages : public WizardRun
{};

TEST_F(NoImages, AfterTheBrightnessEndTheWizardWithTheCameraAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    QStringList told;
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        ASSERT_NO_FATAL_FAILURE(adjustBrightness());
        m_camera->faults().failFrames(-1);
        click("nextButton");
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        for (auto* shown : boxes())
            told << shown->text();
        EXPECT_NE(settings(), before);
        while (auto* shown = box())
            shown->close();
    });
    told.sort();
    EXPECT_EQ(told, QStringList({"Couldn't apply initial camera image or set original patch color "
                                 "values.",
                                 "The calibration process failed because the image is either too "
                                 "bright or too dark. Adjust the brightness and try again."}));
    EXPECT_EQ(settings(), before);
}

} // namespace
