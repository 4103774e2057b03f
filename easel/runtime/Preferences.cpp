#include "easel/runtime/Preferences.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <stdexcept>
#include <type_traits>

namespace easel {
namespace {

using Json = nlohmann::ordered_json;
using Value = Preferences::Value;

struct Default {
    const char* suffix;
    Value value;
};

/// How each kind of value is written: {"FTAngle": {"real": 1.5}}. In the order of `Value`.
constexpr const char* kTypeNames[] = {"boolean", "integer", "large", "real",
                                      "text",    "point",   "rect",  "block"};

Json toJson(const Value& value) {
    return std::visit(
        [](const auto& held) -> Json {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, AIPoint>)
                return Json::array({held.h, held.v});
            else if constexpr (std::is_same_v<Held, AIRect>)
                return Json::array({held.left, held.top, held.right, held.bottom});
            else
                return held;
        },
        value);
}

Value fromJson(const std::string& type, const Json& json) {
    const auto coordinate = [&](std::size_t i) { return json.at(i).get<ai::int32>(); };
    if (type == "boolean") return json.get<bool>();
    if (type == "integer") return json.get<ai::int32>();
    if (type == "large") return json.get<ai::int64>();
    if (type == "real") return json.get<double>();
    if (type == "text") return json.get<std::string>();
    if (type == "point") return AIPoint{coordinate(0), coordinate(1)};
    if (type == "rect") return AIRect{coordinate(0), coordinate(1), coordinate(2), coordinate(3)};
    if (type == "block") return json.get<Preferences::Bytes>();
    throw std::runtime_error("unknown type " + type);
}

} // namespace

Preferences::Preferences() {
    const Default defaults[] = {
        {"constrain/angle", 0.0},
        {"constrain/cos", 1.0},
        {"constrain/sin", 0.0},
        {"isRulerIn4thQuad", true},
        {"rulerType", ai::int32{2}},
        {"snapToPoint", true},
        {"selectionTolerance", ai::int32{3}},
    };
    for (const Default& each : defaults)
        put("", each.suffix, each.value);
}

void Preferences::put(std::string_view prefix, std::string_view suffix, Value value) {
    values_.insert_or_assign({std::string(prefix), std::string(suffix)}, std::move(value));
}

const Value* Preferences::find(std::string_view prefix, std::string_view suffix) const {
    const auto found = values_.find({std::string(prefix), std::string(suffix)});
    return found == values_.end() ? nullptr : &found->second;
}

bool Preferences::remove(std::string_view prefix, std::string_view suffix) {
    return values_.erase({std::string(prefix), std::string(suffix)}) != 0;
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

void Preferences::load(const std::filesystem::path& file) {
    std::ifstream stream(file);
    if (!stream) return;
    try {
        const Json all = Json::parse(stream);
        for (const auto& [prefix, values] : all.items())
            for (const auto& [suffix, typed] : values.items())
                for (const auto& [type, value] : typed.items())
                    if (!value.is_null()) // how a real that is no number was written
                        put(prefix, suffix, fromJson(type, value));
    } catch (const std::exception& error) {
        throw std::runtime_error(file.string() + ": not a preferences file: " + error.what());
    }
}

void Preferences::save(const std::filesystem::path& file) const {
    Json all = Json::object();
    for (const auto& [name, value] : values_)
        all[name.first][name.second][kTypeNames[value.index()]] = toJson(value);

    std::filesystem::path unfinished = file;
    unfinished += ".new";
    std::ofstream stream(unfinished);
    stream << all.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    stream.close();
    if (!stream) throw std::runtime_error(unfinished.string() + ": cannot be written");
    std::filesystem::rename(unfinished, file);
}

} // namespace easel
