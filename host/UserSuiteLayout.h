#pragma once

struct AIUserSuite;

namespace ai {

/// Some builds of the host may have two more functions early in the user suite, and all later ones
/// two slots further on. Is `suite` laid out as declared? Asked by a call that harms nothing
/// either way; what lies beyond the numbers and units may be called only when it is.
[[nodiscard]] bool liesAsDeclared(const AIUserSuite& suite);

} // namespace ai
