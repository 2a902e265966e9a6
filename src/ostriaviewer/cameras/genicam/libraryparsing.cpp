// SPDX-License-Identifier: Apache-2.0
// The GenICam library reads one description at a time.
#include "libraryparsing_p.h"

namespace Cameras::GenICam {

std::mutex& libraryParsing()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace Cameras::GenICam
