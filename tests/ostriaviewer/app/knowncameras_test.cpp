// SPDX-License-Identifier: Apache-2.0
// Cameras that come back are the same, and those that never do are forgotten.
#include "knowncameras.h"

#include <gtest/gtest.h>

namespace Viewer {
namespace {

using Cameras::GenICam::CameraIdentity;
using Cameras::GenICam::GenicamCamera;

class KnownCamerasTest : public testing::Test
{
protected:
    static CameraIdentity numbered(int number)
    {
        CameraIdentity identity;
        identity.id = QString("192.0.2.%1").arg(number);
        identity.modelName = "Model";
        identity.serialNumber = QString::number(number);
        return identity;
    }

    KnownCamera& know(const CameraIdentity& identity, bool isFixed = false)
    {
        return m_known.know(identity, isFixed, [&] { return GenicamCamera::create(identity); });
    }

    KnownCameras m_known;
};

TEST_F(KnownCamerasTest, AreTheSameObjectWhenTheyComeBack)
{
    const auto first = know(numbered(1)).camera;
    EXPECT_NE(know(numbered(2)).camera, first);
    EXPECT_EQ(know(numbered(1)).camera, first);
}

TEST_F(KnownCamerasTest, AreOthersWhereAnotherDeviceHasTakenTheAddress)
{
    const auto first = know(numbered(1)).camera;
    CameraIdentity other = numbered(1);
    other.serialNumber = "7";
    EXPECT_NE(know(other).camera, first);
    EXPECT_EQ(know(numbered(1)).camera, first);
}

TEST_F(KnownCamerasTest, AreTheSameAtAFixedAddressWhateverStandsThere)
{
    const auto first = know(numbered(1), true).camera;
    CameraIdentity other = numbered(1);
    other.serialNumber = "7";
    EXPECT_EQ(know(other, true).camera, first);
}

TEST_F(KnownCamerasTest, ThatAreAwayLongestAreForgottenFirst)
{
    constexpr int many = 40;
    const auto listed = know(numbered(0)).camera;
    m_known.all().back().isListed = true;
    m_known.all().back().missed = 1000;
    for (int number = 1; number <= many; ++number)
        know(numbered(number)).missed = number == 17 ? 500 : number;
    m_known.forgetLongAway();
    ASSERT_EQ(m_known.all().size(), 1 + KnownCameras::mostAway);
    EXPECT_EQ(m_known.all().front().camera, listed);
    // Missed 500 times, and 40 down to 34.
    for (const KnownCamera& known : m_known.all())
        EXPECT_TRUE(known.isListed || known.missed <= 33) << known.missed;
    m_known.forgetLongAway();
    EXPECT_EQ(m_known.all().size(), 1 + KnownCameras::mostAway);
}

} // namespace
} // namespace Viewer
