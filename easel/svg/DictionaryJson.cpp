#include "easel/svg/DictionaryJson.h"

#include "easel/core/Text.h"
#include "easel/svg/Base64.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

namespace easel::svg {
namespace {

using Json = nlohmann::ordered_json;

/// Entries nested deeper are refused on reading; the dictionary itself allows no more.
constexpr int kMostNesting = 32;

[[noreturn]] void fail(const std::string& what) { throw std::invalid_argument(what); }

// Text that is not UTF-8 cannot stand in JSON; it is kept byte by byte under another name.

bool isUtf8(std::string_view text) {
    while (!text.empty())
        if (!takeUtf8(text)) return false;
    return true;
}

void putText(Json& item, const char* name, std::string_view text) {
    if (isUtf8(text))
        item[name] = text;
    else
        item[std::string{name} + "Bytes"] = encodeBase64(std::as_bytes(std::span{text}));
}

std::string takeText(const Json& item, const std::string& name) {
    if (const auto plain = item.find(name); plain != item.end()) return plain->get<std::string>();
    const auto bytes = decodeBase64(item.at(name + "Bytes").get<std::string>());
    if (!bytes) fail(name + "Bytes is no base64");
    return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
}

// One pair of functions for each type of entry.

Json toJson(const Dictionary& dictionary);
void fromJson(const Json& json, Dictionary& dictionary, int depth);
Json valueJson(const Value& value);
Value jsonValue(const Json& item, int depth);

struct Writer {
    Json operator()(std::monostate) const { return {{"type", "unknown"}}; }
    Json operator()(ai::int32 value) const { return {{"type", "integer"}, {"value", value}}; }
    Json operator()(Boolean value) const { return {{"type", "boolean"}, {"value", value.value}}; }
    Json operator()(AIReal value) const { return {{"type", "real"}, {"value", value}}; }
    Json operator()(const SharedText& value) const {
        Json item{{"type", "string"}};
        putText(item, "value", *value);
        return item;
    }
    Json operator()(const Ref<Dictionary>& value) const {
        return {{"type", "dictionary"}, {"value", toJson(*value)}};
    }
    Json operator()(const Ref<Array>& value) const {
        Json list = Json::array();
        for (const Value& each : value->values())
            list.push_back(valueJson(each));
        return {{"type", "array"}, {"value", std::move(list)}};
    }
    Json operator()(const Binary& value) const {
        return {{"type", "binary"}, {"value", encodeBase64(*value)}};
    }
    Json operator()(AIRealPoint value) const {
        return {{"type", "point"}, {"value", {value.h, value.v}}};
    }
    Json operator()(const AIRealMatrix& m) const {
        return {{"type", "matrix"}, {"value", {m.a, m.b, m.c, m.d, m.tx, m.ty}}};
    }
    Json operator()(const UnicodeText& value) const {
        Json units = Json::array(); // lone surrogates may occur, so no text
        for (const char16_t unit : *value)
            units.push_back(static_cast<unsigned>(unit));
        return {{"type", "unicode"}, {"value", std::move(units)}};
    }
};

Json valueJson(const Value& value) { return std::visit(Writer{}, value); }

Json toJson(const Dictionary& dictionary) {
    Json list = Json::array();
    for (const DictionaryItem& item : dictionary.sortedItems()) {
        if (isTemporary(item.key)) continue;
        Json entry = Json::object();
        putText(entry, "key", *item.key);
        entry.update(valueJson(item.value));
        list.push_back(std::move(entry));
    }
    return list;
}

/// Within the type's range; JSON's numbers know no such limit.
template <typename Integer> Integer integerOf(const Json& json) {
    if (!json.is_number_integer()) fail("an integer entry is no whole number");
    const auto value = json.get<std::int64_t>();
    const bool fits = value >= std::numeric_limits<Integer>::min() &&
                      value <= std::numeric_limits<Integer>::max();
    if (!fits) fail("an integer entry is too large");
    return static_cast<Integer>(value);
}

/// JSON has no word for what is not finite: such a real is written as null.
AIReal realOf(const Json& json) {
    if (json.is_null()) return std::numeric_limits<AIReal>::quiet_NaN();
    const double value = json.get<double>();
    if (!(std::abs(value) <= std::numeric_limits<AIReal>::max())) fail("a real entry is too large");
    return static_cast<AIReal>(value);
}

template <std::size_t N> std::array<AIReal, N> reals(const Json& item) {
    std::array<AIReal, N> numbers{};
    for (std::size_t i = 0; i < N; ++i)
        numbers[i] = realOf(item.at("value").at(i));
    return numbers;
}

Value arrayValue(const Json& item, int depth) {
    Ref<Array> array{new Array};
    for (const Json& element : item.at("value"))
        array->append(jsonValue(element, depth));
    return array;
}

Value dictionaryValue(const Json& item, int depth) {
    Ref<Dictionary> dictionary{new Dictionary};
    fromJson(item.at("value"), *dictionary, depth);
    return dictionary;
}

Value binaryValue(const Json& item, int) {
    auto bytes = decodeBase64(item.at("value").get<std::string>());
    if (!bytes) fail("a binary entry is no base64");
    return std::make_shared<const std::vector<std::byte>>(std::move(*bytes));
}

Value pointValue(const Json& item, int) {
    const auto n = reals<2>(item);
    return AIRealPoint{n[0], n[1]};
}

Value matrixValue(const Json& item, int) {
    const auto n = reals<6>(item);
    return AIRealMatrix{n[0], n[1], n[2], n[3], n[4], n[5]};
}

Value unicodeEntry(const Json& item, int) {
    std::u16string text;
    for (const Json& unit : item.at("value"))
        text += integerOf<char16_t>(unit);
    return unicodeValue(std::move(text));
}

struct Reader {
    std::string_view type;
    Value (*read)(const Json& item, int depth);
};
constexpr Reader kReaders[] = {
    {"unknown", [](const Json&, int) { return Value{}; }},
    {"integer",
     [](const Json& item, int) { return Value{integerOf<ai::int32>(item.at("value"))}; }},
    {"boolean", [](const Json& item, int) { return Value{Boolean{item.at("value").get<bool>()}}; }},
    {"real", [](const Json& item, int) { return Value{realOf(item.at("value"))}; }},
    {"string", [](const Json& item, int) { return textValue(takeText(item, "value")); }},
    {"dictionary", dictionaryValue},
    {"array", arrayValue},
    {"binary", binaryValue},
    {"point", pointValue},
    {"matrix", matrixValue},
    {"unicode", unicodeEntry},
};

Value jsonValue(const Json& item, int depth) {
    if (depth > kMostNesting) fail("its entries are nested too deeply");
    const std::string type = item.at("type").get<std::string>();
    for (const Reader& reader : kReaders)
        if (reader.type == type) return reader.read(item, depth + 1);
    fail("an entry has the unknown type " + type);
}

void fromJson(const Json& json, Dictionary& dictionary, int depth) {
    if (!json.is_array()) fail("it is no list");
    for (const Json& item : json) {
        const Key key = internKey(takeText(item, "key"));
        if (isTemporary(key)) fail("temporary entries are not kept in files");
        dictionary.set(key, jsonValue(item, depth));
    }
}

} // namespace

std::string dictionaryJson(const Dictionary& dictionary) {
    const Json list = toJson(dictionary);
    return list.empty() ? std::string{} : list.dump();
}

void readDictionaryJson(std::string_view text, Dictionary& dictionary) {
    try {
        fromJson(Json::parse(text), dictionary, 0);
    } catch (const Json::exception&) {
        fail("it is no list of entries with key, type and value");
    }
}

} // namespace easel::svg
