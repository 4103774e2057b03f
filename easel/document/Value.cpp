#include "easel/document/Value.h"

#include "easel/document/Dictionary.h"

namespace easel {
Value deepCopy(const Value& value) {
    if (const auto* dictionary = std::get_if<Ref<Dictionary>>(&value)) {
        Ref<Dictionary> copy(new Dictionary);
        copy->copyFrom(**dictionary);
        return copy;
    }
    if (const auto* array = std::get_if<Ref<Array>>(&value)) {
        Ref<Array> copy(new Array);
        copy->copyFrom(**array);
        return copy;
    }
    return value; // texts and bytes never change, so they are shared
}

Value textValue(std::string text) { return std::make_shared<const std::string>(std::move(text)); }

Value unicodeValue(std::u16string text) {
    return std::make_shared<const std::u16string>(std::move(text));
}

} // namespace easel
