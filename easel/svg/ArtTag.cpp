#include "easel/svg/ArtTag.h"

#include "easel/document/Layers.h"
#include "easel/svg/ArtAttributes.h"
#include "easel/svg/AsRead.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Element.h"

namespace easel::svg {
namespace {

std::string canonicalJson(const std::string& text) {
    const Ref<Dictionary> entries{new Dictionary};
    readDictionaryJson(text, *entries);
    return dictionaryJson(*entries);
}

void describeEntries(TagText& tag, const Art& art, const ArtSource* source, const XmlTree& tree) {
    const Dictionary* const entries = art.dictionaryIfAny();
    const std::string now = entries != nullptr ? dictionaryJson(*entries) : std::string{};
    const std::string members =
        art.type() == kCompoundPathArt ? membersText(membersOf(art)) : std::string{};
    std::string then;
    std::string membersThen;
    if (source != nullptr && source->node != kNoNode) {
        const Element element{tree, source->node};
        then = element.get("easel:dictionary");
        membersThen = element.get("easel:members");
        if (!then.empty() && now != then) then = canonicalJson(then);
    }
    if (now != then || source == nullptr) tag.set("easel:dictionary", now);
    if (members != membersThen) tag.set("easel:members", members);
}

} // namespace

void describe(TagText& tag, const Art& art, const ArtSource* source, const DrawingSource& drawing,
              bool namesLayers) {
    const AsRead asRead{drawing};
    const bool hasSheet = !drawing.sheet.empty();
    if (source != nullptr && asRead.isPlain(art, *source)) return;
    const std::vector<AttributeText> now = artAttributes(art, presentContent);
    const ContentOf former = [&](const Art& each) -> const ArtContent& {
        return asRead.content(each);
    };
    std::vector<AttributeText> then;
    if (source != nullptr) then = artAttributes(art, former);
    for (std::size_t i = 0; i < now.size(); ++i)
        if (then.empty() || now[i].text != then[i].text) tag.set(now[i].name, now[i].text);
    if (namesLayers && art.isLayer()) tag.set("inkscape:label", art.details().layer.title);
    describeEntries(tag, art, source, *drawing.tree);
    const bool hides = art.has(kArtHidden) || isGuide(art, presentContent);
    const bool wasHidden = source != nullptr && (isHidden(source->content) || isGuide(art, former));
    if (hides == wasHidden && source != nullptr) return;
    tag.setProperty("display", hides ? "none" : "", hasSheet && hides);
    if (!wasHidden || hides) return;
    if (hasSheet) tag.setProperty("display", "inline", true);
    if (!isContainer(art)) tag.setProperty("visibility", "visible", hasSheet);
}

} // namespace easel::svg
