// SPDX-License-Identifier: Apache-2.0
// What must hold for a device's node map: its description, its end, its threads.
#include "nodemap.h"

#include "testcamera.h"

#include <atomic>
#include <future>
#include <thread>
#include <vector>

using Cameras::GenICam::NodeMap;

class NodeMapTest : public TestCamera
{
protected:
    const std::string lost = "Gain: the connection to the camera is lost.";
};

TEST_F(NodeMapTest, RefusesDescriptionsThatAreNone)
{
    const std::string broken[] = {"",
                                  "hello",
                                  "<a/>",
                                  "<RegisterDescription>",
                                  "<RegisterDescription/>",
                                  std::string("\0\1\2\xff", 4),
                                  testDescription().substr(0, 3000)};
    for (const std::string& xml : broken)
        EXPECT_EQ(refusalOf([&] { NodeMap::create(port, xml); }).substr(0, 39),
                  "The camera's description cannot be used")
            << xml.substr(0, 40);
}

// The library's own parser does not bear it.
TEST_F(NodeMapTest, IsMadeOnSeveralThreadsAtOnce)
{
    constexpr int threads = 4;
    constexpr int rounds = 50;
    std::atomic<int> ready = 0;
    std::atomic<int> made = 0;
    std::vector<std::thread> makers;
    for (int i = 0; i < threads; ++i)
        makers.emplace_back([&] {
            ++ready;
            while (ready < threads)
                std::this_thread::yield();
            for (int round = 0; round < rounds; ++round)
                if (NodeMap::create(port, testDescription())->isConnected())
                    ++made;
        });
    for (std::thread& maker : makers)
        maker.join();
    EXPECT_EQ(made, threads * rounds);
}

