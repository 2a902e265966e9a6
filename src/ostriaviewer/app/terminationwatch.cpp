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

} // namespace

// A handler may do no more than set a flag, so the flag is looked at from time to time.
TerminationWatch::TerminationWatch(QObject* parent)
    : QObject(parent)
    , m_previousInterrupt(std::signal(SIGINT, keepRequest))
    , m_previousTerminate(std::signal(SIGTERM, keepRequest))
{
    connect(&m_timer, &QTimer::timeout, this, &TerminationWatch::look);
    m_timer.start(200);
}

TerminationWatch::~TerminationWatch()
{
    std::signal(SIGINT, m_previousInterrupt);
    std::signal(SIGTERM, m_previousTerminate);
}

void TerminationWatch::look()
{
    if (!isRequested)
        return;
    isRequested = 0;
    emit requested();
}

} // namespace Viewer
