#include "easel/svg/ArtTag.h"

#include "easel/svg/ArtAttributes.h"
#include "easel/svg/AsRead.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <set>

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

/// Attributes of a shape's element that say where it lies, and those by which drawing programs make
/// the outline anew.
bool isGeometry(std::string_view name) {
    constexpr std::string_view kPlaces[] = {"x",  "y",  "width",  "height",    "rx", "ry",
                                            "cx", "cy", "r",      "x1",        "y1", "x2",
                                            "y2", "d",  "points", "pathLength"};
    constexpr std::string_view kMakings[] = {"inkscape:original-d", "inkscape:path-effect",
                                             "inkscape:rounded", "inkscape:randomized",
                                             "inkscape:flatsided"};
    if (name.starts_with("sodipodi:")) return name != "sodipodi:insensitive";
    return std::ranges::find(kPlaces, name) != std::end(kPlaces) ||
           std::ranges::find(kMakings, name) != std::end(kMakings);
}

/// An open path's outermost handles draw nothing and so have no place in path data.
std::string endsText(const Art& path, const UserSpace& space) {
    const auto segments = path.segments();
    if (segments.empty() || path.content().closed) return {};
    const AIPathSegment& first = segments.front();
    const AIPathSegment& last = segments.back();
    if (same(first.in, first.p) && same(last.out, last.p)) return {};
    return space.point(first.in) + ' ' + space.point(last.out);
}

std::string valueIn(const Style& style, const std::string& property) {
    if (property == "opacity") return formatNumber(style.opacity);
    for (const Properties* known : {style.inherited.get(), &style.others, &style.unknown})
        if (known != nullptr && known->contains(property)) return known->at(property);
    return std::string{propertyNamed(property).initial};
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

void setShape(TagText& tag, const Art& art, const UserSpace& space) {
    std::string data;
    for (const Art* member : membersOf(art))
        data += space.path(member->segments(), member->content().closed);
    tag.set("d", data.empty() ? " " : data);
    tag.set("easel:ends", art.type() == kPathArt ? endsText(art, space) : std::string{});
}

void reshape(TagText& tag, const Element& element, const Art& art, const UserSpace& space) {
    for (const XmlAttribute& attribute : element.attributes())
        if (isGeometry(attribute.name)) tag.set(attribute.name, {});
    tag.rename(std::string{element.tree().prefix()} + "path");
    setShape(tag, art, space);
}

void restyle(TagText& tag, const ArtStyle& now, const ArtStyle& then, const UserSpace& space,
             const ServerText& servers, bool inStyle) {
    const ServerText compared = [](const Definition& definition, const AIRealMatrix& m) {
        std::string text = definition.id();
        for (const AIReal entry : {m.a, m.b, m.c, m.d, m.tx, m.ty})
            text += ' ' + formatNumber(entry);
        return text;
    };
    const auto before = styleText(then, space, compared);
    const auto after = styleText(now, space, compared);
    std::set<int> changed;
    for (std::size_t i = 0; i < after.size(); ++i)
        if (after[i].text != before[i].text) changed.insert(after[i].kind);
    if (changed.empty()) return;
    for (const PropertyText& each : styleText(now, space, servers))
        if (changed.contains(each.kind)) tag.setProperty(each.name, each.text, inStyle);
}

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
