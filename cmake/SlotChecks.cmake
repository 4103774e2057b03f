# Declared tables of functions against their published order: a build-time check. Every function sits
# at its slot and takes and answers the published types, every table has its full length, every suite
# its name and version. A slot that nobody calls may be a `ReservedSlot` of its name.
#
#   facetta_slot_checks(host TABLE host/slots/suites.tsv FOLDER host/suites DEPENDS host)
#       compiles the check as the room host_slots; FOLDER holds one header a suite, named like its
#       struct, and no others but those named after EXCEPT

include_guard(GLOBAL)

function(facetta_slot_checks name)
    cmake_parse_arguments(arg "" "TABLE;FOLDER" "DEPENDS;EXCEPT" ${ARGN})
    set(table ${CMAKE_SOURCE_DIR}/${arg_TABLE})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
    file(STRINGS ${table} rows REGEX "\t")
    list(POP_FRONT rows) # the headings

    set(includes)
    set(checks)
    set(declared)
    foreach(row IN LISTS rows)
        string(REGEX MATCH
            "^([^\t]+)\t([0-9]+)\t([^\t]+)\t([0-9]+)\t([^\t]+)\t([^\t]+)\t([^\t]*)" fields "${row}")
        set(suite "${CMAKE_MATCH_1}")
        set(version ${CMAKE_MATCH_2})
        set(struct ${CMAKE_MATCH_3})
        set(slot ${CMAKE_MATCH_4})
        set(function ${CMAKE_MATCH_5})
        set(returns "${CMAKE_MATCH_6}")
        set(takes "${CMAKE_MATCH_7}")
        if(NOT EXISTS ${CMAKE_SOURCE_DIR}/${arg_FOLDER}/${struct}.h)
            continue() # a suite that is acquired but never called
        endif()
        if(NOT struct IN_LIST declared)
            list(APPEND declared ${struct})
            set(header ${CMAKE_SOURCE_DIR}/${arg_FOLDER}/${struct}.h)
            set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
            file(READ ${header} text)
            string(REGEX MATCHALL "ReservedSlot [^;]*;" reserved "${text}")
            string(APPEND includes "#include \"${arg_FOLDER}/${struct}.h\"\n")
            string(APPEND checks "static_assert(std::string_view(k${struct}) == \"${suite}\");\n"
                "static_assert(k${struct}Version == ${version});\n")
        endif()
        string(APPEND checks
            "static_assert(offsetof(${struct}, ${function}) == ${slot} * sizeof(void*));\n")
        if(NOT "${reserved}" MATCHES "[ \n]${function}[,;]")
            string(APPEND checks "static_assert(std::is_same_v<decltype(${struct}::${function}), "
                "${returns} (*)(${takes})>, \"${struct}::${function}\");\n")
        endif()
        set(slots_of_${struct} ${slot})
    endforeach()
    foreach(struct IN LISTS declared)
        math(EXPR slots "${slots_of_${struct}} + 1")
        string(APPEND checks "static_assert(sizeof(${struct}) == ${slots} * sizeof(void*));\n")
    endforeach()

    # Every header is looked up in the table, so that a misspelt suite cannot escape the check.
    file(GLOB headers RELATIVE ${CMAKE_SOURCE_DIR}/${arg_FOLDER} CONFIGURE_DEPENDS
        ${CMAKE_SOURCE_DIR}/${arg_FOLDER}/*.h)
    list(TRANSFORM headers REPLACE "\\.h$" "")
    foreach(struct IN LISTS headers)
        if(NOT struct IN_LIST declared AND NOT struct IN_LIST arg_EXCEPT)
            message(FATAL_ERROR "${arg_FOLDER}/${struct}.h: no such suite in ${table}")
        endif()
    endforeach()

    set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}SlotChecks.cpp)
    file(CONFIGURE OUTPUT ${source} @ONLY CONTENT
        "@includes@\n#include <cstddef>\n#include <string_view>\n#include <type_traits>\n\n@checks@")
    facetta_room(${name}_slots SOURCES ${source} DEPENDS ${arg_DEPENDS})
endfunction()
