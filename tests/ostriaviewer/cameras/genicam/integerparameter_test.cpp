// SPDX-License-Identifier: Apache-2.0
// What must hold for integer features.
#include "testcamera.h"

#include <limits>

using IntegerParameter = TestCamera;

TEST_F(IntegerParameter, KnowsValueLimitsAndIncrement)
{
    const auto width = camera->integerParameter("Width"_q);
    EXPECT_EQ(width->value(), 640);
    EXPECT_EQ(width->minimum(), 16);
    EXPECT_EQ(width->maximum(), 1920);
    EXPECT_EQ(width->increment(), 4);
    EXPECT_EQ(camera->integerParameter("Level"_q)->increment(), 1);
}

TEST_F(IntegerParameter, LimitsFollowOtherFeatures)
{
    camera->integerParameter("OffsetX"_q)->setValue(100, true);
    const auto width = camera->integerParameter("Width"_q);
    EXPECT_EQ(width->maximum(), 1820);
    EXPECT_EQ(refusalOf([&] { width->setValue(1824, false); }),
              "Width: 1824 is above the maximum 1820.");
}

TEST_F(IntegerParameter, RefusesOutOfRange)
{
    const auto width = camera->integerParameter("Width"_q);
    EXPECT_EQ(refusalOf([&] { width->setValue(12, false); }), "Width: 12 is below the minimum 16.");
    EXPECT_NE(refusalOf([&] { width->setValue(std::numeric_limits<qint64>::min(), false); }), "");
    EXPECT_NE(refusalOf([&] { width->setValue(std::numeric_limits<qint64>::max(), false); }), "");
    EXPECT_EQ(port->writes, 0);
}

TEST_F(IntegerParameter, RefusesValuesBetweenIncrements)
{
    const auto width = camera->integerParameter("Width"_q);
    EXPECT_EQ(refusalOf([&] { width->setValue(642, false); }),
              "Width: 642 is not a multiple of 4 above 16.");
    width->setValue(644, false);
    EXPECT_EQ(width->value(), 644);
}

TEST_F(IntegerParameter, CountsIncrementsFromTheMinimum)
{
    use(describe(
        "<pFeature>I</pFeature>",
        R"(<Integer Name="I"><Value>5</Value><Min>5</Min><Max>20</Max><Inc>3</Inc></Integer>)"));
    const auto parameter = camera->integerParameter("I"_q);
    parameter->setValue(11, true);
    EXPECT_EQ(parameter->value(), 11);
    EXPECT_NE(refusalOf([&] { parameter->setValue(12, false); }), "");
}

TEST_F(IntegerParameter, WithoutLimitsTakesAllIntegers)
{
    const auto scratch = camera->integerParameter("Scratch"_q);
    EXPECT_EQ(scratch->minimum(), std::numeric_limits<qint64>::min());
    EXPECT_EQ(scratch->maximum(), std::numeric_limits<qint64>::max());
    for (const qint64 value :
         {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(), qint64{0}}) {
        scratch->setValue(value, true);
        EXPECT_EQ(scratch->value(), value);
    }
}

TEST_F(IntegerParameter, IsLimitedByItsRegister)
{
    const auto level = camera->integerParameter("Level"_q);
    EXPECT_EQ(level->minimum(), -128);
    EXPECT_EQ(level->maximum(), 127);
    level->setValue(-3, true);
    EXPECT_EQ(level->value(), -3);
    EXPECT_NE(refusalOf([&] { level->setValue(300, false); }), "");
}

TEST_F(IntegerParameter, VerifiesWhatTheCameraKeeps)
{
    port->onWrite = [this](std::uint64_t address) {
        if (address == Register::width)
            port->setWord(Register::width, 640);
    };
    const auto width = camera->integerParameter("Width"_q);
    EXPECT_EQ(refusalOf([&] { width->setValue(644, true); }),
              "Width: the camera keeps 640 instead of 644.");
    EXPECT_EQ(refusalOf([&] { width->setValue(644, false); }), "");
}

TEST_F(IntegerParameter, OfAFormulaIsReadOnly)
{
    const auto thrice = camera->integerParameter("Thrice"_q);
    EXPECT_EQ(thrice->value(), 1920);
    EXPECT_FALSE(thrice->isWritable());
    EXPECT_EQ(refusalOf([&] { thrice->setValue(3, false); }),
              "Thrice: cannot be written, only read.");
}

TEST_F(IntegerParameter, OfAConverterGoesThroughIt)
{
    const auto percent = camera->integerParameter("Percent"_q);
    EXPECT_EQ(percent->value(), 100);
    percent->setValue(50, true);
    EXPECT_EQ(port->word(Register::exposureRaw), 500U);
}

TEST_F(IntegerParameter, OverAReadOnlyRegisterIsReadOnly)
{
    const auto sensor = camera->integerParameter("SensorWidth"_q);
    EXPECT_TRUE(sensor->isReadable());
    EXPECT_FALSE(sensor->isWritable());
    EXPECT_NE(refusalOf([&] { sensor->setValue(100, false); }), "");
    EXPECT_EQ(port->word(Register::sensorWidth), 1920U);
}

TEST_F(IntegerParameter, OfAWriteOnlyRegisterIsWrittenButNotRead)
{
    const auto key = camera->integerParameter("Key"_q);
    EXPECT_FALSE(key->isReadable());
    EXPECT_TRUE(key->isWritable());
    key->setValue(42, true);
    EXPECT_EQ(port->word(Register::key), 42U);
    EXPECT_EQ(refusalOf([&] { key->value(); }), "Key: cannot be read, only written.");
}

TEST_F(IntegerParameter, IsUnavailableWhileItsConditionFails)
{
    const auto index = camera->integerParameter("LutIndex"_q);
    EXPECT_FALSE(index->isEmpty());
    EXPECT_FALSE(index->isAvailable());
    EXPECT_FALSE(index->isReadable());
    EXPECT_FALSE(index->isWritable());
    const std::string reason = "LutIndex: not available with the camera's present settings.";
    EXPECT_EQ(refusalOf([&] { index->value(); }), reason);
    EXPECT_EQ(refusalOf([&] { index->setValue(1, true); }), reason);
    EXPECT_EQ(refusalOf([&] { index->maximum(); }), reason);
    camera->booleanParameter("LutEnable"_q)->setValue(true, true);
    EXPECT_TRUE(index->isWritable());
    index->setValue(1, true);
    EXPECT_EQ(index->value(), 1);
}
