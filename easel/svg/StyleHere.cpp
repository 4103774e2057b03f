#include "easel/svg/StyleHere.h"

#include "easel/svg/Numbers.h"

namespace easel::svg {
namespace {

std::string valueIn(const Style& style, const std::string& property) {
    if (property == "opacity") return formatNumber(style.opacity);
    for (const Properties* known : {style.inherited.get(), &style.others, &style.unknown})
        if (known != nullptr && known->contains(property)) return known->at(property);
    return std::string{propertyNamed(property).initial};
}

} // namespace

void setProperties(TagText& tag, const Properties& wanted, const Style& here, bool isText,
                   bool inStyle) {
    for (const auto& [property, value] : wanted)
        if (valueIn(here, property) != value)
            tag.setProperty(property, value, inStyle || propertyNamed(property).name.empty());
    if (!here.inherited) return;
    for (const auto& [property, value] : *here.inherited) {
        const Property& known = propertyNamed(property);
        if (wanted.contains(property) || known.initial.empty() || value == known.initial) continue;
        if (known.text ? isText : !known.understood || isText)
            tag.setProperty(property, known.initial, inStyle);
    }
}

} // namespace easel::svg
