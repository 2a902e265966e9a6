// SPDX-License-Identifier: Apache-2.0
// What becomes of the memory of images.
#pragma once

namespace Viewer {

/// Lets blocks of a megabyte and more, which are images here, go back to the system as soon as they
/// are free. Left alone, the C library keeps them for each thread that once had one, and the viewer
/// grows with every window in which a camera is shown. For the beginning of main.
void giveLargeMemoryBack();

} // namespace Viewer
