// SPDX-License-Identifier: Apache-2.0
// Frames come while they are wanted, and nothing waits longer than it must.
#include "frameloop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace Cameras::Emulation {
namespace {

using std::chrono::hours;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr seconds patience(60);

Ostria::CGrabResultPtr anyResult(std::uint64_t number)
{
    return std::make_shared<Ostria::CGrabResult>(std::string("no image"), number);
}

// Receives the results of a loop.
class Receiver
{
public:
    void add(const Ostria::CGrabResultPtr& result)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_numbers.push_back(result->frameNumber());
        }
        m_changed.notify_all();
    }
    bool waitFor(std::size_t count)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, patience, [&] { return m_numbers.size() >= count; });
    }
    std::vector<std::uint64_t> numbers() const
    {
        const std::lock_guard lock(m_mutex);
        return m_numbers;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::uint64_t> m_numbers;
};

FrameLoop::Take framesOf(microseconds exposure)
{
    return [exposure](std::uint64_t number) {
        return FrameLoop::Frame{anyResult(number), exposure, exposure};
    };
}

TEST(FrameLoop, NumbersFramesInOrder)
{
    Receiver received;
    FrameLoop loop(framesOf(microseconds(10)), [&](const auto& result) { received.add(result); });
    loop.startContinuous();
    EXPECT_TRUE(loop.isContinuous());
    ASSERT_TRUE(received.waitFor(20));
    loop.stop();
    const auto numbers = received.numbers();
    for (std::size_t i = 0; i < numbers.size(); ++i)
        EXPECT_EQ(numbers[i], i);
}

// The source holds the camera meanwhile, which its owner may be about to give up.
TEST(FrameLoop, WaitsForAFrameThatIsBeingTaken)
{
    for (int round = 0; round < 100; ++round) {
        FrameLoop* running = nullptr;
        std::promise<void> taking;
        std::atomic<bool> isTaken = false;
        FrameLoop loop(
            [&](std::uint64_t number) {
                if (number == 0)
                    taking.set_value();
                while (running->isContinuous())
                    std::this_thread::yield();
                isTaken = true;
                return FrameLoop::Frame();
            },
            [](const auto&) {});
        running = &loop;
        loop.startContinuous();
        taking.get_future().wait();
        loop.stop();
        ASSERT_TRUE(isTaken) << round;
    }
}

TEST(FrameLoop, DeliversNothingAfterStop)
{
    Receiver received;
    FrameLoop loop(framesOf(microseconds(1)), [&](const auto& result) { received.add(result); });
    for (int round = 0; round < 50; ++round) {
        const std::size_t before = received.numbers().size();
        loop.startContinuous();
        ASSERT_TRUE(received.waitFor(before + 2));
        loop.stop();
        EXPECT_FALSE(loop.isContinuous());
        const std::size_t stopped = received.numbers().size();
        ASSERT_TRUE(loop.requestSingle(milliseconds(patience)));
        ASSERT_TRUE(received.waitFor(stopped + 1));
        EXPECT_EQ(received.numbers().size(), stopped + 1);
    }
}

TEST(FrameLoop, ASingleRequestGivesOneFrame)
{
    Receiver received;
    FrameLoop loop(framesOf(microseconds(10)), [&](const auto& result) { received.add(result); });
    for (std::size_t i = 1; i <= 20; ++i) {
        ASSERT_TRUE(loop.requestSingle(milliseconds(patience)));
        ASSERT_TRUE(received.waitFor(i));
        EXPECT_EQ(received.numbers().size(), i);
    }
}

TEST(FrameLoop, RefusesASingleRequestWhileItRuns)
{
    FrameLoop loop(framesOf(hours(1)), [](const auto&) {});
    loop.startContinuous();
    EXPECT_FALSE(loop.requestSingle(milliseconds(1)));
    loop.stop();
    EXPECT_TRUE(loop.requestSingle(milliseconds(1)));
}

TEST(FrameLoop, NobodyWaitsForAnExposure)
{
    Receiver received;
    FrameLoop loop(framesOf(hours(1)), [&](const auto& result) { received.add(result); });
    for (int i = 0; i < 500; ++i) {
        loop.startContinuous();
        loop.stop();
        ASSERT_TRUE(loop.requestSingle(milliseconds(hours(2))));
        loop.stop();
    }
    ASSERT_TRUE(loop.requestSingle(milliseconds(hours(2)))); // its end does not wait either
    EXPECT_TRUE(received.numbers().empty());
}

