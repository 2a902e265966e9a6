// SPDX-License-Identifier: Apache-2.0
// Tests of the gain on the scale of a slider.
#include "qmlgainvalue.h"

#include "recordingmodel.h"

#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

#include <cmath>

namespace ColorCalibration {
namespace {

class QmlGainvalueTest : public testing::Test
{
protected:
    QmlGainvalueTest()
    {
        m_model.minimum = 4.0;
        m_model.current = 9.0;
        m_model.maximum = 24.0;
    }

    QTimer& timer() { return *m_gain.findChild<QTimer*>(); }

    RecordingModel m_model;
    QMLGainvalue m_gain{&m_model};
    QSignalSpy m_value{&m_gain, &QMLGainvalue::signalValueChanged};
    QSignalSpy m_error{&m_gain, &QMLGainvalue::lastErrorChanged};
};

TEST_F(QmlGainvalueTest, EverythingIsMinusOneAtFirst)
{
    EXPECT_EQ(m_gain.min(), -1.0);
    EXPECT_EQ(m_gain.max(), -1.0);
    EXPECT_EQ(m_gain.value(), -1.0);
}

TEST_F(QmlGainvalueTest, InitializeReadsTheRangeAndWritesTheValueBack)
{
    ASSERT_TRUE(m_gain.initialize());
    EXPECT_EQ(m_model.calls(), QStringList({"GetGainRange", "SetGain 9"}));
    EXPECT_EQ(m_value.count(), 1);
    EXPECT_EQ(m_gain.min(), 4.0);
    EXPECT_EQ(m_gain.max(), 24.0);
    EXPECT_DOUBLE_EQ(m_gain.value(), 0.25);
}

TEST_F(QmlGainvalueTest, InitializePassesBothRefusalsOn)
{
    m_model.refused = {"GetGainRange"};
    EXPECT_FALSE(m_gain.initialize());
    EXPECT_EQ(m_gain.value(), -1.0);
    m_model.refused = {"SetGain"};
    EXPECT_FALSE(m_gain.initialize());
    EXPECT_EQ(m_value.count(), 0);
}

TEST_F(QmlGainvalueTest, AWriteGoesToTheCameraOnItsOwnScale)
{
    ASSERT_TRUE(m_gain.initialize());
    m_model.takeCalls();
    ASSERT_TRUE(m_gain.setProperty("value", 0.5));
    EXPECT_EQ(m_model.calls(), QStringList({"SetGain 14"}));
    EXPECT_DOUBLE_EQ(m_gain.value(), 0.5);
    EXPECT_TRUE(timer().isActive());
    EXPECT_TRUE(timer().isSingleShot());
    EXPECT_EQ(timer().interval(), 10);
    m_gain.setValue(0.0);
    EXPECT_EQ(m_model.calls(), QStringList({"SetGain 14", "SetGain 4"}));
}

TEST_F(QmlGainvalueTest, TheSameValueAndANegativeOneAreNotWritten)
{
    ASSERT_TRUE(m_gain.initialize());
    m_model.takeCalls();
    m_gain.setValue(0.25);
    m_gain.setValue(-0.01);
    m_gain.setValue(std::nan(""));
    EXPECT_TRUE(m_model.calls().isEmpty());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(QmlGainvalueTest, ARefusedWriteIsToldOnceAndKeepsWhatWasAskedFor)
{
    ASSERT_TRUE(m_gain.initialize());
    m_model.refused = {"SetGain"};
    m_gain.setValue(0.5);
    EXPECT_EQ(m_error.count(), 1);
    EXPECT_EQ(m_gain.property("lastError").toString(), "Couldn't set gain value!<br>");
    EXPECT_EQ(m_gain.property("lastError").toString(), QString());
    EXPECT_DOUBLE_EQ(m_gain.value(), 0.5);
}

TEST_F(QmlGainvalueTest, AChangeByTheCameraIsToldOnceInTenMilliseconds)
{
    ASSERT_TRUE(m_gain.initialize());
    m_value.clear();
    m_gain.onChangedValue(14.0);
    EXPECT_EQ(m_value.count(), 1);
    m_gain.onChangedValue(19.0);
    EXPECT_EQ(m_value.count(), 1) << "within the window";
    EXPECT_DOUBLE_EQ(m_gain.value(), 0.75) << "but kept";
    QSignalSpy over(&timer(), &QTimer::timeout);
    ASSERT_TRUE(over.wait());
    m_gain.onChangedValue(19.0);
    EXPECT_EQ(m_value.count(), 1) << "an equal value is no change";
    m_gain.onChangedValue(14.0);
    EXPECT_EQ(m_value.count(), 2);
}

TEST_F(QmlGainvalueTest, ASmallChangeIsKeptWithoutASignal)
{
    // 0.003 of the range of 20 is 0.06.
    ASSERT_TRUE(m_gain.initialize());
    m_value.clear();
    m_gain.onChangedValue(9.05);
    EXPECT_EQ(m_value.count(), 0);
    EXPECT_DOUBLE_EQ(m_gain.value(), (9.05 - 4.0) / 20.0);
    m_gain.onChangedValue(9.12);
    EXPECT_EQ(m_value.count(), 1);
}

TEST_F(QmlGainvalueTest, EqualLimitsReadAsZeroAndAChangeIsKept)
{
    m_model.minimum = m_model.current = m_model.maximum = 6.0;
    ASSERT_TRUE(m_gain.initialize());
    EXPECT_EQ(m_gain.value(), 0.0);
    m_value.clear();
    m_gain.onChangedValue(7.0);
    EXPECT_EQ(m_value.count(), 0);
    EXPECT_EQ(m_gain.value(), 0.0);
}

TEST_F(QmlGainvalueTest, AChangeBeforeInitializeIsKeptWithoutASignal)
{
    m_gain.onChangedValue(5.0);
    EXPECT_EQ(m_value.count(), 0);
    EXPECT_EQ(m_gain.value(), 0.0);
}

TEST_F(QmlGainvalueTest, ResetForgetsTheRawValues)
{
    ASSERT_TRUE(m_gain.initialize());
    m_gain.reset();
    EXPECT_EQ(m_gain.min(), -1.0);
    EXPECT_EQ(m_gain.max(), -1.0);
    EXPECT_EQ(m_gain.value(), -1.0);
}

} // namespace
} // namespace ColorCalibration
