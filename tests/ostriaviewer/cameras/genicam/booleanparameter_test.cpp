// SPDX-License-Identifier: Apache-2.0
// What must hold for boolean features.
#include "testcamera.h"

using BooleanParameter = TestCamera;

TEST_F(BooleanParameter, ReadsAndWrites)
{
    const auto enable = camera->booleanParameter("LutEnable"_q);
    EXPECT_FALSE(enable->value());
    enable->setValue(true, true);
    EXPECT_TRUE(enable->value());
    EXPECT_EQ(port->word(Register::lutEnable), 1U);
    enable->setValue(false, true);
    EXPECT_EQ(port->word(Register::lutEnable), 0U);
}

TEST_F(BooleanParameter, UsesItsOwnOnAndOffValues)
{
    use(describe("<pFeature>B</pFeature>", R"(<Boolean Name="B"><pValue>I</pValue>
<OnValue>6</OnValue><OffValue>5</OffValue></Boolean><Integer Name="I"><Value>5</Value></Integer>)"));
    const auto parameter = camera->booleanParameter("B"_q);
    EXPECT_FALSE(parameter->value());
    parameter->setValue(true, true);
    EXPECT_TRUE(parameter->value());
    EXPECT_EQ(camera->integerParameter("I"_q)->value(), 6);
}

TEST_F(BooleanParameter, VerifiesWhatTheCameraKeeps)
{
    port->onWrite = [this](std::uint64_t) {
        port->setWord(Register::lutEnable, 0);
    };
    const auto enable = camera->booleanParameter("LutEnable"_q);
    EXPECT_EQ(refusalOf([&] { enable->setValue(true, true); }),
              "LutEnable: the camera keeps another value than true.");
    EXPECT_EQ(refusalOf([&] { enable->setValue(true, false); }), "");
}

TEST_F(BooleanParameter, PassesTheDevicesReasonOn)
{
    port->readOnly.insert(Register::lutEnable);
    const auto enable = camera->booleanParameter("LutEnable"_q);
    EXPECT_EQ(refusalOf([&] { enable->setValue(true, true); }), "LutEnable: write protected.");
    EXPECT_FALSE(enable->value());
}
