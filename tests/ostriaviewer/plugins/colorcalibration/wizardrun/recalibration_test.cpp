// SPDX-License-Identifier: Apache-2.0
// What the button of exhibitions makes of a camera that is calibrated already.
#include "wizardrun.h"

#include <QSettings>
#include <QSignalSpy>

#include <algorithm>

using ColorCalibration::QmlDataModelInterface;

namespace {

class Recalibration : public WizardRun
{
protected:
    Recalibration() { QSettings().setValue("ColCalPlugin/EnableDemoMode", true); }

    void recalibrate()
    {
        QSignalSpy finished(m_data.get(), &QmlDataModelInterface::calibrationFinished);
        click("recalibrateButton");
        ASSERT_TRUE(finished.wait(60000));
        ASSERT_TRUE(waitFor([this] { return item("nextButton")->isEnabled(); }));
        ASSERT_FALSE(box());
    }

    QVector<QColor> measure()
    {
        QVector<QColor> seen;
        m_model.GetColorPatchValues(seen, true);
        EXPECT_EQ(seen.size(), 24);
        seen.resize(24);
        return seen;
    }

    double exposure() { return value("ExposureTime"); }

    /// The published colors in sRGB of two grays of the chart, 200 and 122.
    static void expectTrueGrays(const QVector<QColor>& seen)
    {
        EXPECT_NEAR(seen[19].green(), 200, 15);
        EXPECT_NEAR(seen[21].green(), 122, 15);
    }

    static int spread(const QColor& gray)
    {
        const auto [least, most] = std::minmax({gray.red(), gray.green(), gray.blue()});
        return most - least;
    }
};

// The gray patch is brought to 150 of 255 as the camera shows it: without a gamma on the second
// step, with one of 0.45 here, which is (150 / 255)^(1 / 0.45) = 0.31 of the light instead of 0.59.
// Each of the two may be off by 10 percent.
TEST_F(Recalibration, TakesHalfOfTheLightAndGoingBackTakesAllOfIt)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        const double first = exposure();
        expectTrueGrays(measure());

        ASSERT_NO_FATAL_FAILURE(recalibrate());
        EXPECT_NEAR(exposure() / first, 0.31 / 0.59, 0.12);
        const QVector<QColor> darker = measure();
        EXPECT_LT(darker[19].green(), 200 - 15);
        EXPECT_LT(spread(darker[19]), 15) << "gray is gray";
        EXPECT_LT(spread(darker[21]), 15);

        click("backButton");
        ASSERT_EQ(m_data->activeStep(), 2);
        ASSERT_NO_FATAL_FAILURE(adjustBrightness());
        ASSERT_NO_FATAL_FAILURE(next(3));
        EXPECT_NEAR(exposure() / first, 1, 0.2);
        expectTrueGrays(measure());
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), before);
}

} // namespace
