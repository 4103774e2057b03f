#include "easel/svg/ShapeTag.h"

#include "easel/svg/ArtAttributes.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <set>

namespace easel::svg {
namespace {

/// Attributes of a shape's element that say where it lies, and those by which drawing programs make
/// the outline anew.
bool isGeometry(std::string_view name) {
    constexpr std::string_view kNames[] = {"x",
                                           "y",
                                           "width",
                                           "height",
                                           "rx",
                                           "ry",
                                           "cx",
                                           "cy",
                                           "r",
                                           "x1",
                                           "y1",
                                           "x2",
                                           "y2",
                                           "d",
                                           "points",
                                           "pathLength",
                                           "inkscape:original-d",
                                           "inkscape:path-effect",
                                           "inkscape:rounded",
                                           "inkscape:randomized",
                                           "inkscape:flatsided"};
    return name.starts_with("sodipodi:") ? name != "sodipodi:insensitive"
                                         : std::ranges::find(kNames, name) != std::end(kNames);
}

/// An open path's outermost handles draw nothing and so have no place in path data.
std::string endsText(const Art& path, const UserSpace& space) {
    const auto segments = path.segments();
    if (segments.empty() || path.content().closed) return {};
    const auto same = [](AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; };
    const AIPathSegment& first = segments.front();
    const AIPathSegment& last = segments.back();
    if (same(first.in, first.p) && same(last.out, last.p)) return {};
    return space.point(first.in) + ' ' + space.point(last.out);
}

} // namespace

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

} // namespace easel::svg
