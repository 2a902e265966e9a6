// SPDX-License-Identifier: Apache-2.0
// What only a camera behind a cable does.
#include "camerarig.h"
#include "emulationtest.h"
#include "frameprobe.h"

using namespace Cameras;
using Emulation::smallModel;
using GenICam::GenicamCamera;

namespace {

class GenicamCameraTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
    }

    static QString mode(const HostCamera& /*camera*/, const HostCameraPtr& pointer)
    {
        return pointer->parameterCollection()
            ->enumerationParameter(QStringLiteral("AcquisitionMode"))
            ->value();
    }
};

} // namespace

TEST_F(GenicamCameraTest, NamesAnAddressAtWhichNobodyAnswers)
{
    const auto camera = GenicamCamera::create(GenICam::cameraAt(QStringLiteral("127.0.0.9")));
    EXPECT_FALSE(camera->open());
    EXPECT_TRUE(camera->lastErrorText().contains(QLatin1String("127.0.0.9")))
        << camera->lastErrorText().toStdString();
    EXPECT_EQ(camera->displayName(), QStringLiteral("127.0.0.9"));
}
