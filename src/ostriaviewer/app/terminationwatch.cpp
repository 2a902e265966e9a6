// SPDX-License-Identifier: Apache-2.0
// Ends the viewer in good order when the system asks it to.
#include "terminationwatch.h"

#include <csignal>

namespace Viewer {
namespace {

volatile std::sig_atomic_t isRequested = 0;

extern "C" void keepRequest(int /*signal*/)
{
    isRequested = 1;
}

constexpr int requests[] = {
    SIGINT,
    SIGTERM,
#ifdef SIGHUP
    SIGHUP,
#endif
};

} // namespace

// A handler may do no more than set a flag, so the flag is looked at from time to time.
TerminationWatch::TerminationWatch(QObject* parent)
    : QObject(parent)
{
    for (const int signal : requests) {
        m_previous.emplace_back(signal, std::signal(signal, keepRequest));
        // Whoever started the program may want it to go on, as "nohup" does.
        if (m_previous.back().second == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
    connect(&m_timer, &QTimer::timeout, this, &TerminationWatch::look);
    m_timer.start(200);
}

TerminationWatch::~TerminationWatch()
{
    for (const auto& [signal, handler] : m_previous)
        std::signal(signal, handler);
}

void TerminationWatch::look()
{
    if (!isRequested)
        return;
    isRequested = 0;
    emit requested();
}

} // namespace Viewer
