// SPDX-License-Identifier: Apache-2.0
// Ctrl-C during long work.
#include "interruption.h"

#include <csignal>

namespace ColorCalibrate {
namespace {

volatile std::sig_atomic_t requested = 0;

// Some systems put the default back as they call a handler.
extern "C" void keepRequest(int signal)
{
    std::signal(signal, keepRequest);
    requested = 1;
}

struct Handled
{
    int signal;
    void (*handler)(int);
};

const std::vector<Handled> handled{
    {SIGINT, keepRequest},
    {SIGTERM, keepRequest},
#ifndef _WIN32
    {SIGHUP, keepRequest},
    {SIGPIPE, SIG_IGN},
#endif
};

} // namespace

Interruption::Interruption()
{
    requested = 0;
    for (const Handled& each : handled)
        m_previous.push_back(std::signal(each.signal, each.handler));
    // Whoever started the program may want it to go on, as "nohup" does.
    for (std::size_t i = 0; i < handled.size(); ++i)
        if (m_previous[i] == SIG_IGN)
            std::signal(handled[i].signal, SIG_IGN);
}

Interruption::~Interruption()
{
    for (std::size_t i = 0; i < handled.size(); ++i)
        std::signal(handled[i].signal, m_previous[i]);
}

bool Interruption::isRequested()
{
    return requested != 0;
}

} // namespace ColorCalibrate
