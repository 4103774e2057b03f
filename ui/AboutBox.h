#pragma once

#include "host/Handles.h"
#include "tool/Licensing.h"

#include <cstdint>

namespace facetta {

/// How the about box was left.
enum class AboutResult : std::uint8_t {
    Closed,
    BuyNow, ///< the web page on the topic that opened the box is to be opened
};

/// Shows the about box until it is closed. The licence says which of its buttons there are, how
/// they are named, and what is said of it; `openManual` is what Help does before it closes the box.
/// Throws what making the box throws, and what its procedures throw: it is gone then.
AboutResult showAboutBox(SPPluginRef self, const Licensing& licence, void (*openManual)());

} // namespace facetta
