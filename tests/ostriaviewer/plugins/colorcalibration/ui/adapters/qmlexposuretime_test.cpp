// SPDX-License-Identifier: Apache-2.0
// Tests of the exposure time on the scale of a slider.
#include "qmlexposuretime.h"

#include "recordingmodel.h"

#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace ColorCalibration {
namespace {

class QmlExposureTimeTest : public testing::Test
{
protected:
    QTimer& timer() { return *m_exposure.findChild<QTimer*>(); }

    RecordingModel m_model;
    QMLExposureTime m_exposure{&m_model};
    QSignalSpy m_min{&m_exposure, &QMLExposureTime::signalMinChanged};
    QSignalSpy m_max{&m_exposure, &QMLExposureTime::signalMaxChanged};
    QSignalSpy m_value{&m_exposure, &QMLExposureTime::signalValueChanged};
    QSignalSpy m_error{&m_exposure, &QMLExposureTime::lastErrorChanged};
};

TEST_F(QmlExposureTimeTest, EverythingIsMinusOneAtFirst)
{
    EXPECT_EQ(m_exposure.min(), -1.0);
    EXPECT_EQ(m_exposure.max(), -1.0);
    EXPECT_EQ(m_exposure.value(), -1.0);
    EXPECT_EQ(m_min.count() + m_max.count(), 0) << "a read without a value moves no limit";
}

TEST_F(QmlExposureTimeTest, InitializeReadsTheRangeAndWritesTheValueBack)
{
    ASSERT_TRUE(m_exposure.initialize());
    EXPECT_EQ(m_model.calls(), QStringList({"GetExposureTimeRange", "SetExposureTime 100"}));
    EXPECT_EQ(m_value.count(), 1);
    EXPECT_EQ(m_exposure.min(), -1.0) << "limits follow a read of the value";
    EXPECT_DOUBLE_EQ(m_exposure.value(), 2.0);
    EXPECT_DOUBLE_EQ(m_exposure.min(), 1.0);
    EXPECT_DOUBLE_EQ(m_exposure.max(), 3.0);
    EXPECT_EQ(m_min.count(), 1);
    EXPECT_EQ(m_max.count(), 1);
    m_exposure.value();
    EXPECT_EQ(m_min.count(), 1) << "told once";
    EXPECT_EQ(m_max.count(), 1);
}

TEST_F(QmlExposureTimeTest, InitializePassesBothRefusalsOn)
{
    m_model.refused = {"GetExposureTimeRange"};
    EXPECT_FALSE(m_exposure.initialize());
    EXPECT_EQ(m_exposure.value(), -1.0);
    m_model.refused = {"SetExposureTime"};
    EXPECT_FALSE(m_exposure.initialize());
    EXPECT_DOUBLE_EQ(m_exposure.value(), 2.0) << "what was read stays";
    EXPECT_EQ(m_value.count(), 0);
}

TEST_F(QmlExposureTimeTest, AMinimumOfAtMostOneIsZeroOnTheScale)
{
    for (const double minimum : {1.0, 0.5, 0.0, -3.0}) {
        m_model.minimum = minimum;
        ASSERT_TRUE(m_exposure.initialize());
        m_exposure.value();
        EXPECT_EQ(m_exposure.min(), 0.0) << minimum;
    }
}

TEST_F(QmlExposureTimeTest, EveryWriteReachesTheCamera)
{
    ASSERT_TRUE(m_exposure.initialize());
    m_model.takeCalls();
    ASSERT_TRUE(m_exposure.setProperty("value", 2.5));
    m_exposure.setValue(2.5);
    EXPECT_EQ(m_model.calls(),
              QStringList({"SetExposureTime 316.227766", "SetExposureTime 316.227766"}));
    EXPECT_DOUBLE_EQ(m_exposure.value(), 2.5);
    EXPECT_TRUE(timer().isActive());
    EXPECT_TRUE(timer().isSingleShot());
    EXPECT_EQ(timer().interval(), 10);
    EXPECT_EQ(m_value.count(), 1) << "that of initialize alone";
}

TEST_F(QmlExposureTimeTest, WhatIsNotPositiveIsNotWritten)
{
    for (const double value : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        m_exposure.setValue(value);
    EXPECT_TRUE(m_model.calls().isEmpty());
    EXPECT_EQ(m_exposure.value(), -1.0);
    EXPECT_FALSE(timer().isActive());
}

TEST_F(QmlExposureTimeTest, ARefusedWriteIsToldOnceAndKeepsWhatWasAskedFor)
{
    ASSERT_TRUE(m_exposure.initialize());
    m_model.refused = {"SetExposureTime"};
    m_exposure.setValue(2.5);
    EXPECT_EQ(m_error.count(), 1);
    EXPECT_EQ(m_exposure.property("lastError").toString(), "Couldn't set exposureTime!<br>");
    EXPECT_EQ(m_exposure.property("lastError").toString(), QString());
    EXPECT_DOUBLE_EQ(m_exposure.value(), 2.5);
}

TEST_F(QmlExposureTimeTest, AChangeByTheCameraIsToldOnceInTenMilliseconds)
{
    ASSERT_TRUE(m_exposure.initialize());
    m_value.clear();
    m_exposure.onChangedValue(200.0);
    EXPECT_EQ(m_value.count(), 1);
    EXPECT_TRUE(timer().isActive());
    m_exposure.onChangedValue(400.0);
    EXPECT_EQ(m_value.count(), 1) << "within the window";
    EXPECT_DOUBLE_EQ(m_exposure.value(), std::log10(400.0)) << "but kept";
    QSignalSpy over(&timer(), &QTimer::timeout);
    ASSERT_TRUE(over.wait());
    m_exposure.onChangedValue(800.0);
    EXPECT_EQ(m_value.count(), 2);
    m_exposure.onChangedValue(800.0);
    EXPECT_EQ(m_value.count(), 2) << "an equal value is no change";
}

TEST_F(QmlExposureTimeTest, AnEchoOfAWriteDoesNotMoveTheSlider)
{
    ASSERT_TRUE(m_exposure.initialize());
    m_value.clear();
    m_exposure.setValue(2.5);
    m_exposure.onChangedValue(316.0);
    EXPECT_EQ(m_value.count(), 0);
    EXPECT_DOUBLE_EQ(m_exposure.value(), std::log10(316.0));
}

TEST_F(QmlExposureTimeTest, TheDivisionBelongsToTheOldValueAlone)
{
    // Range of two decades: |log10(x) - log10(100) / 2| = |log10(x) - 1| is 0 at x = 10, which as
    // a plain difference would be a whole decade.
    ASSERT_TRUE(m_exposure.initialize());
    m_value.clear();
    m_exposure.onChangedValue(10.0);
    EXPECT_EQ(m_value.count(), 0);
    EXPECT_DOUBLE_EQ(m_exposure.value(), 1.0);
    // From 10: |log10(x) - 0.5|. The tiny step to 10.001 counts as half a decade.
    m_exposure.onChangedValue(10.001);
    EXPECT_EQ(m_value.count(), 1);
}

TEST_F(QmlExposureTimeTest, AChangeBeforeInitializeIsKeptWithoutASignal)
{
    m_exposure.onChangedValue(1000.0);
    EXPECT_EQ(m_value.count(), 0);
    EXPECT_DOUBLE_EQ(m_exposure.value(), 3.0);
}

TEST_F(QmlExposureTimeTest, ResetForgetsTheRawValues)
{
    ASSERT_TRUE(m_exposure.initialize());
    m_exposure.value();
    m_exposure.reset();
    EXPECT_EQ(m_exposure.value(), -1.0);
    EXPECT_DOUBLE_EQ(m_exposure.max(), 3.0) << "the scale stays until a value comes";
}

} // namespace
} // namespace ColorCalibration
