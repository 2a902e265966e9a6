// SPDX-License-Identifier: Apache-2.0
// Tests of the way to an exposure time at which the chart can be seen.
#include "exposuresearch.h"
#include "fakecamera.h"
#include "fakecameraservices.h"

#include <gtest/gtest.h>

using namespace ColorCalibrate;

namespace {

/// A camera whose exposure time may be anything from 10 microseconds to 100 s.
class ExposureSearchTest : public testing::Test
{
protected:
    ExposureSearchTest()
    {
        m_camera->parameters().addFloat(QStringLiteral("Gain"), 0.0);
        m_camera->parameters().addFloat(QStringLiteral("ExposureTime"), 1000.0, 10.0, 1e8);
        m_camera->open = false;
        m_model.SetCameraStatusService(&m_status);
        m_model.SetCameraControlService(&m_control);
        EXPECT_TRUE(m_model.Open(m_camera));
    }

    void startAt(double microseconds) { EXPECT_TRUE(m_model.SetExposureTime(microseconds)); }

    FakeStatusService m_status;
    FakeControlService m_control;
    QSharedPointer<FakeCamera> m_camera = QSharedPointer<FakeCamera>::create();
    ColorCalibration::ColorCorrectionModel m_model;
};

TEST_F(ExposureSearchTest, GoesDownByHalvesAndUpByFours)
{
    ExposureSearch search(m_model, true);
    EXPECT_TRUE(search.moveFrom(Light::TooDark));
    EXPECT_EQ(m_model.GetExposureTime(), 4000.0);
    EXPECT_TRUE(search.moveFrom(Light::TooBright));
    EXPECT_EQ(m_model.GetExposureTime(), 2000.0);
    EXPECT_FALSE(search.moveFrom(Light::Usable));
    EXPECT_EQ(m_model.GetExposureTime(), 2000.0);
}

TEST_F(ExposureSearchTest, GoesUpToTwoSecondsAndNoFurther)
{
    ExposureSearch search(m_model, true);
    startAt(600000.0);
    EXPECT_TRUE(search.moveFrom(Light::TooDark));
    EXPECT_EQ(m_model.GetExposureTime(), 2e6) << "and not 2.4 s";
    EXPECT_FALSE(search.moveFrom(Light::TooDark));
    EXPECT_EQ(m_model.GetExposureTime(), 2e6);
}

TEST_F(ExposureSearchTest, LeavesALongerTimeOfTheUsersButForShorterOnes)
{
    ExposureSearch search(m_model, true);
    startAt(5e6);
    EXPECT_FALSE(search.moveFrom(Light::TooDark));
    EXPECT_EQ(m_model.GetExposureTime(), 5e6);
    EXPECT_TRUE(search.moveFrom(Light::TooBright));
    EXPECT_EQ(m_model.GetExposureTime(), 2.5e6);
}

TEST_F(ExposureSearchTest, StaysWithinTheCamerasLimits)
{
    m_camera->features().change(QStringLiteral("ExposureTime"), [](FakeFeature& exposure) {
        exposure.minimum = 800.0;
        exposure.maximum = 3000.0;
    });
    ExposureSearch search(m_model, true);
    EXPECT_TRUE(search.moveFrom(Light::TooBright));
    EXPECT_EQ(m_model.GetExposureTime(), 800.0);
    EXPECT_FALSE(search.moveFrom(Light::TooBright));
    EXPECT_TRUE(search.moveFrom(Light::TooDark));
    EXPECT_EQ(m_model.GetExposureTime(), 3000.0);
    EXPECT_FALSE(search.moveFrom(Light::TooDark));
}

TEST_F(ExposureSearchTest, EndsAfterTwentyStepsWhateverTheLightDoes)
{
    ExposureSearch search(m_model, true);
    int steps = 0;
    while (steps < 100 && search.moveFrom(steps % 2 == 0 ? Light::TooDark : Light::TooBright))
        ++steps;
    EXPECT_EQ(steps, 20);
}

TEST_F(ExposureSearchTest, MovesNothingThatItMayNotOrCannot)
{
    EXPECT_FALSE(ExposureSearch(m_model, false).moveFrom(Light::TooDark));
    m_camera->features().change(QStringLiteral("ExposureTime"),
                                [](FakeFeature& exposure) { exposure.writable = false; });
    EXPECT_FALSE(ExposureSearch(m_model, true).moveFrom(Light::TooDark));
    m_camera->features().remove(QStringLiteral("ExposureTime"));
    EXPECT_FALSE(ExposureSearch(m_model, true).moveFrom(Light::TooDark));
    EXPECT_TRUE(m_camera->features().writes().filter(QStringLiteral("ExposureTime")).isEmpty());
}

} // namespace
