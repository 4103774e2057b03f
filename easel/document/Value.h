#pragma once

#include "easel/document/Counted.h"
#include "host/Art.h"

#include <cstddef>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace easel {

class Dictionary;
class Array;

/// Booleans are a type of their own, apart from integers.
struct Boolean {
    bool value = false;
    bool operator==(const Boolean&) const = default;
};
using SharedText = std::shared_ptr<const std::string>;
using UnicodeText = std::shared_ptr<const std::u16string>;
using Binary = std::shared_ptr<const std::vector<std::byte>>;

/// What a dictionary or array holds under one key or index. Empty: of no known type.
using Value = std::variant<std::monostate, ai::int32, Boolean, AIReal, SharedText, Ref<Dictionary>,
                           Ref<Array>, Binary, AIRealPoint, AIRealMatrix, UnicodeText>;

/// A copy that shares nothing that can change.
[[nodiscard]] Value deepCopy(const Value& value);

[[nodiscard]] inline Value textValue(std::string text) {
    return std::make_shared<const std::string>(std::move(text));
}
[[nodiscard]] inline Value unicodeValue(std::u16string text) {
    return std::make_shared<const std::u16string>(std::move(text));
}

} // namespace easel
