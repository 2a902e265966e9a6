# SPDX-License-Identifier: Apache-2.0
# Files of the build, bundled as Qt resources.

# ostria_add_bundle(NAME PREFIX ALIAS=FILE...) makes the object library NAME, which brings
# ":PREFIX/ALIAS" with the content of FILE, an absolute path, to whatever links it directly.
function(ostria_add_bundle name prefix)
    set(entries "")
    foreach(entry IN LISTS ARGN)
        string(REGEX MATCH "^([^=]+)=(.+)$" matched "${entry}")
        if(NOT matched)
            message(FATAL_ERROR "\"${entry}\" is not of the form ALIAS=FILE.")
        endif()
        string(APPEND entries "    <file alias=\"${CMAKE_MATCH_1}\">${CMAKE_MATCH_2}</file>\n")
    endforeach()
    set(bundle "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    file(CONFIGURE OUTPUT "${bundle}" @ONLY
        CONTENT "<RCC>\n<qresource prefix=\"@prefix@\">\n@entries@</qresource>\n</RCC>\n")
    # Version 1 has no times of files in it: the same sources give the same program. Pictures are
    # compressed already, and catalogues are searched in place.
    qt5_add_resources(sources "${bundle}" OPTIONS --format-version 1 --no-compress)
    add_library(${name} OBJECT ${sources})
    target_link_libraries(${name} PRIVATE Qt5::Core)
endfunction()
