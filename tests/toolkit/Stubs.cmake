# Writes Stubs.cpp: a row for each slot that a suite's unit fills with a stub, which calls it by the
# name of the slot.
file(GLOB units CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/toolkit/ImplWin/ADM*uite.cpp
    ${CMAKE_SOURCE_DIR}/toolkit/ImplCommon/ADMNotifierSuite.cpp)
list(FILTER units EXCLUDE REGEX "ADM(Drawer|Image)") # native builds have others, with nothing but stubs
file(GLOB headless CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/toolkit/Headless/ADM*uite.cpp)
set(rows)
foreach(unit IN LISTS units headless)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${unit})
    cmake_path(GET unit STEM name)
    file(READ ${unit} text)
    string(REGEX MATCH "const ADM[A-Za-z]+ (k[A-Za-z]+) = {" found "${text}")
    set(table ${CMAKE_MATCH_1})
    string(REGEX MATCHALL "\\.[A-Za-z]+ = stub<" slots "${text}")
    foreach(slot IN LISTS slots)
        string(REGEX REPLACE "^\\.([A-Za-z]+).*" "\\1" slot "${slot}")
        string(APPEND rows "    {\"${name}::${slot} in ${name}\", [] { callStub(NRDM::${table}.${slot}); }},\n")
    endforeach()
endforeach()
file(CONFIGURE OUTPUT Stubs.cpp @ONLY CONTENT [[
#include "tests/toolkit/model/Stubs.h"

#include "toolkit/ImplCommon/SuiteUnits.h"

namespace facetta::tests {

std::span<const StubSlot> stubSlots() {
    static constexpr StubSlot kSlots[] = {
@rows@    };
    return kSlots;
}

} // namespace facetta::tests
]])
