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

} // namespace
