// SPDX-License-Identifier: Apache-2.0
// Who goes to the end of the wizard has a calibrated camera.
#include "generationname.h"
#include "wizardrun.h"

#include <QTest>

namespace {

class Finish : public WizardRun,
               public testing::WithParamInterface<Cameras::Emulation::FeatureNames>
{
protected:
    void finishByMouse()
    {
        run([this] {
            ASSERT_NO_FATAL_FAILURE(goTo(4));
            click("nextButton");
        });
    }

    std::array<double, 3> whiteBalance()
    {
        const QString ratio = "BalanceRatio|BalanceRatioAbs";
        const QString selector = "BalanceRatioSelector";
        return {value(ratio, selector, "Red"), value(ratio, selector, "Green"),
                value(ratio, selector, "Blue")};
    }

    /// The camera rounds what is written to its own steps.
    void expectComputedValues()
    {
        constexpr double step = 0.002;
        const auto computed = m_model.LastCalibration();
        const auto ratios = whiteBalance();
        for (std::size_t color = 0; color < 3; ++color)
            EXPECT_NEAR(ratios[color], computed.whiteBalance[color], step) << color;
        for (int row = 0; row < 3; ++row) {
            double sum = 0;
            for (int column = 0; column < 3; ++column) {
                sum += gain(row, column);
                if (column != row) {
                    EXPECT_NEAR(gain(row, column), computed.colorMatrix(row, column), step);
                }
            }
            EXPECT_NEAR(sum, 1.0, step) << "gray stays gray";
        }
        EXPECT_NEAR(value("Gamma"), computed.gamma, step);
    }

    /// Measures the chart outside of the wizard, against published colors of its patches in sRGB.
    void expectTrueColors()
    {
        ASSERT_TRUE(m_model.Open(m_camera));
        QVector<QColor> seen;
        m_model.GetColorPatchValues(seen, true);
        m_model.Close();
        ASSERT_EQ(seen.size(), 24);
        const QVector<QPair<int, QColor>> published{
            {14, {70, 148, 73}}, {15, {175, 54, 60}}, {20, {200, 200, 200}}, {22, {122, 122, 121}}};
        for (const auto& [patch, color] : published) {
            const QColor& is = seen[patch - 1];
            EXPECT_NEAR(is.red(), color.red(), 15) << patch;
            EXPECT_NEAR(is.green(), color.green(), 15) << patch;
            EXPECT_NEAR(is.blue(), color.blue(), 15) << patch;
        }
    }
};

TEST_P(Finish, LeavesTheCalibratedValuesInTheCamera)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(GetParam()));
    const auto ratios = whiteBalance();
    const double gamma = value("Gamma");
    const double green = gain(0, 1);
    ASSERT_NO_FATAL_FAILURE(finishByMouse());
    EXPECT_GT(std::abs(whiteBalance()[0] - ratios[0]), 0.01);
    EXPECT_GT(std::abs(whiteBalance()[2] - ratios[2]), 0.01);
    EXPECT_GT(std::abs(value("Gamma") - gamma), 0.01);
    EXPECT_GT(std::abs(gain(0, 1) - green), 0.01);
    expectComputedValues();
    expectTrueColors();
}

INSTANTIATE_TEST_SUITE_P(WizardRun, Finish,
                         testing::Values(Cameras::Emulation::FeatureNames::FirstGeneration,
                                         Cameras::Emulation::FeatureNames::SecondGeneration,
                                         Cameras::Emulation::FeatureNames::SecondGenerationMaker),
                         generationName);

class FinishTwice : public Finish
{};

TEST_P(FinishTwice, CancellingTheSecondRunKeepsTheFirst)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(GetParam()));
    ASSERT_NO_FATAL_FAILURE(finishByMouse());
    const QStringList calibrated = settings();
    run([this] {
        EXPECT_EQ(m_data->activeStep(), 1);
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), calibrated);

    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        press(Qt::Key_Return);
        ASSERT_EQ(m_data->activeStep(), 4);
        press(Qt::Key_Return);
    });
    expectComputedValues();
    expectTrueColors();
}

INSTANTIATE_TEST_SUITE_P(WizardRun, FinishTwice,
                         testing::Values(Cameras::Emulation::FeatureNames::SecondGeneration),
                         generationName);

} // namespace
