# SPDX-License-Identifier: Apache-2.0
# Catalogues of messages, compiled and bundled as resources.

# ostria_add_catalogues(NAME PREFIX FILE.ts...) makes the object library NAME, which brings
# ":PREFIX/FILE.qm" to whatever links it.
function(ostria_add_catalogues name prefix)
    qt5_add_translation(compiled ${ARGN} OPTIONS -silent)
    set(bundle "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    set(entries "")
    foreach(file IN LISTS compiled)
        get_filename_component(alias "${file}" NAME)
        string(APPEND entries "    <file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${bundle}" @ONLY
        CONTENT "<RCC>\n<qresource prefix=\"@prefix@\">\n@entries@</qresource>\n</RCC>\n")
    qt5_add_resources(sources "${bundle}")
    add_library(${name} OBJECT ${sources})
    target_link_libraries(${name} PRIVATE Qt5::Core)
endfunction()
