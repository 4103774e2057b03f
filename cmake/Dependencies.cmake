# What we build with and did not write, each as one target, the same in every preset:
# facetta::doctest, facetta::cli11, facetta::json, facetta::tinyxml2, and natively facetta::cairo and
# facetta::benchmark. All of it comes from the system's packages (see docs/dependencies.md).

include_guard(GLOBAL)

# A library that is headers alone: facetta::<name>, with `folder` of the system's headers in an
# include folder of its own. The Windows compiler must never see /usr/include as a whole: it would
# find the headers of Linux's C library there.
function(facetta_headers name folder)
    find_path(FACETTA_${name}_HEADERS ${folder} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
    if(NOT FACETTA_${name}_HEADERS)
        message(FATAL_ERROR "No headers of ${name}: run scripts/setup, which installs them")
    endif()
    set(own ${CMAKE_BINARY_DIR}/headers/${name})
    file(MAKE_DIRECTORY ${own})
    file(CREATE_LINK ${FACETTA_${name}_HEADERS}/${folder} ${own}/${folder} SYMBOLIC)
    add_library(facetta_${name} INTERFACE)
    add_library(facetta::${name} ALIAS facetta_${name})
    target_include_directories(facetta_${name} SYSTEM INTERFACE ${own})
endfunction()

facetta_headers(doctest doctest)
facetta_headers(cli11 CLI)
facetta_headers(json nlohmann)

if(WIN32)
    # Compiled from the system's source package, which scripts/setup lays here.
    set(source ${CMAKE_SOURCE_DIR}/build/dependencies/tinyxml2)
    if(NOT EXISTS ${source}/tinyxml2.cpp)
        message(FATAL_ERROR "No TinyXML-2 in ${source}: run scripts/setup, which puts it there")
    endif()
    add_library(facetta_tinyxml2 STATIC ${source}/tinyxml2.cpp)
    target_include_directories(facetta_tinyxml2 SYSTEM PUBLIC ${source})
    add_library(facetta::tinyxml2 ALIAS facetta_tinyxml2)
else()
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(tinyxml2 REQUIRED IMPORTED_TARGET GLOBAL tinyxml2)
    add_library(facetta::tinyxml2 ALIAS PkgConfig::tinyxml2)
    pkg_check_modules(cairo REQUIRED IMPORTED_TARGET GLOBAL cairo)
    add_library(facetta::cairo ALIAS PkgConfig::cairo)
    find_package(benchmark REQUIRED)
    add_library(facetta::benchmark ALIAS benchmark::benchmark_main)
endif()
