#pragma once

#include "host/Types.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace easel {

/// The host's store of settings: one value for each pair of a prefix (mostly a plug-in's name) and
/// a suffix (the value's own name). The application's own have an empty prefix.
class Preferences {
public:
    using Bytes = std::vector<ai::uint8>;
    using Value =
        std::variant<bool, ai::int32, ai::int64, double, std::string, AIPoint, AIRect, Bytes>;

    /// Starts with the application's defaults.
    Preferences();

    void put(std::string_view prefix, std::string_view suffix, Value value);
    [[nodiscard]] const Value* find(std::string_view prefix, std::string_view suffix) const;
    /// False when there was none.
    bool remove(std::string_view prefix, std::string_view suffix);

    /// The value as a number: numbers and booleans convert into each other, nothing else does.
    [[nodiscard]] std::optional<double> number(std::string_view prefix,
                                               std::string_view suffix) const;
    /// The value when it is a text.
    [[nodiscard]] std::optional<std::string> text(std::string_view prefix,
                                                  std::string_view suffix) const;

    /// Adds what `file` holds; reals come back bit for bit. A file that is not there adds nothing.
    /// Throws std::runtime_error for one that cannot be understood.
    void load(const std::filesystem::path& file);
    /// Written whole or not at all. Throws std::runtime_error.
    void save(const std::filesystem::path& file) const;

private:
    std::map<std::pair<std::string, std::string>, Value> values_;
};

} // namespace easel
