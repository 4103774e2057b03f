#include "host/UndoText.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UnicodeString.h"
#include "host/suites/AIUndoSuite.h"

#include <string>

namespace ai {

void nameUndoStep(std::string_view action) {
    const UnicodeString undo("Undo " + std::string(action));
    const UnicodeString redo("Redo " + std::string(action));
    check(suites.undo->SetUndoTextUS(undo, redo));
}

} // namespace ai
