# SPDX-License-Identifier: Apache-2.0
# Catalogues of messages, compiled and bundled as resources.

# ostria_add_catalogues(NAME PREFIX FILE.ts...) makes the object library NAME, which brings
# ":PREFIX/FILE.qm" to whatever links it directly.
function(ostria_add_catalogues name prefix)
    qt5_add_translation(compiled ${ARGN} OPTIONS -silent)
    set(entries "")
    foreach(file IN LISTS compiled)
        get_filename_component(alias "${file}" NAME)
        list(APPEND entries "${alias}=${file}")
    endforeach()
    ostria_add_bundle(${name} ${prefix} ${entries})
endfunction()
