// SPDX-License-Identifier: Apache-2.0
// Whether a person looks on.
#include "terminal.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace ColorCalibrate {

bool isStandardErrorTerminal()
{
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

} // namespace ColorCalibrate
