// SPDX-License-Identifier: Apache-2.0
// What a camera's user notices of a line that loses requests and answers: nothing, or a reason.
#include "camerarig.h"
#include "emulationtest.h"
#include "genicamexception.h"

using namespace Cameras;
using Emulation::smallModel;

namespace {

constexpr double half = 0.5;

class UnreliableLine : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
        rig = std::make_unique<NetworkRig>(smallModel());
        camera = rig->camera();
    }

    auto gain() const
    {
        return camera->parameterCollection()->floatParameter(QStringLiteral("Gain"));
    }

    /// The line is good again, and so is the camera; that it was lost may be noticed only now.
    void expectUsable()
    {
        rig->server().loseControlPackets(0.0);
        EXPECT_TRUE(becomes([this] { return camera->open() && takesGain(2.0); }))
            << camera->lastErrorText().toStdString();
    }

    bool takesGain(double value) const
    {
        try {
            gain()->setValue(value);
            return gain()->value() == value;
        } catch (const ::GenICam::RuntimeException&) {
            return false;
        }
    }

    std::unique_ptr<NetworkRig> rig;
    HostCameraPtr camera;
};

bool isClear(const std::string& reason)
{
    return reason.find("has not heard from this program") != std::string::npos ||
           reason.find("lost") != std::string::npos || reason.find("answer") != std::string::npos ||
           reason.find("description") != std::string::npos ||
           reason.find("another application") != std::string::npos;
}

} // namespace

TEST_F(UnreliableLine, OpensACameraOrSaysWhyNot)
{
    rig->server().loseControlPackets(half);
    if (!camera->open()) {
        EXPECT_TRUE(isClear(camera->lastErrorText().toStdString()))
            << camera->lastErrorText().toStdString();
    }
    expectUsable();
}

TEST_F(UnreliableLine, ReadsAndWritesOrSaysWhyNot)
{
    ASSERT_TRUE(camera->open());
    const auto opened = gain();
    rig->server().loseControlPackets(half);
    try {
        for (const double value : {1.0, 3.0}) {
            opened->setValue(value);
            EXPECT_DOUBLE_EQ(opened->value(), value);
        }
    } catch (const ::GenICam::RuntimeException& refusal) {
        EXPECT_TRUE(isClear(refusal.what())) << refusal.what();
    }
    expectUsable();
}

// One of five requests or answers: each feature needs some of them.
TEST_F(UnreliableLine, GetsThroughWhatIsAskedAgain)
{
    ASSERT_TRUE(camera->open());
    rig->server().loseControlPackets(0.1);
    for (const double value : {1.0, 3.0, 5.0, 7.0}) {
        gain()->setValue(value);
        EXPECT_DOUBLE_EQ(gain()->value(), value);
    }
    EXPECT_TRUE(camera->isOpen());
}

// As a camera does that has not heard of its controller for long. The library may notice it first.
TEST_F(UnreliableLine, TellsInPlainWordsThatTheCameraHasGivenItUp)
{
    const std::string words =
        "Gain: the camera has not heard from this program for too long and does not obey it any "
        "more; open the camera again.";
    std::string told;
    for (int attempt = 0; attempt < 3 && told != words; ++attempt) {
        ASSERT_TRUE(becomes([this] { return camera->open(); }));
        const auto opened = gain();
        rig->server().forgetController();
        try {
            opened->setValue(3.0);
        } catch (const ::GenICam::RuntimeException& refusal) {
            told = refusal.what();
        }
        EXPECT_TRUE(becomes([this] { return !camera->isOpen(); }));
    }
    EXPECT_EQ(told, words);
    expectUsable();
}

TEST_F(UnreliableLine, TellsInPlainWordsThatTheCameraRefusesAValue)
{
    ASSERT_TRUE(camera->open());
    rig->served().refuseWrites(QStringLiteral("Gain"));
    try {
        gain()->setValue(3.0);
        FAIL() << "it is refused";
    } catch (const ::GenICam::RuntimeException& refusal) {
        EXPECT_STREQ(refusal.what(), "Gain: the camera refuses it.");
    }
    EXPECT_TRUE(camera->isOpen());
}
