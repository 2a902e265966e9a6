// SPDX-License-Identifier: Apache-2.0
// Starts of the viewer that are measured from outside.
#pragma once

/// Runs as another program until its first picture stands on the screen, if the arguments say so:
/// "--start-viewer" or "--start-window".
/// \return  the exit code, -1 if the arguments say nothing of it
int runMeasuredStart(int argc, char** argv);
