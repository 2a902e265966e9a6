// SPDX-License-Identifier: Apache-2.0
// Work that nobody is to wait for.
#include "aside_p.h"

#include <algorithm>
#include <chrono>
#include <future>
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
    ~Workers()
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

    void add(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        const auto isDone = [](const std::future<void>& worker) {
            return worker.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        };
        m_workers.erase(std::remove_if(m_workers.begin(), m_workers.end(), isDone),
                        m_workers.end());
        m_workers.push_back(std::async(std::launch::async, std::move(work)));
    }

private:
    std::mutex m_mutex;
    std::vector<std::future<void>> m_workers;
};

} // namespace

void runAside(std::function<void()> work)
{
    static Workers workers;
    workers.add(std::move(work));
}

} // namespace Cameras::GenICam
