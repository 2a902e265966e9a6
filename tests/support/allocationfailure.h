// SPDX-License-Identifier: Apache-2.0
// Lets this test program run out of memory at a chosen place.
#pragma once

#include <cstddef>

/// While it lives, operator new refuses blocks of exactly this size. One at a time.
class AllocationFailure
{
public:
    explicit AllocationFailure(std::size_t size);
    ~AllocationFailure();
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;

    /// Blocks refused so far.
    int count() const;
};
