#pragma once

#include "tool/Licensing.h"

#include <string_view>

namespace facetta {

/// Opens the manual that lies beside the plug-in's library; does nothing when it is not there.
void openManual();

/// Opens the vendor's page on `topic` (plain ASCII, may be empty) in the browser; tells the user
/// whom to ask when there is no web.
void openWebPage(const Licensing& licence, std::string_view topic);

/// Welcomes the user with a web page when this version runs for the first time and there is a web.
void welcomeOnFirstStart(const Licensing& licence);

} // namespace facetta
