// SPDX-License-Identifier: Apache-2.0
// Table of the pixel types that this layer reads.
#include "pixeltype.h"
