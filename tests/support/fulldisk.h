// SPDX-License-Identifier: Apache-2.0
// A disk without room.
#pragma once

#include <csignal>
#include <sys/resource.h>

/// As long as it lives, no file of the process can be written, as a limit on the size of files
/// fails writes in the way of a full disk.
class FullDisk
{
public:
    FullDisk()
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full = {0, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_limit = {};
};
