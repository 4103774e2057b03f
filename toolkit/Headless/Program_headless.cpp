#include "toolkit/Headless/Program.h"

#include <dlfcn.h>

namespace NRDM {
namespace {

facetta::door::Program* exportedProgram() {
    auto* const function = reinterpret_cast<facetta::door::ProgramFunction*>(
        dlsym(RTLD_DEFAULT, facetta::door::kProgramFunction));
    return function != nullptr ? function() : nullptr;
}

} // namespace

facetta::door::Program*& program() {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global*): a test puts its own there
    static facetta::door::Program* one = exportedProgram();
    return one;
}

} // namespace NRDM
