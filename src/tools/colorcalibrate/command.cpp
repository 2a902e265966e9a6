// SPDX-License-Identifier: Apache-2.0
// What every subcommand shares: its streams, its exit codes, its way to fail.
#include "command.h"

#include <new>

namespace ColorCalibrate {

QString wordsOf(const std::exception& error)
{
    if (dynamic_cast<const std::bad_alloc*>(&error))
        return QStringLiteral("there is not enough memory");
    return QString::fromUtf8(error.what());
}

} // namespace ColorCalibrate
