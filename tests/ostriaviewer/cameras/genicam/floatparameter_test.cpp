// SPDX-License-Identifier: Apache-2.0
// What must hold for float features.
#include "testcamera.h"

#include <cmath>
#include <limits>

using FloatParameter = TestCamera;

TEST_F(FloatParameter, ReadsAndWritesEightBytesExactly)
{
    const auto gain = camera->floatParameter("Gain"_q);
    EXPECT_EQ(gain->value(), 1.5);
    gain->setValue(0.1);
    EXPECT_EQ(gain->value(), 0.1);
    // 0.1 in double precision: 0x3FB999999999999A
    EXPECT_EQ(port->word(Register::gain), 0x3FB99999U);
    EXPECT_EQ(port->word(Register::gain + 4), 0x9999999AU);
}

TEST_F(FloatParameter, RoundsToFourBytes)
{
    const auto gamma = camera->floatParameter("Gamma"_q);
    gamma->setValue(0.1);
    EXPECT_EQ(gamma->value(), static_cast<double>(0.1F));
    EXPECT_EQ(port->word(Register::gamma), 0x3DCCCCCDU);
}

TEST_F(FloatParameter, KnowsItsLimits)
{
    const auto gain = camera->floatParameter("Gain"_q);
    EXPECT_EQ(gain->minimum(), 0.0);
    EXPECT_EQ(gain->maximum(), 24.0);
}

TEST_F(FloatParameter, WithoutALimitHasThatOfDouble)
{
    use(describe("<pFeature>F</pFeature>", R"(<Float Name="F"><Value>1</Value></Float>)"));
    const auto parameter = camera->floatParameter("F"_q);
    EXPECT_EQ(parameter->minimum(), std::numeric_limits<double>::lowest());
    EXPECT_EQ(parameter->maximum(), std::numeric_limits<double>::max());
    parameter->setValue(-1e300);
    EXPECT_EQ(parameter->value(), -1e300);
}

TEST_F(FloatParameter, RefusesOutOfRangeAndNamesTheLimit)
{
    const auto gain = camera->floatParameter("Gain"_q);
    EXPECT_EQ(refusalOf([&] { gain->setValue(99); }), "Gain: 99 is above the maximum 24.");
    EXPECT_EQ(refusalOf([&] { gain->setValue(-0.5); }), "Gain: -0.5 is below the minimum 0.");
    EXPECT_EQ(gain->value(), 1.5);
    EXPECT_EQ(port->writes, 0);
}

TEST_F(FloatParameter, RefusesWhatIsNoFiniteNumber)
{
    const auto gain = camera->floatParameter("Gain"_q);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity}) {
        EXPECT_EQ(refusalOf([&] { gain->setValue(value); }),
                  "Gain: the value is not a finite number.");
        EXPECT_FALSE(gain->trySetValue(value));
    }
    EXPECT_EQ(port->writes, 0);
}

TEST_F(FloatParameter, TakesALimitThatCameBackFromASinglePrecisionRegister)
{
    const auto gamma = camera->floatParameter("Gamma"_q);
    gamma->setValue(4.1);
    ASSERT_GT(static_cast<double>(4.1F), 4.0999999) << "4.1F is not above 4.1 here";
    gamma->setValue(static_cast<double>(4.1F));
    EXPECT_EQ(gamma->value(), static_cast<double>(4.1F));
    EXPECT_NE(refusalOf([&] { gamma->setValue(4.1001); }), "");
}

TEST_F(FloatParameter, GoesToTheNearestOfAnIntegerBehindAConverter)
{
    const auto exposure = camera->floatParameter("ExposureTime"_q);
    for (int raw = 1; raw <= 1000; ++raw) {
        exposure->setValue(raw / 100.0);
        ASSERT_EQ(port->word(Register::exposureRaw), static_cast<unsigned>(raw));
    }
    exposure->setValue(7.014);
    EXPECT_EQ(port->word(Register::exposureRaw), 701U);
    exposure->setValue(7.016);
    EXPECT_EQ(port->word(Register::exposureRaw), 702U);
    exposure->setValue(999.999);
    EXPECT_EQ(port->word(Register::exposureRaw), 100000U);
}

// 7.016 is 701 when it is cut off; the camera takes no more than that.
TEST_F(FloatParameter, StaysWhereACameraTakesLessThanItSays)
{
    class Limited : public MemoryPort
    {
    public:
        void write(std::uint64_t address, const void* data, std::size_t size) override
        {
            const auto* bytes = static_cast<const std::uint8_t*>(data);
            if (address == Register::exposureRaw && (bytes[2] << 8 | bytes[3]) > 701)
                throw GenICam::RuntimeException("out of range");
            MemoryPort::write(address, data, size);
        }
    };
    port = std::make_shared<Limited>();
    use(testDescription());
    camera->floatParameter("ExposureTime"_q)->setValue(7.016);
    EXPECT_EQ(port->word(Register::exposureRaw), 701U);
}