// The result dies when the loop has given the frame up.
TEST(FrameLoop, GivesAFrameUpAfterItsTimeOut)
{
    for (const auto& [exposure, timeout] : {std::pair(milliseconds(hours(1)), milliseconds(5)),
                                            std::pair(milliseconds(0), milliseconds(0)),
                                            std::pair(milliseconds(0), milliseconds(-5))}) {
        Receiver received;
        std::promise<void> given;
        FrameLoop loop(
            [&, exposure = exposure](std::uint64_t number) {
                Ostria::CGrabResultPtr result(new Ostria::CGrabResult(std::string("x"), number),
                                              [&](const Ostria::CGrabResult* old) {
                                                  delete old;
                                                  given.set_value();
                                              });
                return FrameLoop::Frame{result, exposure, exposure};
            },
            [&](const auto& result) { received.add(result); });
        ASSERT_TRUE(loop.requestSingle(timeout));
        ASSERT_EQ(given.get_future().wait_for(patience), std::future_status::ready);
        EXPECT_TRUE(received.numbers().empty());
    }
}

TEST(FrameLoop, ALaterRequestTakesThePlaceOfOneThatIsWaitedFor)
{
    Receiver received;
    std::atomic<int> taken = 0;
    std::promise<void> firstTaken;
    FrameLoop loop(
        [&](std::uint64_t number) {
            const bool first = taken++ == 0;
            if (first)
                firstTaken.set_value();
            const auto exposure = first ? microseconds(hours(1)) : microseconds(1);
            return FrameLoop::Frame{anyResult(number), exposure, exposure};
        },
        [&](const auto& result) { received.add(result); });
    ASSERT_TRUE(loop.requestSingle(milliseconds(hours(2))));
    firstTaken.get_future().wait();
    ASSERT_TRUE(loop.requestSingle(milliseconds(patience)));
    ASSERT_TRUE(received.waitFor(1));
    EXPECT_EQ(received.numbers(), std::vector<std::uint64_t>{1});
}

TEST(FrameLoop, ALostFrameCountsButIsNotDelivered)
{
    Receiver received;
    FrameLoop loop(
        [](std::uint64_t number) {
            return FrameLoop::Frame{number < 3 ? nullptr : anyResult(number), microseconds(1),
                                    microseconds(1)};
        },
        [&](const auto& result) { received.add(result); });
    loop.startContinuous();
    ASSERT_TRUE(received.waitFor(1));
    EXPECT_EQ(received.numbers().front(), 3U);
}

TEST(FrameLoop, AReceiverMayStopIt)
{
    Receiver received;
    FrameLoop* running = nullptr;
    FrameLoop loop(framesOf(microseconds(1)), [&](const auto& result) {
        running->stop();
        received.add(result);
    });
    running = &loop;
    for (std::size_t i = 1; i <= 20; ++i) {
        loop.startContinuous();
        ASSERT_TRUE(received.waitFor(i));
        loop.stop();
        EXPECT_EQ(received.numbers().size(), i);
    }
}

TEST(FrameLoop, AReceiverMayRequestTheNextFrame)
{
    Receiver received;
    FrameLoop* running = nullptr;
    FrameLoop loop(framesOf(microseconds(1)), [&](const auto& result) {
        running->requestSingle(milliseconds(patience));
        received.add(result);
    });
    running = &loop;
    loop.requestSingle(milliseconds(patience));
    EXPECT_TRUE(received.waitFor(20));
}

TEST(FrameLoop, StoppingWithALockThatTheReceiverWaitsForEnds)
{
    std::mutex shared;
    std::promise<void> waiting;
    std::promise<void> done;
    FrameLoop loop(framesOf(microseconds(1)), [&](const auto&) {
        waiting.set_value();
        const std::lock_guard lock(shared);
        done.set_value();
    });
    {
        const std::lock_guard lock(shared);
        loop.requestSingle(milliseconds(patience));
        waiting.get_future().wait();
        loop.stop(); // would never return if it waited for the delivery
    }
    EXPECT_EQ(done.get_future().wait_for(patience), std::future_status::ready);
}

TEST(FrameLoop, AReceiverMayDestroyIt)
{
    auto destroyed = std::make_shared<std::promise<void>>();
    auto holder = std::make_shared<std::unique_ptr<FrameLoop>>();
    // Shared, as the loop's thread outlives this test for a moment.
    auto mutex = std::make_shared<std::mutex>();
    std::unique_lock lock(*mutex);
    *holder = std::make_unique<FrameLoop>(framesOf(microseconds(1)),
                                          [mutex, holder, destroyed](const auto&) {
                                              const std::lock_guard guard(*mutex);
                                              holder->reset();
                                              destroyed->set_value();
                                          });
    (*holder)->startContinuous();
    lock.unlock();
    EXPECT_EQ(destroyed->get_future().wait_for(patience), std::future_status::ready);
}

TEST(FrameLoop, StandsStartsAndStopsFromAllSides)
{
    Receiver received;
    FrameLoop loop(framesOf(microseconds(1)), [&](const auto& result) { received.add(result); });
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round) {
                loop.startContinuous();
                loop.requestSingle(milliseconds(1));
                loop.stop();
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    const std::size_t before = received.numbers().size();
    ASSERT_TRUE(loop.requestSingle(milliseconds(patience)));
    EXPECT_TRUE(received.waitFor(before + 1));
}

} // namespace
} // namespace Cameras::Emulation