TEST_F(NodeMapTest, LivesWithDanglingReferences)
{
    use(describe("<pFeature>NoSuch</pFeature><pFeature>I</pFeature><pFeature>Good</pFeature>",
                 R"(<Integer Name="I"><pValue>Nothing</pValue><pIsLocked>Nowhere</pIsLocked>
<pSelected>Nobody</pSelected></Integer>
<Integer Name="Good"><Streamable>Yes</Streamable><Value>3</Value></Integer>)"));
    EXPECT_TRUE(camera->parameter("NoSuch"_q)->isEmpty());
    refusalOf([&] { camera->integerParameter("I"_q)->setValue(1, true); });
    EXPECT_EQ(savedLines(), "Good\t3\n"_q);
}

TEST_F(NodeMapTest, EveryAccessThrowsAfterDisconnect)
{
    const auto gain = camera->floatParameter("Gain"_q);
    EXPECT_TRUE(map->isConnected());
    map->disconnect();
    EXPECT_FALSE(map->isConnected());
    port->reads = 0;
    EXPECT_EQ(refusalOf([&] { gain->value(); }), lost);
    EXPECT_EQ(refusalOf([&] { gain->setValue(1); }), lost);
    EXPECT_EQ(refusalOf([&] { gain->maximum(); }), lost);
    EXPECT_FALSE(gain->isReadable());
    EXPECT_FALSE(gain->isWritable());
    EXPECT_FALSE(gain->isAvailable());
    EXPECT_FALSE(gain->isEmpty());
    EXPECT_EQ(gain->valueOrDefault(4), 4);
    QString text;
    EXPECT_NE(refusalOf([&] { camera->saveFeatures(text, "@CameraDevice"_q); }), "");
    EXPECT_NE(refusalOf([&] { load("Gain\t2\n"_q); }), "");
    EXPECT_NE(refusalOf([&] { camera->commandParameter("Save"_q)->execute(); }), "");
    EXPECT_EQ(port->reads, 0);
    EXPECT_EQ(port->writes, 0);
}

TEST_F(NodeMapTest, ParametersMadeAfterDisconnectAreNotNull)
{
    map->disconnect();
    const auto gain = camera->floatParameter("Gain"_q);
    ASSERT_FALSE(gain.isNull());
    EXPECT_EQ(refusalOf([&] { gain->value(); }), lost);
    EXPECT_FALSE(camera->integerParameter("Width|Absent"_q).isNull());
}

TEST_F(NodeMapTest, DisconnectReleasesThePort)
{
    const std::weak_ptr<MemoryPort> watched = port;
    port.reset();
    map->disconnect();
    EXPECT_TRUE(watched.expired());
    map->disconnect();
}

TEST_F(NodeMapTest, ThePortMayDisconnectWhileItIsCalled)
{
    port->onWrite = [this](std::uint64_t) {
        map->disconnect();
    };
    const auto width = camera->integerParameter("Width"_q);
    EXPECT_NE(refusalOf([&] { width->setValue(644, true); }), "");
    EXPECT_FALSE(map->isConnected());
}

TEST_F(NodeMapTest, ParametersOutliveCollectionAndMap)
{
    const auto gain = camera->floatParameter("Gain"_q);
    camera.reset();
    map.reset();
    EXPECT_EQ(gain->value(), 1.5);
}

TEST_F(NodeMapTest, ExceptionsOfAnyTypeInThePortAreRefusals)
{
    port->onWrite = [](std::uint64_t) {
        throw 7;
    };
    EXPECT_EQ(refusalOf([&] { camera->floatParameter("Gain"_q)->setValue(2); }),
              "Gain: the camera refuses the access.");
}

TEST_F(NodeMapTest, ReasonsOfThePortAreNotRepeatedOrDotted)
{
    const auto gain = camera->floatParameter("Gain"_q);
    const auto refuse = [&](const char* reason) {
        port->onWrite = [reason](std::uint64_t) {
            throw GenICam::RuntimeException(reason);
        };
        return refusalOf([&] { gain->setValue(2); });
    };
    EXPECT_EQ(refuse("Gain: too warm."), "Gain: too warm.");
    EXPECT_EQ(refuse("too warm"), "Gain: too warm.");
    EXPECT_EQ(refuse("[x"), "Gain: [x.");
}

TEST_F(NodeMapTest, TwoThreadsReadAndWriteWithoutMixingUp)
{
    // Each value is written as a selector and what it selects; held together by nothing but the
    // device's mutex, single accesses must stay whole.
    constexpr int rounds = 2000;
    std::atomic<int> wrong{0};
    const auto work = [&](qint64 first) {
        const auto width = camera->integerParameter("Width"_q);
        const auto gain = camera->floatParameter("Gain"_q);
        for (int round = 0; round < rounds; ++round) {
            width->setValue(first + 4 * (round % 8), false);
            const qint64 seen = width->value();
            if (seen % 4 != 0 || seen < 16 || seen > 1920)
                ++wrong;
            gain->setValue(static_cast<double>(first) / 100);
            const double kept = gain->value();
            if (kept != 1.0 && kept != 2.0)
                ++wrong;
        }
    };
    std::thread one(work, 100);
    std::thread two(work, 200);
    std::thread saver([&] {
        for (int round = 0; round < 50; ++round) {
            QString text;
            camera->saveFeatures(text, "@CameraDevice"_q);
            if (!text.contains("BalanceRatioSelector\tRed\n"_q))
                ++wrong;
        }
    });
    one.join();
    two.join();
    saver.join();
    EXPECT_EQ(wrong, 0);
}

TEST_F(NodeMapTest, MayBeDisconnectedWhileOthersUseIt)
{
    std::atomic<bool> ended{false};
    std::thread user([&] {
        const auto gain = camera->floatParameter("Gain"_q);
        while (gain->trySetValue(1.0))
            gain->valueOrDefault(0);
        ended = true;
    });
    map->disconnect();
    user.join();
    EXPECT_TRUE(ended);
}

TEST_F(NodeMapTest, RefusesAllButTheLastAccesses)
{
    const auto gain = camera->floatParameter("Gain"_q);
    const auto width = camera->integerParameter("Width"_q);
    map->refuseAccesses();
    EXPECT_FALSE(map->isConnected());
    EXPECT_EQ(refusalOf([&] { gain->value(); }), lost);
    EXPECT_EQ(refusalOf([&] { gain->setValue(2); }), lost);
    EXPECT_FALSE(gain->isAvailable());
    map->disconnect([&] {
        width->setValue(320, true);
        EXPECT_FALSE(std::async(std::launch::async, [&] { return gain->isWritable(); }).get());
    });
    EXPECT_EQ(port->word(Register::width), 320U);
    EXPECT_FALSE(gain->trySetValue(2));
}
