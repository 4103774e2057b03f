#include "symmetry/geometry/CutPath.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <utility>

namespace facetta {

namespace {

/// Whether a path runs along a ray so far that it shows.
bool isStretchOfRay(const Contact& contact) {
    return contact.alongRay && distance(contact.first.point, contact.last.point) > kTouchDepth;
}

void keepOpen(const PathShape& path, const std::vector<Contact>& cuts, std::vector<Stretch>& kept) {
    const auto lastIndex = static_cast<std::int32_t>(path.segments.size()) - 1;
    Crossing from{0, 0.0, path.segments.front().anchor, Ray::None, true};
    const Crossing end{lastIndex, 0.0, path.segments.back().anchor, Ray::None, true};
    for (const Contact& contact : cuts) {
        if (contact.before == Side::Inside) kept.push_back({from, contact.first});
        if (isStretchOfRay(contact)) kept.push_back({contact.first, contact.last, true});
        from = contact.last;
    }
    if (cuts.back().after == Side::Inside) kept.push_back({from, end});
}

void keepClosed(std::vector<Contact>& cuts, double start, std::vector<Stretch>& kept) {
    const auto leaves = [](const Contact& contact) { return contact.last.position(); };
    std::rotate(cuts.begin(), std::ranges::min_element(cuts, {}, leaves), cuts.end());
    const auto next = std::ranges::upper_bound(cuts, start, {}, leaves);
    std::rotate(cuts.begin(), next == cuts.begin() ? cuts.end() - 1 : next - 1, cuts.end());

    for (std::size_t i = 0; i < cuts.size(); ++i)
        if (cuts[i].after == Side::Inside)
            kept.push_back({cuts[i].last, cuts[i + 1 < cuts.size() ? i + 1 : 0].first});
    if (kept.empty())
        for (const Contact& contact : cuts)
            if (isStretchOfRay(contact)) kept.push_back({contact.first, contact.last, true});
}

} // namespace

Cut cutAtEdge(const Wedge& wedge, const PathShape& path, double start, CutScratch& scratch) {
    Contacts contacts = findContacts(wedge, path, scratch.contacts);
    const Side side = contacts.all.empty() ? contacts.whole : contacts.all.front().after;
    std::erase_if(contacts.all, [](const Contact& contact) { return !contact.cuts(); });
    Cut cut{.kept = scratch.kept.take()};
    cut.kept.clear();
    if (contacts.all.empty()) {
        cut.whole = side != Side::Outside;
        cut.wholeAlongRay = contacts.whole == Side::AlongRay;
    } else if (path.closed) {
        keepClosed(contacts.all, start, cut.kept);
    } else {
        keepOpen(path, contacts.all, cut.kept);
    }
    scratch.contacts.contacts.giveBack(std::move(contacts.all));
    return cut;
}

namespace {

/// Makes `end`, a copy of an anchor next to a place of the path, the new anchor at that place. One
/// between two selected anchors is selected, so that a wholly selected path stays so.
void moveTo(const PathShape& path, const Crossing& place, PathSegment& end) {
    const std::vector<PathSegment>& segments = path.segments;
    const auto index = static_cast<std::size_t>(place.segment);
    const PathSegment& next = segments[index + 1 < segments.size() ? index + 1 : 0];
    const bool selected =
        segments[index].selection == selection::kAnchor && next.selection == selection::kAnchor;
    end.anchor = end.in = end.out = place.point;
    end.corner = true;
    end.selection = selected ? selection::kAnchor : selection::kNone;
}

/// Sets the handles of a curve that is cut down to the part from `from` to `to`.
void shortenHandles(const Cubic& curve, double from, double to, PathSegment& start,
                    PathSegment& end) {
    const bool straight = curve.p0 == curve.p1 && curve.p2 == curve.p3;
    if (straight) { // a part of it would get handles that lie on it, which is no straight line
        start.out = start.anchor;
        end.in = end.anchor;
        return;
    }
    const Cubic part = between(curve, from, to);
    start.out = rounded(part.p1);
    end.in = rounded(part.p2);
}

} // namespace

std::vector<PathSegment> extract(const PathShape& path, const Stretch& stretch, std::size_t room,
                                 std::vector<PathSegment> storage) {
    const auto& [from, to, alongRay] = stretch;
    const auto count = static_cast<std::int32_t>(path.segments.size());
    const bool pastFirst = to.position() <= from.position();
    const std::int32_t lastCurve = to.segment + (pastFirst ? count : 0);
    const std::int32_t endAnchor = lastCurve + (to.onAnchor ? 0 : 1);

    std::vector<PathSegment> piece = std::move(storage);
    piece.clear();
    piece.reserve(room * (static_cast<std::size_t>(endAnchor - from.segment) + 1));
    const auto anchors = path.segments.begin();
    piece.assign(anchors + from.segment, anchors + std::min(endAnchor, count));
    if (endAnchor > count) piece.insert(piece.end(), anchors, anchors + (endAnchor - count));
    piece.push_back(anchors[endAnchor % count]);
    if (!from.onAnchor) moveTo(path, from, piece.front());
    if (!to.onAnchor) moveTo(path, to, piece.back());

    const bool oneCurve = lastCurve == from.segment;
    if (!from.onAnchor || (oneCurve && !to.onAnchor))
        shortenHandles(curveAt(path, static_cast<std::size_t>(from.segment)), from.parameter,
                       oneCurve ? to.parameter : 1.0, piece[0], piece[1]);
    if (!to.onAnchor && !oneCurve)
        shortenHandles(curveAt(path, static_cast<std::size_t>(to.segment)), 0.0, to.parameter,
                       piece[piece.size() - 2], piece.back());
    return piece;
}

} // namespace facetta
