// SPDX-License-Identifier: Apache-2.0
// The page that saves.
#include "resultspages.h"
