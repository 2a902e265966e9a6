// SPDX-License-Identifier: Apache-2.0
// What must hold for commands.
#include "testcamera.h"

#include <chrono>
#include <future>
#include <thread>

using CommandParameter = TestCamera;

TEST_F(CommandParameter, WritesItsValueAndWaitsUntilTheRegisterIsBack)
{
    const auto save = camera->commandParameter("Save"_q);
    EXPECT_TRUE(save->isWritable());
    EXPECT_FALSE(save->isReadable());
    int written = 0;
    port->onWrite = [&](std::uint64_t address) {
        written = static_cast<int>(port->word(address));
        port->setWord(address, 0);
    };
    save->execute();
    EXPECT_EQ(written, 1);
}

TEST_F(CommandParameter, WaitsWhileTheCameraIsBusy)
{
    // Done when the register has been asked for the fifth time.
    class SlowPort : public MemoryPort
    {
    public:
        void read(std::uint64_t address, void* data, std::size_t size) override
        {
            if (address == Register::save && ++asked == 5)
                setWord(address, 0);
            MemoryPort::read(address, data, size);
        }
        int asked = 0;
    };
    const auto slow = std::make_shared<SlowPort>();
    port = slow;
    use(testDescription());
    camera->commandParameter("Save"_q)->execute();
    EXPECT_EQ(slow->asked, 5);
}

TEST_F(CommandParameter, FailsWhenItTakesTooLong)
{
    use(testDescription(), std::chrono::milliseconds(0));
    const auto save = camera->commandParameter("Save"_q);
    EXPECT_EQ(refusalOf([&] { save->execute(); }), "Save: the camera does not finish the command.");
}

TEST_F(CommandParameter, OfAWriteOnlyRegisterIsDoneAtOnce)
{
    use(testDescription(), std::chrono::milliseconds(0));
    camera->commandParameter("Trigger"_q)->execute();
    EXPECT_EQ(port->word(Register::trigger), 7U);
}

TEST_F(CommandParameter, PassesTheDevicesReasonOn)
{
    port->readOnly.insert(Register::save);
    EXPECT_EQ(refusalOf([&] { camera->commandParameter("Save"_q)->execute(); }),
              "Save: write protected.");
}

TEST_F(CommandParameter, LetsOthersUseTheCameraMeanwhile)
{
    std::promise<void> started;
    port->onWrite = [&](std::uint64_t address) {
        if (address == Register::save)
            started.set_value();
        else
            port->setWord(Register::save, 0);
    };
    const auto width = camera->integerParameter("Width"_q);
    // The command ends only because the other thread gets at the camera.
    std::thread other([&] {
        started.get_future().wait();
        width->setValue(648, true);
    });
    camera->commandParameter("Save"_q)->execute();
    other.join();
    EXPECT_EQ(width->value(), 648);
}
