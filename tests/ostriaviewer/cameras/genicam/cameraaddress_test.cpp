// SPDX-License-Identifier: Apache-2.0
// Tests of the addresses of network cameras.
#include "cameraaddress.h"

#include <gtest/gtest.h>

using Cameras::GenICam::cameraAddress;

TEST(CameraAddress, IsShownWithoutBlanksAndLeadingZeros)
{
    EXPECT_EQ(cameraAddress(" 192.168.001.20 "), "192.168.1.20");
    EXPECT_EQ(cameraAddress("010.0.0.1"), "10.0.0.1");
}

TEST(CameraAddress, IsThatOfOneDevice)
{
    for (const char* none : {"", "1.2.3", "1.2.3.4.5", "1.2.3.256", "::1", "camera", "0.0.0.0",
                             "255.255.255.255", "224.0.0.1", "239.255.255.255", "1.2.3.-4"})
        EXPECT_EQ(cameraAddress(none), "") << none;
}

TEST(CameraAddress, IsANumberOfFourBytes)
{
    EXPECT_EQ(Cameras::GenICam::addressNumber("127.0.0.1"), 0x7f000001U);
    EXPECT_EQ(Cameras::GenICam::addressNumber("223.255.255.254"), 0xdffffffeU);
    EXPECT_EQ(Cameras::GenICam::addressNumber("240.0.0.1"), 0xf0000001U);
    EXPECT_FALSE(Cameras::GenICam::addressNumber("1.2.3"));
}
