#pragma once

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// A message with the button down. Each takes back what the one before it did to the document, and
/// builds everything anew from where the press was. Throws `ai::Error`.
void mouseDrag(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
