# SPDX-License-Identifier: Apache-2.0
# dlib as headers alone: its matrix code needs neither libdlib nor an installed BLAS or LAPACK.

find_path(DLIB_INCLUDE_DIR dlib/matrix.h REQUIRED)
add_library(dlib_headers INTERFACE)
target_include_directories(dlib_headers SYSTEM INTERFACE "${DLIB_INCLUDE_DIR}")
# The one header of the project that includes it.
set(OSTRIA_DLIB_DOOR "${PROJECT_SOURCE_DIR}/src/ostriaviewer/plugins/colorcalibration/internal/model/calibration/dlibmatrix.h")
