# The pictures of the resources: PNG files that the build renders from SVG sources, each in every
# variant that there is a use for.
#
#   facetta_pictures(rc files)
#       sets `rc` to the lines of a resource script and `files` to the files they name

find_program(FACETTA_RSVG rsvg-convert REQUIRED)

# One row a picture: its id, its source, and the state it shows. Its dark variant is 1000 further,
# its double one follows it, the one at 3 to 2 has its own id under another type. 2106 is a picture
# of its own, so that 2105 has no double one.
set(picture_rows
    "2100 tool normal double"
    "2103 panel normal double"
    "2105 panel rollover single"
    "2106 selection-mode normal double"
    "2108 selection-mode dim double"
    "2110 layer-mode normal double"
    "2112 origin normal double"
    "2114 angle normal double"
    "2116 overlay normal double"
    "2118 overlay dim double"
    "2120 opacity-scale normal double"
    "2122 opacity-scale dim double"
    "7000 about normal double")
set(dark_offset 1000)

# Cursors look alike on everything; prop.map, the description of each, tells its pictures.
set(cursor_rows
    "16021 base"
    "16022 move"
    "16023 layer-locked"
    "16024 finger")
set(cursor_offset_three_halves 100)
set(cursor_offset_double 200)

# Adds the rendering of `source` at `zoom`, with the colours of `sheet` unless that is empty, as the
# resource `id` of `type` to the caller's `lines` and `files`.
macro(facetta_render type id source zoom sheet)
    set(png ${CMAKE_CURRENT_BINARY_DIR}/pictures/${type}-${id}.png)
    set(colours)
    if(NOT "${sheet}" STREQUAL "")
        set(colours ${CMAKE_CURRENT_SOURCE_DIR}/pictures/${sheet}.css)
    endif()
    set(svg ${CMAKE_CURRENT_SOURCE_DIR}/${source}.svg)
    set(options --zoom ${zoom} --output ${png})
    if(colours)
        list(APPEND options --stylesheet ${colours})
    endif()
    add_custom_command(OUTPUT ${png} COMMAND ${FACETTA_RSVG} ${options} ${svg}
        DEPENDS ${svg} ${colours} COMMENT "")
    list(APPEND files ${png})
    string(APPEND lines "${id} ${type} \"pictures/${type}-${id}.png\"\n")
endmacro()

function(facetta_pictures rc_result files_result)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/pictures)
    set(lines)
    set(files)
    foreach(row IN LISTS picture_rows)
        separate_arguments(fields UNIX_COMMAND "${row}")
        list(GET fields 0 light_id)
        list(GET fields 1 source)
        list(GET fields 2 state)
        list(GET fields 3 doubles)
        math(EXPR dark_id "${light_id} + ${dark_offset}")
        foreach(theme IN ITEMS light dark)
            set(id ${${theme}_id})
            set(sheet ${theme})
            if(NOT state STREQUAL normal)
                set(sheet ${theme}-${state})
            endif()
            facetta_render(PNGI ${id} pictures/${source} 1 ${sheet})
            facetta_render(PNG3 ${id} pictures/${source} 1.5 ${sheet})
            if(doubles STREQUAL double)
                math(EXPR id "${id} + 1")
                facetta_render(PNGI ${id} pictures/${source} 2 ${sheet})
            endif()
        endforeach()
    endforeach()
    foreach(row IN LISTS cursor_rows)
        separate_arguments(fields UNIX_COMMAND "${row}")
        list(GET fields 0 id)
        list(GET fields 1 source)
        math(EXPR three_halves_id "${id} + ${cursor_offset_three_halves}")
        math(EXPR double_id "${id} + ${cursor_offset_double}")
        facetta_render(PNGI ${id} cursors/${source} 1 "")
        facetta_render(PNGI ${three_halves_id} cursors/${source} 1.5 "")
        facetta_render(PNGI ${double_id} cursors/${source} 2 "")
        string(APPEND lines "${id} XML_ \"cursors/${id}.xml\"\n")
        list(APPEND files ${CMAKE_CURRENT_SOURCE_DIR}/cursors/${id}.xml)
    endforeach()
    set(${rc_result} "${lines}" PARENT_SCOPE)
    set(${files_result} ${files} PARENT_SCOPE)
endfunction()
