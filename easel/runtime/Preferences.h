#pragma once

#include "host/Types.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace easel {

/// The host's store of settings: one value for each pair of a prefix (mostly a plug-in's name) and
/// a suffix (the value's own name). The application's own have an empty prefix.
class Preferences {
public:
    using Value = std::variant<bool, ai::int32, double, std::string>;

    /// Starts with the application's defaults.
    Preferences();

    void put(std::string_view prefix, std::string_view suffix, Value value);
    [[nodiscard]] const Value* find(std::string_view prefix, std::string_view suffix) const;

    /// Nothing happens when there is none.
    void remove(std::string_view prefix, std::string_view suffix);

    /// The value as a number: numbers and booleans convert into each other, nothing else does.
    [[nodiscard]] std::optional<double> number(std::string_view prefix,
                                               std::string_view suffix) const;
    /// The value when it is a text.
    [[nodiscard]] std::optional<std::string> text(std::string_view prefix,
                                                  std::string_view suffix) const;

private:
    std::map<std::pair<std::string, std::string>, Value> values_;
};

} // namespace easel
