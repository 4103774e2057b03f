#include "toolkit/gallery/Host.h"

#include "host/Codes.h"
#include "host/suites/SPAccessSuite.h"

#include <string_view>

namespace NRDM::gallery {
namespace {

/// No library stands for the running program.
SPErr resourcesInProgram(SPPluginRef, SPPlatformAccessRef* library) {
    *library = nullptr;
    return kNoErr;
}

constexpr SPAccessSuite accessSuite() {
    SPAccessSuite functions{};
    functions.GetPluginResourceAccess = resourcesInProgram;
    return functions;
}
constexpr SPAccessSuite kAccess = accessSuite();

SPErr acquire(const char* name, ai::int32, const void** functions) {
    if (std::string_view(name) != kSPAccessSuite) return kNotImplementedErr;
    *functions = &kAccess;
    return kNoErr;
}
SPErr release(const char*, ai::int32) { return kNoErr; }

constexpr SPBasicSuite basicSuite() {
    SPBasicSuite functions{};
    functions.AcquireSuite = acquire;
    functions.ReleaseSuite = release;
    return functions;
}
constexpr SPBasicSuite kBasic = basicSuite();

} // namespace

const SPBasicSuite& host() { return kBasic; }

} // namespace NRDM::gallery
