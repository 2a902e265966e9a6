// SPDX-License-Identifier: Apache-2.0
// How often a test repeats what it does at random.
#pragma once

/// Under a sanitizer each round takes many times as long, and few of them show what is out of
/// bounds.
constexpr int roundsOf(int all)
{
#ifdef OSTRIA_ADDRESS_SANITIZER
    return all / 10;
#else
    return all;
#endif
}
