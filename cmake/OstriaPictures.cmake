# SPDX-License-Identifier: Apache-2.0
# Pictures of the user interface: drawn as SVG, bundled as PNG.

find_program(OSTRIA_RSVG_CONVERT rsvg-convert REQUIRED
    DOC "Renders drawings; Debian package librsvg2-bin")

# Renders DRAWING as PNG of WIDTH x HEIGHT pixels into OUTPUT.
function(_ostria_render drawing width height output)
    get_filename_component(folder "${output}" DIRECTORY)
    add_custom_command(OUTPUT "${output}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
        COMMAND "${OSTRIA_RSVG_CONVERT}" --format png --width ${width} --height ${height}
            --output "${output}" "${drawing}"
        DEPENDS "${drawing}"
        COMMENT "Rendering ${output}"
        VERBATIM)
endfunction()

# ostria_add_pictures(NAME PREFIX PICTURES PICTURE... [FILES FILE...]) makes the object library NAME,
# which brings ":PREFIX/..." to whatever links it directly. A PICTURE is "NAME.png:DRAWING.svg:WxH"
# with the size in pixels; "NAME@2x.png", twice as large, comes with it. FILES are bundled as they are.
function(ostria_add_pictures name prefix)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "PICTURES;FILES")
    _ostria_check_arguments(arg)
    set(entries "")
    foreach(picture IN LISTS arg_PICTURES)
        string(REPLACE ":" ";" picture "${picture}")
        list(GET picture 0 alias)
        list(GET picture 1 drawing)
        list(GET picture 2 size)
        string(REGEX REPLACE "\\.png$" "@2x.png" doubleAlias "${alias}")
        string(REGEX MATCH "^([0-9]+)x([0-9]+)$" matched "${size}")
        math(EXPR width "2 * ${CMAKE_MATCH_1}")
        math(EXPR height "2 * ${CMAKE_MATCH_2}")
        get_filename_component(drawing "${drawing}" ABSOLUTE)
        set(folder "${CMAKE_CURRENT_BINARY_DIR}/pictures")
        _ostria_render("${drawing}" ${CMAKE_MATCH_1} ${CMAKE_MATCH_2} "${folder}/${alias}")
        _ostria_render("${drawing}" ${width} ${height} "${folder}/${doubleAlias}")
        foreach(file IN ITEMS "${alias}" "${doubleAlias}")
            list(APPEND entries "${file}=${folder}/${file}")
        endforeach()
    endforeach()
    foreach(file IN LISTS arg_FILES)
        list(APPEND entries "${file}=${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    endforeach()
    ostria_add_bundle(${name} ${prefix} ${entries})
endfunction()
