// SPDX-License-Identifier: Apache-2.0
// What becomes of the memory of images.
#include "largememory.h"

#include <cstdlib>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace Viewer {

// Without a word of ours the library raises the limit to the largest block that was ever freed.
void giveLargeMemoryBack()
{
#if defined(__GLIBC__)
    constexpr int smallest = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, smallest);
#endif
}

} // namespace Viewer
