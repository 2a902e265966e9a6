// SPDX-License-Identifier: Apache-2.0
// What this process has in use at present, as Linux counts it.
#pragma once

#include <QDir>

inline int threadCount()
{
    return static_cast<int>(QDir(QStringLiteral("/proc/self/task"))
                                .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
                                .size());
}

/// The one by which this is read counts too.
inline int openFileCount()
{
    return static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                                .size());
}
