# SPDX-License-Identifier: MIT
# Pictures: drawn as SVG, rendered while building, compiled into the program as ":/img/<name>.png",
# ":/img/<name>@2x.png" and ":/img/<name>@4x.png".
find_program(RSVG_CONVERT rsvg-convert REQUIRED DOC "Renders SVG to PNG (Debian package librsvg2-bin)")

# Renders the drawing ${source} to the three PNGs of the picture ${name}, ${size} pixels wide and high at 1x; a style sheet
# may follow. Adds to what the caller has in files (PNGs) and entries (lines of the resource list).
macro(_versewell_render_picture name size source)
    set(style ${ARGN})
    set(with_style "")
    if(style)
        set(with_style --stylesheet "${style}")
    endif()
    foreach(scale 1 2 4)
        math(EXPR pixels "${size} * ${scale}")
        set(file "${name}.png")
        if(scale GREATER 1)
            set(file "${name}@${scale}x.png")
        endif()
        add_custom_command(OUTPUT "${folder}/${file}"
            COMMAND "${RSVG_CONVERT}" ${with_style} --width ${pixels} --height ${pixels} --output "${folder}/${file}" "${source}"
            DEPENDS "${source}" ${style}
            COMMENT "Rendering ${file}"
            VERBATIM)
        list(APPEND files "${folder}/${file}")
        string(APPEND entries "        <file alias=\"${file}\">${folder}/${file}</file>\n")
    endforeach()
endmacro()

# versewell_add_pictures(<target> PICTURES <name>:<size>[:<source>]... [ON_HIGHLIGHT <name>:<size>...]): a static library
# with the pictures as its resource "pictures". A picture is drawn in pictures/<source>.svg, <source> being its name when
# none is given; size is its side in pixels at 1x. Those of ON_HIGHLIGHT come a second time, in white, as
# <name>_on_highlight. Whoever shows them calls Q_INIT_RESOURCE(pictures) first, as for any resource in a static library.
function(versewell_add_pictures target)
    cmake_parse_arguments(ARG "" "" "PICTURES;ON_HIGHLIGHT" ${ARGN})
    set(sources "${CMAKE_CURRENT_SOURCE_DIR}/pictures")
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/pictures")
    file(MAKE_DIRECTORY "${folder}")

    foreach(picture IN LISTS ARG_PICTURES)
        string(REPLACE ":" ";" parts "${picture}:")
        list(GET parts 0 name)
        list(GET parts 1 size)
        list(GET parts 2 source)
        if(NOT source)
            set(source ${name})
        endif()
        _versewell_render_picture(${name} ${size} "${sources}/${source}.svg")
    endforeach()
    foreach(picture IN LISTS ARG_ON_HIGHLIGHT)
        string(REPLACE ":" ";" parts "${picture}")
        list(GET parts 0 name)
        list(GET parts 1 size)
        _versewell_render_picture(${name}_on_highlight ${size} "${sources}/${name}.svg" "${sources}/on-highlight.css")
    endforeach()

    file(CONFIGURE OUTPUT "${folder}/pictures.qrc" @ONLY CONTENT
"<!DOCTYPE RCC>
<RCC version=\"1.0\">
    <qresource prefix=\"/img\">
@entries@    </qresource>
</RCC>
")
    qt5_add_resources(compiled "${folder}/pictures.qrc")
    add_library(${target} STATIC ${compiled} ${files})
    target_link_libraries(${target} PUBLIC Qt5::Core PRIVATE versewell_flags)
endfunction()
