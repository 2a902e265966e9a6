// SPDX-License-Identifier: Apache-2.0
// Nobody waits for a camera that has gone.
#include "accessqueue_p.h"
#include "patience.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <vector>

using Cameras::GenICam::AccessQueue;
using Cameras::GenICam::Patience;
using Outcome = AccessQueue::Outcome;

namespace {

constexpr std::chrono::hours forEver(1);

/// Work that goes on until it is let go.
class HeldWork
{
public:
    AccessQueue::Work work() const
    {
        return [begun = m_begun, mayEnd = m_mayEnd.get_future().share()] {
            begun->set_value();
            mayEnd.wait();
        };
    }
    void waitUntilBegun() const { m_hasBegun.wait(); }
    bool hasBegun() const
    {
        return m_hasBegun.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }
    void letGo() { m_mayEnd.set_value(); }

private:
    const std::shared_ptr<std::promise<void>> m_begun = std::make_shared<std::promise<void>>();
    const std::shared_future<void> m_hasBegun = m_begun->get_future().share();
    mutable std::promise<void> m_mayEnd;
};

} // namespace

TEST(AccessQueue, DoesItsWorkInOrderBeforeItReturns)
{
    std::vector<int> done;
    AccessQueue queue;
    for (int number = 0; number < 3; ++number)
        EXPECT_EQ(queue.run([&done, number] { done.push_back(number); }, {}), Outcome::Done);
    EXPECT_EQ(done, (std::vector<int>{0, 1, 2}));
}

TEST(AccessQueue, LetsTheImpatientGoUntilTheAnswerHasCome)
{
    HeldWork held;
    AccessQueue queue;
    const AccessQueue::Work work = held.work();
    const std::uint64_t failures = Patience::failures();
    std::uint64_t late = 0;
    for (; !held.hasBegun(); ++late)
        ASSERT_EQ(queue.run(work, std::chrono::milliseconds(1)), Outcome::Late);
    EXPECT_EQ(queue.run([] {}, forEver), Outcome::Late);
    EXPECT_EQ(Patience::failures() - failures, late + 1);
    held.letGo();
    EXPECT_EQ(queue.run([] {}, {}), Outcome::Done);
    EXPECT_EQ(queue.run([] {}, forEver), Outcome::Done);
}

TEST(AccessQueue, DropsWhatTheImpatientHaveAskedForInVain)
{
    HeldWork held;
    bool isDropped = true;
    AccessQueue queue;
    auto patient = std::async(std::launch::async, [&] { return queue.run(held.work(), {}); });
    held.waitUntilBegun();
    EXPECT_EQ(queue.run([&isDropped] { isDropped = false; }, std::chrono::milliseconds(1)),
              Outcome::Late);
    held.letGo();
    EXPECT_EQ(patient.get(), Outcome::Done);
    EXPECT_EQ(queue.run([] {}, forEver), Outcome::Done);
    EXPECT_TRUE(isDropped);
}

TEST(AccessQueue, ReleasesEverybodyOnceItIsAbandoned)
{
    HeldWork held;
    bool isDropped = true;
    AccessQueue queue;
    auto patient = std::async(std::launch::async, [&] { return queue.run(held.work(), {}); });
    held.waitUntilBegun();
    auto second = std::async(std::launch::async,
                             [&] { return queue.run([&isDropped] { isDropped = false; }, {}); });
    queue.abandon();
    EXPECT_EQ(patient.get(), Outcome::Abandoned);
    EXPECT_EQ(second.get(), Outcome::Abandoned);
    EXPECT_EQ(queue.run([] {}, {}), Outcome::Abandoned);
    held.letGo();
    queue.finish();
    EXPECT_TRUE(isDropped);
}

TEST(Patience, BelongsToAThreadAndEndsWithItsScope)
{
    using std::chrono::milliseconds;
    EXPECT_EQ(Patience::ofThisThread(), std::nullopt);
    {
        const Patience outer(milliseconds(100));
        {
            const Patience inner(milliseconds(5));
            EXPECT_EQ(Patience::ofThisThread(), milliseconds(5));
        }
        EXPECT_EQ(Patience::ofThisThread(), milliseconds(100));
        EXPECT_EQ(std::async(std::launch::async, &Patience::ofThisThread).get(), std::nullopt);
    }
    EXPECT_EQ(Patience::ofThisThread(), std::nullopt);
}
