#include "toolkit/ImplCommon/Slots.h"

#include <cstdio>

namespace NRDM::slots {

void reportStub(const char* unit, const char* function) {
    const std::string name = std::string(unit) + "::" + function;
    std::fprintf(stderr, "Not implemented: %s in %s\n", name.c_str(), unit);
    throw NRDMNotImpl();
}

} // namespace NRDM::slots
