// SPDX-License-Identifier: Apache-2.0
// Work that nobody waits for is waited for at the end.
#include "aside_p.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <atomic>
#include <future>

using Cameras::GenICam::runAside;

namespace {

std::promise<void>* mayEnd = nullptr;

} // namespace

TEST(Aside, IsDoneBeforeTheApplicationObjectHasGone)
{
    for (int round = 0; round < 2; ++round) {
        std::promise<void> end;
        mayEnd = &end;
        std::atomic<bool> isDone = false;
        {
            int argumentCount = 0;
            const QCoreApplication application(argumentCount, nullptr);
            runAside([&end, &isDone] {
                end.get_future().wait();
                // What work adds at the end is waited for, too.
                runAside([&isDone] { isDone = true; });
            });
            // Called before those that are there already.
            qAddPostRoutine([] { mayEnd->set_value(); });
        }
        EXPECT_TRUE(isDone) << round;
    }
}

TEST(Aside, ThreadsEndBeforeTheApplicationObjectHasGone)
{
    std::promise<void> end;
    mayEnd = &end;
    std::atomic<bool> hasEnded = false;
    {
        int argumentCount = 0;
        const QCoreApplication application(argumentCount, nullptr);
        Cameras::GenICam::joinAside(std::thread([&end, &hasEnded] {
            end.get_future().wait();
            hasEnded = true;
        }));
        qAddPostRoutine([] { mayEnd->set_value(); });
    }
    EXPECT_TRUE(hasEnded);
}
