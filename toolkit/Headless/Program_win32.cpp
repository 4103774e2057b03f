#include "toolkit/Headless/Program.h"

namespace NRDM {

/// Programs that look into dialogs here look into their windows; only tests do without those, and
/// they hold the dialogs themselves.
facetta::door::Program*& program() {
    static facetta::door::Program* one = nullptr;
    return one;
}

} // namespace NRDM
