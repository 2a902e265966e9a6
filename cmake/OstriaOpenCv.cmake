# SPDX-License-Identifier: Apache-2.0
# OpenCV's core and imgproc alone. Debian keeps OpenCV's own CMake files in the package of the
# whole library, which drags in hundreds of others, so the two modules are looked up by themselves.

if(WIN32)
    find_package(OpenCV 4 CONFIG REQUIRED COMPONENTS core imgproc)
    return()
endif()

find_path(OPENCV_INCLUDE_DIR opencv2/imgproc.hpp PATH_SUFFIXES opencv4 REQUIRED)
foreach(module core imgproc)
    find_library(OPENCV_${module}_LIBRARY opencv_${module} REQUIRED)
    add_library(opencv_${module} INTERFACE)
    target_include_directories(opencv_${module} SYSTEM INTERFACE "${OPENCV_INCLUDE_DIR}")
    target_link_libraries(opencv_${module} INTERFACE "${OPENCV_${module}_LIBRARY}")
endforeach()
