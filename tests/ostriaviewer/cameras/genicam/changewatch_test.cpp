// SPDX-License-Identifier: Apache-2.0
// What must hold for notifications of changed features.
#include "patience.h"
#include "testcamera.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using Core::ParameterCollection::IParameter;
using Core::ParameterCollection::ParameterPtr;

class ChangeWatch : public TestCamera
{
protected:
    /// Counts a parameter's notifications.
    void watch(const ParameterPtr& parameter, int& count)
    {
        QObject::connect(parameter.data(), &IParameter::parameterDataChangedDecoupled, &m_receiver,
                         [&count] { ++count; });
    }

    static void deliver() { QCoreApplication::sendPostedEvents(); }

    QObject m_receiver;

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
};

TEST_F(ChangeWatch, AnnouncesAWriteFromTheEventLoopOnly)
{
    const auto gain = camera->floatParameter("Gain"_q);
    int count = 0;
    watch(gain, count);
    gain->setValue(3);
    EXPECT_EQ(count, 0);
    deliver();
    EXPECT_EQ(count, 1);
}

TEST_F(ChangeWatch, AnnouncesAWriteThroughAnotherObject)
{
    const auto gain = camera->floatParameter("Gain"_q);
    int count = 0;
    watch(gain, count);
    camera->floatParameter("@CameraDevice/Gain"_q)->setValue(3);
    deliver();
    EXPECT_EQ(count, 1);
}

// It changes another feature while it is waited for, and then fails.
TEST_F(ChangeWatch, AnnouncesWhatACommandDidThatFailed)
{
    class Failing : public MemoryPort
    {
    public:
        void read(std::uint64_t address, void* data, std::size_t size) override
        {
            if (address == Register::save) {
                setWord(Register::width, 320);
                throw GenICam::RuntimeException("failed");
            }
            MemoryPort::read(address, data, size);
        }
    };
    port = std::make_shared<Failing>();
    port->setWord(Register::width, 640);
    use(testDescription());
    const auto width = camera->integerParameter("Width"_q);
    int count = 0;
    watch(width, count);
    EXPECT_EQ(refusalOf([&] { camera->commandParameter("Save"_q)->execute(); }), "Save: failed.");
    deliver();
    EXPECT_EQ(count, 1);
}

TEST_F(ChangeWatch, MakesOneOfSeveralChanges)
{
    const auto gain = camera->floatParameter("Gain"_q);
    int count = 0;
    watch(gain, count);
    for (int step = 1; step <= 5; ++step)
        gain->setValue(step + 1);
    deliver();
    EXPECT_EQ(count, 1);
    gain->setValue(1);
    deliver();
    EXPECT_EQ(count, 2);
}

TEST_F(ChangeWatch, SaysNothingWhereNothingChanged)
{
    const auto gain = camera->floatParameter("Gain"_q);
    const auto width = camera->integerParameter("Width"_q);
    int count = 0;
    watch(gain, count);
    watch(width, count);
    gain->setValue(1.5);
    EXPECT_FALSE(gain->trySetValue(99));
    camera->booleanParameter("LutEnable"_q)->setValue(true, true);
    savedLines();
    deliver();
    EXPECT_EQ(count, 0);
}

TEST_F(ChangeWatch, AnnouncesLimitsLocksAndAvailabilityThatFollowAnotherFeature)
{
    int width = 0;
    int exposure = 0;
    int index = 0;
    int format = 0;
    int ratio = 0;
    const ParameterPtr parameters[] = {
        camera->parameter("Width"_q), camera->parameter("ExposureTime"_q),
        camera->parameter("LutIndex"_q), camera->parameter("PixelFormat"_q),
        camera->parameter("BalanceRatio"_q)};
    watch(parameters[0], width);
    watch(parameters[1], exposure);
    watch(parameters[2], index);
    watch(parameters[3], format);
    watch(parameters[4], ratio);

    camera->integerParameter("OffsetX"_q)->setValue(8, true);
    deliver();
    EXPECT_EQ(width, 1) << "its maximum";
    camera->enumerationParameter("ExposureAuto"_q)->setValue("Continuous"_q);
    deliver();
    EXPECT_EQ(exposure, 1) << "its lock";
    camera->booleanParameter("LutEnable"_q)->setValue(true, true);
    deliver();
    EXPECT_EQ(index, 1) << "its availability";
    EXPECT_EQ(format, 1) << "its entries";
    camera->enumerationParameter("BalanceRatioSelector"_q)->setValue("Blue"_q);
    deliver();
    EXPECT_EQ(ratio, 1) << "its value";
    EXPECT_EQ(width + exposure + index + format, 4);
}

TEST_F(ChangeWatch, AnnouncesWhatACommandDid)
{
    port->onWrite = [this](std::uint64_t address) {
        if (address == Register::save) {
            port->setWord(Register::save, 0);
            port->setWord(Register::width, 320);
        }
    };
    const auto width = camera->integerParameter("Width"_q);
    int count = 0;
    watch(width, count);
    camera->commandParameter("Save"_q)->execute();
    deliver();
    EXPECT_EQ(count, 1);
}

