# Fails unless `library` lets out PluginMain alone and, as a Windows library, imports nothing but
# what every Windows has and is hardened. Run as: cmake -D library=... -D objdump=... -P this file.

cmake_minimum_required(VERSION 3.25)

set(system_libraries GDI32.dll gdiplus.dll KERNEL32.dll msvcrt.dll USER32.dll SHELL32.dll
    SHLWAPI.dll COMCTL32.dll ole32.dll OLEAUT32.dll)
list(TRANSFORM system_libraries TOLOWER) # an import may be written either way

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

string(REGEX MATCHALL "DLL Name: [^\n]*" imports "${headers}")
foreach(import IN LISTS imports)
    string(REGEX REPLACE "DLL Name: *" "" import "${import}")
    string(TOLOWER "${import}" lower)
    if(NOT lower IN_LIST system_libraries)
        message(FATAL_ERROR "${library} imports ${import}, which not every Windows has")
    endif()
endforeach()

foreach(flag IN ITEMS DYNAMIC_BASE HIGH_ENTROPY_VA NX_COMPAT)
    if(NOT headers MATCHES "\n[ \t]+${flag}\n")
        message(FATAL_ERROR "${library} is not hardened: ${flag} is off")
    endif()
endforeach()