TEST_F(FloatParameter, GoesToTheNearestOfNegativeIntegersToo)
{
    use(describe("<pFeature>F</pFeature>",
                 R"(<Float Name="F"><pValue>C</pValue><Min>-10</Min><Max>10</Max></Float>
<Converter Name="C"><FormulaTo>FROM*4</FormulaTo><FormulaFrom>TO/4.0</FormulaFrom>
<pValue>I</pValue></Converter><Integer Name="I"><Value>0</Value></Integer>)"));
    const auto parameter = camera->floatParameter("F"_q);
    parameter->setValue(-1.3);
    EXPECT_EQ(parameter->value(), -1.25);
    parameter->setValue(-1.45);
    EXPECT_EQ(parameter->value(), -1.5);
    parameter->setValue(-0.2);
    EXPECT_EQ(parameter->value(), -0.25);
}

TEST_F(FloatParameter, KeepsWhatTheCameraRoundsByItself)
{
    // A camera that only knows whole steps, and rounds to the nearest in its own register.
    port->onWrite = [this](std::uint64_t address) {
        if (address == Register::gain)
            port->setDouble(Register::gain, 2.0);
    };
    const auto gain = camera->floatParameter("Gain"_q);
    EXPECT_TRUE(gain->trySetValue(2.3));
    EXPECT_EQ(gain->valueOrDefault(0.0), 2.0);
    EXPECT_EQ(port->writes, 1);
}

TEST_F(FloatParameter, AnswersTheDefaultWhereNothingCanBeRead)
{
    port->refused.insert(Register::gain);
    EXPECT_EQ(camera->floatParameter("Gain"_q)->valueOrDefault(3.5), 3.5);
    EXPECT_EQ(camera->floatParameter("NoSuch"_q)->valueOrDefault(-1.0), -1.0);
}

TEST_F(FloatParameter, PassesTheDevicesReasonOn)
{
    port->refused.insert(Register::gain);
    const auto gain = camera->floatParameter("Gain"_q);
    EXPECT_EQ(refusalOf([&] { gain->value(); }), "Gain: access denied.");
    EXPECT_EQ(refusalOf([&] { gain->setValue(2); }), "Gain: access denied.");
    EXPECT_FALSE(gain->trySetValue(2));
}

TEST_F(FloatParameter, CannotBeWrittenWhileLocked)
{
    const auto exposure = camera->floatParameter("ExposureTime"_q);
    EXPECT_TRUE(exposure->isWritable());
    camera->enumerationParameter("ExposureAuto"_q)->setValue("Continuous"_q);
    EXPECT_FALSE(exposure->isWritable());
    EXPECT_TRUE(exposure->isReadable());
    EXPECT_FALSE(exposure->trySetValue(5));
    EXPECT_EQ(refusalOf([&] { exposure->setValue(5); }),
              "ExposureTime: locked with the camera's present settings.");
    EXPECT_EQ(port->word(Register::exposureRaw), 1000U);
}

TEST_F(FloatParameter, FollowsItsSelectors)
{
    const auto ratio = camera->floatParameter("BalanceRatio"_q);
    EXPECT_EQ(ratio->value(), 1.0);
    camera->enumerationParameter("BalanceRatioSelector"_q)->setValue("Blue"_q);
    EXPECT_EQ(ratio->value(), 1.5);

    const auto element = camera->floatParameter("TransformValue"_q);
    EXPECT_EQ(element->value(), 3.0);
    camera->enumerationParameter("TransformValueSelector"_q)->setValue("Gain02"_q);
    EXPECT_EQ(element->value(), 5.0);
    camera->enumerationParameter("TransformSelector"_q)->setValue("RGBtoRGB"_q);
    EXPECT_EQ(element->value(), 2.0);
}

TEST_F(FloatParameter, OfAReadOnlyRegisterCannotBeWritten)
{
    const auto temperature = camera->floatParameter("Temperature"_q);
    EXPECT_EQ(temperature->value(), 41.5);
    EXPECT_FALSE(temperature->isWritable());
    EXPECT_EQ(refusalOf([&] { temperature->setValue(1); }),
              "Temperature: cannot be written, only read.");
}

TEST_F(FloatParameter, OverAnIntegerGoesToTheNearest)
{
    use(describe("", R"(<Float Name="F"><pValue>I</pValue><Unit>us</Unit></Float>
<Integer Name="I"><Value>0</Value><Min>0</Min><Max>10</Max></Integer>)"));
    const auto parameter = camera->floatParameter("F"_q);
    EXPECT_EQ(parameter->maximum(), 10.0);
    parameter->setValue(2.9);
    EXPECT_EQ(parameter->value(), 3.0);
    parameter->setValue(2.1);
    EXPECT_EQ(parameter->value(), 2.0);
    EXPECT_NE(refusalOf([&] { parameter->setValue(11); }), "");
}

TEST_F(FloatParameter, GoesToTheNearestOfAFallingFormula)
{
    // Shutter speed: 1000 / raw, so that a higher value has a lower integer.
    use(describe("", R"(<Float Name="F"><pValue>C</pValue><Min>10</Min><Max>1000</Max></Float>
<Converter Name="C"><FormulaTo>1000.0/FROM</FormulaTo><FormulaFrom>1000.0/TO</FormulaFrom>
<pValue>I</pValue></Converter><Integer Name="I"><Value>50</Value></Integer>)"));
    const auto parameter = camera->floatParameter("F"_q);
    const auto raw = camera->integerParameter("I"_q);
    parameter->setValue(1000.0 / 20.9);
    EXPECT_EQ(raw->value(), 21);
    parameter->setValue(1000.0 / 20.1);
    EXPECT_EQ(raw->value(), 20);
}
