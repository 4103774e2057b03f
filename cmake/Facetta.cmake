# How Facetta's rooms, tests and products are built: one function each, one set of flags for all.
#
#   facetta_room(symmetry SOURCES Geometry.cpp ... DEPENDS host)
#       the static library facetta::symmetry; sources include from the root of the repository
#   facetta_tests(symmetry SOURCES GeometryTests.cpp ... DEPENDS symmetry)
#       the doctest program symmetry_tests, known to CTest under that name; in the Windows presets
#       it runs under Wine
#   facetta_screen_test(toolkit gallery)
#       the test toolkit_screen: the script screen/run of the folder uses the program gallery with the
#       mouse and keyboard of an X server; Windows only
#   facetta_program(easel SOURCES main.cpp DEPENDS easel facetta::cli11)
#       a product of that name
#   facetta_benchmarks(mirror SOURCES MirrorBenchmarks.cpp DEPENDS symmetry)
#       the Google Benchmark program mirror_benchmarks, for scripts/bench; Linux only
#   facetta_fuzzer(layout_fuzz SOURCES layout_fuzz.cpp DEPENDS layout CORPUS fuzz/corpus/layout_fuzz)
#       a fuzz target and the folders of inputs it starts from; the preset linux-fuzz makes fuzzers
#       of them, the other Linux presets tests that replay and change those inputs
#   facetta_plugin(facetta SOURCES PluginMain.cpp DEPENDS shell)
#       the plug-in, exporting PluginMain alone: Facetta.aip for Windows, facetta.so for Linux
#
# Products land side by side in build/<preset>/products; the target "products" builds them alone.
#
# DEPENDS takes names of rooms and whole target names (those with "::" and those of system
# libraries written with a leading -l). A test may add TIMEOUT seconds and LABELS.

include_guard(GLOBAL)
enable_testing()

set(CMAKE_POSITION_INDEPENDENT_CODE ON) # every room ends up in facetta.so
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

option(FACETTA_SANITIZE "Check addresses, leaks and undefined behaviour while running" OFF)

# Paths inside the objects are relative to the repository, so that two clones build the same bytes
# and share one compiler cache.
find_program(FACETTA_CCACHE ccache)
if(FACETTA_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${FACETTA_CCACHE})
endif()

