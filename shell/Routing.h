#pragma once

#include "host/Types.h"

#include <string_view>

namespace facetta {

class Plugin;

/// Hands `message` to the operation that its caller and selector stand for. A pair that is not in
/// the table is not handled ('!MSG').
AIErr route(Plugin& plugin, std::string_view caller, std::string_view selector, void* message);

} // namespace facetta
