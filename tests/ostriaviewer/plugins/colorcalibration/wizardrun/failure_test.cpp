// SPDX-License-Identifier: Apache-2.0
// A camera that fails on the way to a step: what the user reads, and what the camera has.
#include "wizardrun.h"

#include <QApplication>
#include <QTest>

namespace {

constexpr auto neutralText = "Unable to set neutral settings.";
constexpr auto exposureText =
    "No initial parameters (min, max, value) <br> for exposure time available.";
constexpr auto gainText = "No initial parameters (min, max, value) <br> for gain value available.";
constexpr auto eitherOr = "The calibration process failed because the image is either too bright "
                          "or too dark. Adjust the brightness and try again.";

class Failure : public WizardRun
{
protected:
    /// Clicks Next, and waits until the boxes have been opened that it leads to.
    void expectErrors(QStringList texts)
    {
        click("nextButton");
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        QStringList told;
        for (const auto* open : openBoxes()) {
            EXPECT_EQ(open->windowTitle(), "Color Calibrator");
            EXPECT_EQ(open->icon(), QMessageBox::Critical);
            told << open->text();
        }
        told.sort();
        texts.sort();
        EXPECT_EQ(told, texts) << told.join("; ").toStdString();
    }

    void closeBoxes()
    {
        // The end of the wizard closes the others too.
        for (auto* open = box(); open; open = box())
            QTest::keyClick(open, Qt::Key_Escape);
    }

    static QVector<QMessageBox*> openBoxes()
    {
        QVector<QMessageBox*> open;
        for (auto* widget : QApplication::topLevelWidgets()) {
            auto* found = qobject_cast<QMessageBox*>(widget);
            if (found && found->isVisible())
                open << found;
        }
        return open;
    }
};

/// A feature that refuses to be written on the way to step 2, and what is told of it.
struct RefusedFeature
{
    const char* feature;
    const char* text;
};

class Refusal : public Failure, public testing::WithParamInterface<RefusedFeature>
{};

TEST_P(Refusal, IsToldAndLeavesTheCameraAsItWas)
{
    const RefusedFeature& refused = GetParam();
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(1));
        m_camera->refuseWrites(refused.feature);
        ASSERT_NO_FATAL_FAILURE(expectErrors({refused.text}));
        EXPECT_EQ(m_data->activeStep(), 1);
        EXPECT_EQ(settings(), before);
        // What the camera refused in part is made good when the wizard ends.
        m_camera->refuseWrites(refused.feature, -1);
        closeBoxes();
        click("cancelButton");
    });
    EXPECT_EQ(settings(), before);
}

INSTANTIATE_TEST_SUITE_P(WizardRun, Refusal,
                         testing::Values(RefusedFeature{"Gamma", neutralText},
                                         RefusedFeature{"BalanceRatio", neutralText},
                                         RefusedFeature{"ExposureTime", exposureText},
                                         RefusedFeature{"Gain", gainText}),
                         [](const auto& refusal) { return std::string(refusal.param.feature); });

/// Without an image there is no white balance, and without that no way on.
TEST_F(Failure, OfAllImagesEndsTheWizardWithTheCameraAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(1));
        m_camera->faults().failFrames(-1);
        ASSERT_NO_FATAL_FAILURE(expectErrors({eitherOr}));
        EXPECT_EQ(m_data->activeStep(), 1);
        m_camera->faults().failFrames(0);
        closeBoxes();
    });
    EXPECT_EQ(settings(), before);
}

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