add_library(facetta_flags INTERFACE)
target_compile_features(facetta_flags INTERFACE cxx_std_20)
target_include_directories(facetta_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(facetta_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast -Werror
    -Wno-multichar # the host names things by four-letter codes: 'ARTg'
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>)

if(FACETTA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined,float-cast-overflow
        -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
    add_link_options(-fsanitize=address,undefined,float-cast-overflow)
    # GCC's manual: sanitizers make this one cry wolf. The other presets keep it.
    target_compile_options(facetta_flags INTERFACE
        $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-maybe-uninitialized>)
endif()

if(WIN32)
    enable_language(RC)
    target_compile_definitions(facetta_flags INTERFACE
        UNICODE _UNICODE NOMINMAX WINVER=0x0A00 _WIN32_WINNT=0x0A00)
    target_compile_options(facetta_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wa,-mbig-obj>)
    # The runtime goes inside: products import DLLs of the system only. No time stamp, so that
    # two builds of one state are the same bytes.
    target_link_options(facetta_flags INTERFACE -static -Wl,--no-insert-timestamp
        -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
    add_test(NAME wine_prefix COMMAND ${CMAKE_SOURCE_DIR}/scripts/wine-prefix)
    set_tests_properties(wine_prefix PROPERTIES TIMEOUT 300 FIXTURES_SETUP wine)
endif()

foreach(header IN ITEMS Version.h Web.h)
    configure_file(${CMAKE_SOURCE_DIR}/cmake/${header}.in ${CMAKE_BINARY_DIR}/generated/${header} @ONLY)
endforeach()
target_include_directories(facetta_flags INTERFACE ${CMAKE_BINARY_DIR}/generated)

# The names given to DEPENDS as target names: a room's name stands for facetta::<room>.
function(facetta_targets result)
    set(targets)
    foreach(name IN LISTS ARGN)
        if(name MATCHES "::|^-l")
            list(APPEND targets ${name})
        else()
            list(APPEND targets facetta::${name})
        endif()
    endforeach()
    set(${result} ${targets} PARENT_SCOPE)
endfunction()

# Reads SOURCES, DEPENDS and the like; a word that belongs to none of them is a mistake.
macro(facetta_arguments function single)
    cmake_parse_arguments(arg "" "${single}" "SOURCES;DEPENDS;LABELS;CORPUS" ${ARGN})
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
        message(FATAL_ERROR "${function}(name SOURCES ... [DEPENDS ...]): ${arg_UNPARSED_ARGUMENTS}")
    endif()
    facetta_targets(depends ${arg_DEPENDS})
endmacro()

function(facetta_room name)
    facetta_arguments(facetta_room "" ${ARGN})
    add_library(facetta_${name} STATIC ${arg_SOURCES})
    add_library(facetta::${name} ALIAS facetta_${name})
    target_link_libraries(facetta_${name} PUBLIC facetta_flags ${depends})
    if(name IN_LIST FACETTA_COVERAGE) # as scripts/coverage asks for it
        target_compile_options(facetta_${name} PRIVATE --coverage -O0)
        target_link_options(facetta_${name} PUBLIC --coverage)
    endif()
endfunction()

add_custom_target(products)

# Products stand side by side, so that the host finds the plug-in; they carry no symbols when
# optimised.
function(facetta_product name)
    target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-s>)
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/products
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/products)
    add_dependencies(products ${name})
endfunction()

function(facetta_program name)
    facetta_arguments(facetta_program "" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE facetta_flags ${depends})
    facetta_product(${name})
endfunction()

function(facetta_tests name)
    facetta_arguments(facetta_tests "TIMEOUT" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    if(NOT TARGET facetta_test_main)
        set(system $<IF:$<BOOL:${WIN32}>,win32,headless>)
        add_library(facetta_test_main OBJECT ${CMAKE_SOURCE_DIR}/tests/main.cpp
            ${CMAKE_SOURCE_DIR}/tests/CrashFilter_${system}.cpp)
        target_link_libraries(facetta_test_main PUBLIC facetta_flags facetta::doctest)
    endif()
    add_executable(${name}_tests ${arg_SOURCES})
    target_link_libraries(${name}_tests PRIVATE facetta_test_main ${depends})
    # What is tested is compiled as it ships; optimising the assertions around it costs a third of
    # the build and tells nothing.
    target_compile_options(${name}_tests PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
    add_test(NAME ${name}_tests COMMAND ${name}_tests WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
    set_tests_properties(${name}_tests PROPERTIES TIMEOUT ${arg_TIMEOUT} LABELS "${arg_LABELS}")
    facetta_runs_program(${name}_tests)
endfunction()

function(facetta_screen_test name program)
    if(NOT WIN32)
        return()
    endif()
    add_test(NAME ${name}_screen WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
        COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/screen/run $<TARGET_FILE:${program}>)
    set_tests_properties(${name}_screen PROPERTIES TIMEOUT 600)
    facetta_runs_program(${name}_screen)
endfunction()

# What every test needs that runs a program of ours.
function(facetta_runs_program test)
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "ASAN_OPTIONS=detect_stack_use_after_return=1;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/leaks-of-others.txt:print_suppressions=0")
    if(WIN32)
        # Two programs that open windows in one Wine prefix can wait for each other for ever.
        set_tests_properties(${test} PROPERTIES RESOURCE_LOCK wine FIXTURES_REQUIRED wine)
    endif()
endfunction()

function(facetta_benchmarks name)
    facetta_arguments(facetta_benchmarks "" ${ARGN})
    if(WIN32)
        return() # no package has Google Benchmark for Windows
    endif()
    add_executable(${name}_benchmarks ${arg_SOURCES})
    target_link_libraries(${name}_benchmarks PRIVATE facetta_flags facetta::benchmark ${depends})
endfunction()

function(facetta_fuzzer name)
    facetta_arguments(facetta_fuzzer "" ${ARGN})
    if(WIN32)
        return() # neither a fuzzer nor the sanitizers that make one worth its time
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE facetta_flags ${depends})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        list(JOIN arg_CORPUS "\n" folders)
        file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}.corpus "${folders}\n")
        return()
    endif()
    if(NOT TARGET facetta_replay)
        add_library(facetta_replay OBJECT ${CMAKE_SOURCE_DIR}/fuzz/replay.cpp)
        target_link_libraries(facetta_replay PRIVATE facetta_flags)
    endif()
    target_link_libraries(${name} PRIVATE facetta_replay)
    add_test(NAME ${name} WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
        COMMAND ${name} ${CMAKE_CURRENT_BINARY_DIR}/${name}.last ${arg_CORPUS})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 LABELS fuzz-corpus)
endfunction()

function(facetta_plugin name)
    facetta_arguments(facetta_plugin "" ${ARGN})
    add_library(${name} MODULE ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE facetta_flags ${depends})
    # The library's own sources hold the entry, which the linker alone lets out; -u finds it in a
    # room's archive as well.
    set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET default PREFIX "")
    target_link_options(${name} PRIVATE -Wl,-u,PluginMain)
    facetta_product(${name})
    if(WIN32)
        target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/PluginMain.def)
        set_target_properties(${name} PROPERTIES OUTPUT_NAME Facetta SUFFIX .aip)
        # Fixed, because the linker would otherwise make it up from the path of the output.
        target_link_options(${name} PRIVATE -Wl,--image-base,0x180000000)
    else()
        set_target_properties(${name} PROPERTIES OUTPUT_NAME facetta SUFFIX .so
            LINK_DEPENDS ${CMAKE_SOURCE_DIR}/cmake/PluginMain.map)
        target_link_options(${name} PRIVATE
            -Wl,--version-script=${CMAKE_SOURCE_DIR}/cmake/PluginMain.map)
        if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang") # whose sanitizers are in the program alone
            target_link_options(${name} PRIVATE -Wl,-z,defs)
        endif()
    endif()
    add_test(NAME ${name}_library COMMAND ${CMAKE_COMMAND} -D library=$<TARGET_FILE:${name}>
        -D objdump=${CMAKE_OBJDUMP} -P ${CMAKE_SOURCE_DIR}/cmake/CheckPlugin.cmake)
    set_tests_properties(${name}_library PROPERTIES TIMEOUT 30)
endfunction()
