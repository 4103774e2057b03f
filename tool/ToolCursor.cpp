#include "tool/ToolCursor.h"

#include "tool/ToolSession.h"

namespace facetta {

void showCursor(const ToolSession& session, ToolCursor cursor) {
    session.setCursor(static_cast<ai::int32>(cursor));
}

} // namespace facetta
