// SPDX-License-Identifier: Apache-2.0
// Steps are carried out in order, whoever waits for them.
#include "stepqueue_p.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <vector>

using Cameras::GenICam::StepQueue;

namespace {

constexpr std::chrono::milliseconds notAtAll(0);

/// A step that goes on until it is let go.
class HeldStep
{
public:
    StepQueue::Work work() const
    {
        return [mayEnd = m_mayEnd] {
            mayEnd.wait();
        };
    }
    void letGo() { m_promise.set_value(); }

private:
    std::promise<void> m_promise;
    const std::shared_future<void> m_mayEnd = m_promise.get_future().share();
};

} // namespace

TEST(StepQueue, CarriesOutWhatNobodyWaitedFor)
{
    std::vector<int> done;
    HeldStep held;
    StepQueue queue;
    const auto first = queue.add(held.work());
    EXPECT_FALSE(queue.wait(first, notAtAll));
    StepQueue::StepPtr last;
    for (int number = 0; number < 3; ++number)
        last = queue.add([&done, number] { done.push_back(number); });
    EXPECT_FALSE(queue.wait(last, std::chrono::milliseconds(1)));
    held.letGo();
    EXPECT_TRUE(queue.wait(last, {}));
    EXPECT_EQ(done, (std::vector<int>{0, 1, 2}));
    EXPECT_TRUE(queue.wait(first, notAtAll));
}

TEST(StepQueue, TellsOnceWhenAStepIsDone)
{
    HeldStep held;
    StepQueue queue;
    std::atomic<int> told = 0;
    const auto teller = std::make_shared<std::promise<std::thread::id>>();
    const auto step = queue.add(held.work());
    StepQueue::whenDone(step, [&told, teller] {
        ++told;
        teller->set_value(std::this_thread::get_id());
    });
    EXPECT_EQ(told, 0);
    held.letGo();
    EXPECT_NE(teller->get_future().get(), std::this_thread::get_id());
    EXPECT_EQ(told, 1);
    StepQueue::whenDone(step, [&] { ++told; });
    EXPECT_EQ(told, 2) << "done already";
}

TEST(StepQueue, DoesNotWaitForItself)
{
    StepQueue queue;
    bool isWaitedFor = true;
    StepQueue::StepPtr inner;
    const auto outer = queue.add([&] {
        inner = queue.add([] {});
        isWaitedFor = queue.wait(inner, {});
    });
    EXPECT_TRUE(queue.wait(outer, {}));
    EXPECT_FALSE(isWaitedFor);
    EXPECT_TRUE(queue.wait(inner, {}));
}

TEST(StepQueue, LetsGoOfAllBeforeAStepCountsAsDone)
{
    auto kept = std::make_shared<int>();
    const std::weak_ptr<int> weak = kept;
    StepQueue queue;
    const auto step = queue.add([kept = std::move(kept)] { EXPECT_NE(kept, nullptr); });
    EXPECT_TRUE(queue.wait(step, {}));
    EXPECT_TRUE(weak.expired());
}

TEST(StepQueue, MayGoBeforeItsSteps)
{
    HeldStep held;
    const auto done = std::make_shared<std::promise<void>>();
    {
        StepQueue queue;
        queue.add(held.work());
        queue.add([done] { done->set_value(); });
    }
    held.letGo();
    done->get_future().wait();
}
