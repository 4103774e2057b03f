# Fails unless `library` lets out PluginMain alone and, as a Windows library, imports nothing but
# what every supported Windows has and is hardened. Run as: cmake -D library=... -D objdump=... -P this file.

cmake_minimum_required(VERSION 3.25)

function(dump result)
    execute_process(COMMAND ${objdump} ${ARGN} ${library} OUTPUT_VARIABLE text
        COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

function(expect_only_plugin_main exports)
    if(NOT exports STREQUAL "PluginMain")
        message(FATAL_ERROR "${library} should export PluginMain alone, but exports: ${exports}")
    endif()
endfunction()

if(library MATCHES "\\.so$")
    dump(symbols --dynamic-syms)
    string(REGEX MATCHALL "\n[0-9a-f]+ g[^\n]*" exports "${symbols}") # g: global and defined here
    list(TRANSFORM exports REPLACE "^.* " "")
    expect_only_plugin_main("${exports}")
    return()
endif()

dump(headers --private-headers)

string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table[^\n]*\n(([ \t]+\\[[^\n]*\n)*)" table "${headers}")
string(REGEX MATCHALL "\\] [^\n]*" exports "${CMAKE_MATCH_1}")
list(TRANSFORM exports REPLACE "^.* " "")
expect_only_plugin_main("${exports}")

# "library function" for each that every supported Windows has, as windows-functions.txt lists them.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/windows-functions.txt lines REGEX "^[^#]")
set(known)
foreach(line IN LISTS lines)
    if(line MATCHES "^[^ ]+$")
        set(from ${line})
        continue()
    endif()
    string(REGEX MATCHALL "[^ ]+" functions "${line}")
    list(TRANSFORM functions PREPEND "${from} ")
    list(APPEND known ${functions})
endforeach()

# An import may be written either way as to capitals; its functions follow, a number before each.
set(imports 0)
string(REGEX MATCHALL "DLL Name: [^\n]*|\n\t[0-9a-f]+\t[^\n]*" lines "${headers}")
foreach(line IN LISTS lines)
    if(line MATCHES "DLL Name: *([^ ]+)")
        string(TOLOWER "${CMAKE_MATCH_1}" from)
    elseif(line MATCHES "^\n\t[0-9a-f]+\t *(<none>|[0-9]+) +([^ ]+)" AND from)
        math(EXPR imports "${imports} + 1")
        if(NOT "${from} ${CMAKE_MATCH_2}" IN_LIST known)
            message(FATAL_ERROR "${library} imports ${CMAKE_MATCH_2} of ${from}, which "
                "windows-functions.txt does not say that every supported Windows has")
        endif()
    endif()
endforeach()
if(imports EQUAL 0)
    message(FATAL_ERROR "${library} seems to import nothing: its headers were not understood")
endif()

foreach(flag IN ITEMS DYNAMIC_BASE HIGH_ENTROPY_VA NX_COMPAT)
    if(NOT headers MATCHES "\n[ \t]+${flag}\n")
        message(FATAL_ERROR "${library} is not hardened: ${flag} is off")
    endif()
endforeach()
