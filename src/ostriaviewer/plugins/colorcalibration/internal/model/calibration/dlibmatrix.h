// SPDX-License-Identifier: Apache-2.0
// The one door to dlib: its matrices without BLAS and LAPACK, so that every machine computes the
// same last digit and nothing has to be linked.
#pragma once

// Drops dlib's link-time check that all objects were built with its own configuration.
#define DLIB_TEST_FOR_ODR_VIOLATIONS_H_
#include <dlib/assert.h>
#undef DLIB_USE_BLAS
#undef DLIB_USE_LAPACK
#include <dlib/matrix.h>
