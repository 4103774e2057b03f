#pragma once

#include <string_view>

namespace facetta {

/// Shows `text` (one byte a character) in a modal alert: the host's own where its user suite is
/// laid out as declared, else the system's above the host's window. Works without acquired suites
/// as well.
void showAlert(std::string_view text);

} // namespace facetta
