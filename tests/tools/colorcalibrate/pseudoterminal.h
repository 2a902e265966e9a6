// SPDX-License-Identifier: Apache-2.0
// A terminal for programs that are tested.
#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

/// A terminal that nobody sits at. What is written to it can be read here.
class Terminal
{
public:
    Terminal()
        : m_master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        EXPECT_GE(m_master, 0);
        EXPECT_EQ(::grantpt(m_master), 0);
        EXPECT_EQ(::unlockpt(m_master), 0);
        m_name = QString::fromLocal8Bit(::ptsname(m_master));
        // Held open, so that it does not hang up before the program has opened it.
        m_slave = ::open(qPrintable(m_name), O_RDWR | O_NOCTTY);
    }
    ~Terminal()
    {
        ::close(m_slave);
        ::close(m_master);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    const QString& name() const { return m_name; }

    /// All that was written so far, with line feeds alone.
    QByteArray text()
    {
        char bytes[4096];
        for (;;) {
            const auto count = ::read(m_master, bytes, sizeof bytes);
            if (count <= 0)
                break;
            m_text.append(bytes, static_cast<int>(count));
        }
        return QByteArray(m_text).replace("\r\n", "\n");
    }

private:
    int m_master;
    int m_slave = -1;
    QString m_name;
    QByteArray m_text;
};
