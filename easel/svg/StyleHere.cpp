#include "easel/svg/StyleHere.h"

#include "easel/svg/Numbers.h"

namespace easel::svg {
namespace {

std::string valueIn(const Style& style, const std::string& property) {
    if (property == "opacity") return formatNumber(style.opacity);
    for (const Properties* known : {style.inherited.get(), &style.others, &style.unknown})
        if (known != nullptr && known->contains(property)) return known->at(property);
    return std::string{initialValue(property)};
}

} // namespace

void setProperties(TagText& tag, const Properties& wanted, const Style& here, bool isText,
                   bool inStyle) {
    for (const auto& [property, value] : wanted)
        if (valueIn(here, property) != value)
            tag.setProperty(property, value, inStyle || !isProperty(property));
    if (!here.inherited) return;
    for (const auto& [property, value] : *here.inherited) {
        const std::string initial{initialValue(property)};
        if (wanted.contains(property) || initial.empty() || value == initial) continue;
        if (isTextProperty(property) ? isText : !isUnderstood(property) || isText)
            tag.setProperty(property, initial, inStyle);
    }
}

} // namespace easel::svg
