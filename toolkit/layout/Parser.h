#pragma once

/// The grammar of the layout language. Any word may name a kind or a key here; which of them mean
/// something is decided by `resolve`.

#include "toolkit/layout/Messages.h"
#include "toolkit/layout/Value.h"

#include <optional>
#include <string_view>
#include <vector>

namespace NRDM::layout::syntax {

/// `key: value`, the value worked out. The words point into the text.
struct Argument {
    std::string_view key;
    Position keyPosition;
    Value value;
    Position valuePosition;
};

struct Element {
    std::string_view kind;
    Position position;
    std::vector<Argument> arguments; ///< a key given twice is here twice
    std::vector<Element> children;
};

struct Text {
    std::string_view name;
    std::optional<Element> root; ///< nothing when the text broke off before or in its head
};

/// Reads `text` to its end and adds to `messages` what is wrong with it. After an error in an
/// element that element is left out, and reading goes on behind it.
[[nodiscard]] Text read(std::string_view text, Messages& messages);

} // namespace NRDM::layout::syntax
