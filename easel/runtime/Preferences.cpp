#include "easel/runtime/Preferences.h"

#include <type_traits>

namespace easel {
namespace {

using Value = Preferences::Value;

} // namespace

Preferences::Preferences() {
    const std::pair<const char*, Value> defaults[] = {
        {"constrain/angle", 0.0},
        {"constrain/cos", 1.0},
        {"constrain/sin", 0.0},
        {"isRulerIn4thQuad", true},
        {"rulerType", ai::int32{2}},
        {"snapToPoint", true},
        {"selectionTolerance", ai::int32{3}},
    };
    for (const auto& [suffix, value] : defaults)
        put("", suffix, value);
}

void Preferences::put(std::string_view prefix, std::string_view suffix, Value value) {
    values_.insert_or_assign({std::string(prefix), std::string(suffix)}, std::move(value));
}

const Value* Preferences::find(std::string_view prefix, std::string_view suffix) const {
    const auto found = values_.find({std::string(prefix), std::string(suffix)});
    return found == values_.end() ? nullptr : &found->second;
}

void Preferences::remove(std::string_view prefix, std::string_view suffix) {
    values_.erase({std::string(prefix), std::string(suffix)});
}

std::optional<double> Preferences::number(std::string_view prefix, std::string_view suffix) const {
    const Value* const value = find(prefix, suffix);
    if (value == nullptr) return std::nullopt;
    return std::visit(
        [](const auto& held) -> std::optional<double> {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(held)>>)
                return static_cast<double>(held);
            else
                return std::nullopt;
        },
        *value);
}

std::optional<std::string> Preferences::text(std::string_view prefix,
                                             std::string_view suffix) const {
    const Value* const value = find(prefix, suffix);
    const auto* const held = value == nullptr ? nullptr : std::get_if<std::string>(value);
    return held == nullptr ? std::nullopt : std::optional{*held};
}

} // namespace easel
