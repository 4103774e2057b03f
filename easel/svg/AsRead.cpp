#include "easel/svg/AsRead.h"

#include "easel/svg/ArtAttributes.h"

#include <algorithm>

namespace easel::svg {
namespace {

bool sameSegments(const Segments& a, const Segments& b) {
    return std::ranges::equal(a, b, [&](const AIPathSegment& p, const AIPathSegment& q) {
        return same(p.p, q.p) && same(p.in, q.in) && same(p.out, q.out);
    });
}

} // namespace

const ArtContent& presentContent(const Art& art) { return art.content(); }

bool isHidden(const ArtContent& content) {
    return (content.attributes & static_cast<std::uint32_t>(kArtHidden)) != 0;
}

const ArtContent& AsRead::content(const Art& art) const {
    const ArtSource* const source = source_.find(art);
    return source != nullptr ? source->content : art.content();
}

bool AsRead::hasSameState(const Art& art, const ArtSource& source) const {
    const ContentOf asRead = [&](const Art&) -> const ArtContent& { return source.content; };
    return artAttributes(art, presentContent) == artAttributes(art, asRead) &&
           art.has(kArtHidden) == isHidden(source.content);
}

bool AsRead::hasSameShape(const Art& art) const {
    const ArtSource* const source = source_.find(art);
    if (source == nullptr) return false;
    if (art.type() == kCompoundPathArt) {
        std::vector<AIArtHandle> members;
        for (const Art* member = art.lastChild(); member != nullptr; member = member->previous()) {
            members.push_back(member->handle());
            if (!hasSameShape(*member)) return false;
        }
        return members == source->parts;
    }
    if (source->stamp == art.stamp()) return true;
    return art.content().closed == source->content.closed &&
           sameSegments(*art.content().segments, *source->content.segments) &&
           matrixOf(art.details().matrix) == matrixOf(source->content.details->matrix);
}

bool AsRead::hasSameMasks(const Art& group, const ArtSource& source) const {
    if (group.content().clipped != source.content.clipped) return false;
    std::vector<AIArtHandle> masks;
    for (const Art* art = group.lastChild(); art != nullptr; art = art->previous()) {
        if (!isClipMask(*art)) continue;
        const ArtSource* const origin = source_.find(*art);
        if (origin == nullptr || !hasSameShape(*art) || !hasSameState(*art, *origin) ||
            art->style().path.evenodd != origin->content.style->path.evenodd)
            return false;
        masks.push_back(art->handle());
    }
    return masks == source.parts;
}

bool AsRead::isPlain(const Art& art, const ArtSource& source) const {
    return source.stamp == art.stamp() && art.type() != kCompoundPathArt && !art.isLayer() &&
           art.content().attributes == source.content.attributes &&
           art.content().details.sharesWith(source.content.details) &&
           art.dictionaryIfAny() == nullptr;
}

const Art* AsRead::onlyShown(const Art& group, const ArtSource& source) const {
    const Art* shown = nullptr;
    for (const Art* art = group.firstChild(); art != nullptr; art = art->next()) {
        if (isClipMask(*art)) continue;
        if (shown != nullptr) return nullptr;
        shown = art;
    }
    const ArtSource* const origin = shown != nullptr ? source_.find(*shown) : nullptr;
    const bool isOwn = origin != nullptr && origin->node == source.node;
    const bool same = isOwn && hasSameMasks(group, source) && hasSameState(group, source) &&
                      group.dictionaryIfAny() == nullptr && group.style().opacity == 1;
    return same ? shown : nullptr;
}

const Effects* movedEffects(const Art& art) {
    const Effects* const effects = effectsIn(art.style());
    const bool moved =
        effects != nullptr && effects->spatial && matrixOf(art.style().foreignMatrix) != Matrix{};
    return moved ? effects : nullptr;
}

} // namespace easel::svg