TEST_F(ChangeWatch, AnnouncesWhatACommandDidThatNobodyWaitedFor)
{
    // Finishes a command, and does what it is for, when it may and is asked next.
    class LatePort final : public MemoryPort
    {
    public:
        void read(std::uint64_t address, void* data, std::size_t size) override
        {
            if (address == Register::save && mayFinish) {
                setWord(Register::width, 320);
                setWord(Register::save, 0);
            }
            MemoryPort::read(address, data, size);
        }
        std::atomic<bool> mayFinish = false;
    };
    const auto late = std::make_shared<LatePort>();
    late->setWord(Register::width, 640);
    port = late;
    use(testDescription(), std::chrono::minutes(5));
    const auto width = camera->integerParameter("Width"_q);
    QEventLoop loop;
    QObject::connect(width.data(), &IParameter::parameterDataChangedDecoupled, &loop,
                     &QEventLoop::quit);
    {
        const Cameras::GenICam::Patience limited(std::chrono::milliseconds(1));
        EXPECT_EQ(refusalOf([this] { camera->commandParameter("Save"_q)->execute(); }),
                  "Save: the camera has not finished the command yet.");
    }
    late->mayFinish = true;
    loop.exec();
    EXPECT_EQ(width->value(), 320);
}

TEST_F(ChangeWatch, AnnouncesWhatRefreshAndDisconnectFind)
{
    const auto width = camera->integerParameter("Width"_q);
    int count = 0;
    watch(width, count);
    port->setWord(Register::width, 800);
    map->refresh();
    deliver();
    EXPECT_EQ(count, 1);
    map->disconnect();
    deliver();
    EXPECT_EQ(count, 2);
}

TEST_F(ChangeWatch, AReceiverMayUseTheCamera)
{
    const auto gain = camera->floatParameter("Gain"_q);
    const auto width = camera->integerParameter("Width"_q);
    QObject::connect(gain.data(), &IParameter::parameterDataChangedDecoupled, &m_receiver,
                     [&] { width->setValue(320, true); });
    gain->setValue(4);
    deliver();
    EXPECT_EQ(width->value(), 320);
}

TEST_F(ChangeWatch, ParametersWithoutReceiversCostNothing)
{
    const auto width = camera->integerParameter("Width"_q);
    const auto gain = camera->floatParameter("Gain"_q);
    port->reads = 0;
    gain->setValue(2);
    const int alone = port->reads;
    int count = 0;
    watch(width, count);
    port->reads = 0;
    gain->setValue(3);
    EXPECT_GT(port->reads, alone);
    QObject::disconnect(width.data(), nullptr, &m_receiver, nullptr);
    port->reads = 0;
    gain->setValue(4);
    EXPECT_EQ(port->reads, alone);
}

// Qt guards the connections of all objects with a fixed number of mutexes, and holds that of the
// receiver meanwhile. It is the parameter's too for some address of this many.
TEST_F(ChangeWatch, DeletedReceiversCostNothingAndBlockNothing)
{
    constexpr std::size_t enough = 1000;
    const auto width = camera->integerParameter("Width"_q);
    const auto gain = camera->floatParameter("Gain"_q);
    port->reads = 0;
    gain->setValue(2);
    const int alone = port->reads;
    std::vector<std::unique_ptr<QObject>> receivers(enough);
    for (auto& receiver : receivers) {
        receiver = std::make_unique<QObject>();
        QObject::connect(width.data(), &IParameter::parameterDataChangedDecoupled, receiver.get(),
                         [] {});
    }
    receivers.clear();
    port->reads = 0;
    gain->setValue(4);
    EXPECT_EQ(port->reads, alone);
}

TEST_F(ChangeWatch, NewReceiversHearWhatHappensFromThenOn)
{
    const auto width = camera->integerParameter("Width"_q);
    int count = 0;
    watch(width, count);
    QObject::disconnect(width.data(), nullptr, &m_receiver, nullptr);
    width->setValue(320, true);
    watch(width, count);
    camera->floatParameter("Gain"_q)->setValue(4);
    deliver();
    EXPECT_EQ(count, 0);
    width->setValue(640, true);
    deliver();
    EXPECT_EQ(count, 1);
}

TEST_F(ChangeWatch, AReceiverMayReleaseTheParameter)
{
    auto gain = camera->floatParameter("Gain"_q);
    QObject::connect(gain.data(), &IParameter::parameterDataChangedDecoupled, &m_receiver,
                     [&gain] { gain.reset(); });
    gain->setValue(4);
    deliver();
    EXPECT_TRUE(gain.isNull());
}

TEST_F(ChangeWatch, ParametersMayGoWhileNewsIsOnItsWay)
{
    int count = 0;
    auto gain = camera->floatParameter("Gain"_q);
    watch(gain, count);
    gain->setValue(3);
    gain.reset();
    deliver();
    camera->floatParameter("Gain"_q)->setValue(5);
    deliver();
    EXPECT_EQ(count, 0);
}

TEST_F(ChangeWatch, ArrivesInTheThreadOfTheParameter)
{
    const auto gain = camera->floatParameter("Gain"_q);
    const QThread* seen = nullptr;
    QObject::connect(gain.data(), &IParameter::parameterDataChangedDecoupled, &m_receiver,
                     [&seen] { seen = QThread::currentThread(); });
    std::thread writer([&] { gain->setValue(9); });
    writer.join();
    EXPECT_EQ(seen, nullptr);
    deliver();
    EXPECT_EQ(seen, QThread::currentThread());
}
