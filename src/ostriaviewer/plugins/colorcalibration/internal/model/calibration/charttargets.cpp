// SPDX-License-Identifier: Apache-2.0
// What the chart should look like.
#include "patchcolors.h"
