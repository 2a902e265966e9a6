// SPDX-License-Identifier: Apache-2.0
// Nobody waits longer than they want for a camera that somebody else uses.
#include "accessmutex_p.h"
#include "patience.h"

#include <gtest/gtest.h>

#include <future>

using Cameras::GenICam::AccessMutex;
using Cameras::GenICam::Patience;

namespace {

constexpr std::chrono::hours forEver(1);

/// Another thread that has the mutex.
class Holder
{
public:
    explicit Holder(AccessMutex& mutex)
        : m_thread(std::async(std::launch::async, [this, &mutex] {
            mutex.lock();
            m_has.set_value();
            m_mayEnd.get_future().wait();
            mutex.unlock();
        }))
    {
        m_has.get_future().wait();
    }
    void letGo()
    {
        m_mayEnd.set_value();
        m_thread.wait();
    }

private:
    std::promise<void> m_has;
    std::promise<void> m_mayEnd;
    std::future<void> m_thread;
};

bool isTakenBy(AccessMutex& mutex, std::chrono::milliseconds patience)
{
    const Patience limited(patience);
    const bool isTaken = mutex.lock();
    if (isTaken)
        mutex.unlock();
    return isTaken;
}

} // namespace

TEST(AccessMutex, BelongsToOneThreadUntilItHasLetGoAsOftenAsItTookIt)
{
    AccessMutex mutex;
    EXPECT_TRUE(mutex.lock());
    EXPECT_TRUE(mutex.lock());
    mutex.unlock();
    const auto other = [&mutex] {
        return std::async(std::launch::async,
                          [&mutex] { return isTakenBy(mutex, std::chrono::milliseconds(1)); })
            .get();
    };
    EXPECT_FALSE(other());
    mutex.unlock();
    EXPECT_TRUE(other());
}

TEST(AccessMutex, LetsTheImpatientGo)
{
    AccessMutex mutex;
    Holder holder(mutex);
    const std::uint64_t failures = Patience::failures();
    EXPECT_FALSE(isTakenBy(mutex, std::chrono::milliseconds(1)));
    EXPECT_FALSE(isTakenBy(mutex, forEver)) << "it is known that this takes too long";
    EXPECT_EQ(Patience::failures(), failures + 2);
    holder.letGo();
    Holder next(mutex);
    auto patient = std::async(std::launch::async, [&mutex] { return isTakenBy(mutex, forEver); });
    next.letGo();
    EXPECT_TRUE(patient.get()) << "the next one has the patience of all again";
}

TEST(AccessMutex, IsWaitedForWithoutPatience)
{
    AccessMutex mutex;
    Holder holder(mutex);
    EXPECT_FALSE(isTakenBy(mutex, std::chrono::milliseconds(1)));
    auto patient = std::async(std::launch::async, [&mutex] {
        const bool isTaken = mutex.lock();
        mutex.unlock();
        return isTaken;
    });
    holder.letGo();
    EXPECT_TRUE(patient.get());
}
