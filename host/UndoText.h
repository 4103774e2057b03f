#pragma once

#include <string_view>

namespace ai {

/// Names the step that the current message will leave in the host's undo list: "Undo `action`" and
/// "Redo `action`". The last name given in a message wins. Throws `Error`.
void nameUndoStep(std::string_view action);

} // namespace ai
