// SPDX-License-Identifier: Apache-2.0
// Work that nobody is to wait for.
#include "aside_p.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <iterator>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace Cameras::GenICam {
namespace {

/// What is still under way; a future of std::async waits when it goes.
class Workers
{
public:
    Workers() = default;
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    /// Work that ends may still add some, such as when it held the last of a camera.
    void waitForAll()
    {
        for (;;) {
            std::vector<std::future<void>> waited;
            {
                const std::lock_guard lock(m_mutex);
                waited.swap(m_workers);
            }
            if (waited.empty())
                return;
            for (const std::future<void>& worker : waited)
                worker.wait();
        }
    }

    /// What the work holds goes when it ends, and not with the lock held: its end may add some.
    void add(std::function<void()> work)
    {
        std::vector<std::future<void>> done;
        const std::lock_guard lock(m_mutex);
        const auto isUnderWay = [](const std::future<void>& worker) {
            return worker.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
        };
        const auto firstDone = std::partition(m_workers.begin(), m_workers.end(), isUnderWay);
        std::move(firstDone, m_workers.end(), std::back_inserter(done));
        m_workers.erase(firstDone, m_workers.end());
        m_workers.push_back(std::async(std::launch::async, [work = std::move(work)]() mutable {
            const std::function<void()> ended = std::move(work);
            ended();
        }));
    }

private:
    std::mutex m_mutex;
    std::vector<std::future<void>> m_workers;
};

/// Is never destroyed, as work may add some whenever it ends.
Workers& workers()
{
    static auto* const all = new Workers;
    return *all;
}

struct WaitAfterMain
{
    ~WaitAfterMain() { workers().waitForAll(); }
};

std::atomic<bool> isApplicationToWait = false;

void waitWithApplication()
{
    isApplicationToWait = false;
    workers().waitForAll();
}

/// While the application object goes, all that the work may use still is there.
void waitAtTheEnd()
{
    static const WaitAfterMain afterMain;
    if (QCoreApplication::instance() && !isApplicationToWait.exchange(true))
        qAddPostRoutine(waitWithApplication);
}

} // namespace

void runAside(std::function<void()> work)
{
    waitAtTheEnd();
    workers().add(std::move(work));
}

void joinAside(std::thread thread)
{
    runAside([kept = std::make_shared<std::thread>(std::move(thread))] { kept->join(); });
}

} // namespace Cameras::GenICam
