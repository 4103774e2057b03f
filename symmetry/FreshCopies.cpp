#include "symmetry/FreshCopies.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIPathSuite.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtTree.h"
#include "symmetry/MirrorTag.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace facetta {
namespace {

/// Points. Far above the rounding of the host's 32-bit reals, far below what a user sees.
constexpr AIReal kSamePlace = 0.05F;

bool isNear(AIReal one, AIReal other) { return std::abs(one - other) <= kSamePlace; }

bool isNear(AIRealPoint one, AIRealPoint other) {
    return isNear(one.h, other.h) && isNear(one.v, other.v);
}

AIRealPoint mapped(const AIRealMatrix& map, AIRealPoint point) {
    return {map.a * point.h + map.c * point.v + map.tx, map.b * point.h + map.d * point.v + map.ty};
}

// Whether the copy lies where `image` puts the source. A host that cannot tell, tells that there is
// doubt.

bool beginsWhere(AIArtHandle copy, AIArtHandle source, const AIRealMatrix& image) {
    AIPathSegment is{};
    AIPathSegment from{};
    const auto& path = *ai::suites.path;
    if (path.GetPathSegments(copy, 0, 1, &is) != kNoErr ||
        path.GetPathSegments(source, 0, 1, &from) != kNoErr)
        return false;
    return isNear(is.p, mapped(image, from.p)) && isNear(is.in, mapped(image, from.in)) &&
           isNear(is.out, mapped(image, from.out));
}

bool spansWhere(AIArtHandle copy, AIArtHandle source, AIRealMatrix& image) {
    if (typeOf(copy) != typeOf(source)) return false; // that of another one, which is gone
    AIRealRect is{};
    AIRealRect wanted{};
    const auto& art = *ai::suites.art;
    if (art.GetArtTransformBounds(copy, nullptr, kNoStrokeBounds, &is) != kNoErr ||
        art.GetArtTransformBounds(source, &image, kNoStrokeBounds, &wanted) != kNoErr)
        return false;
    return isNear(is.left, wanted.left) && isNear(is.top, wanted.top) &&
           isNear(is.right, wanted.right) && isNear(is.bottom, wanted.bottom);
}

bool isContainer(const Unit& unit) {
    return unit.kind != UnitKind::Path && unit.kind != UnitKind::Whole;
}

bool liesWhere(AIArtHandle copy, const Unit& source, AIRealMatrix& image) {
    return parentOf(copy) == parentOf(source.art) &&
           (source.kind == UnitKind::Path ? beginsWhere(copy, source.art, image)
                                          : spansWhere(copy, source.art, image));
}

} // namespace

FreshCopies::FreshCopies(AILayerHandle layer, const FitState& fit) : fit_(fit) {
    for (const AIArtHandle art : openArtOnLayer(layer))
        open_.insert(art);
}

bool FreshCopies::isCopy(AIArtHandle art) const {
    return marksOf(art, keys_).mirror == MirrorTag::kCopy;
}

bool FreshCopies::isOld(AIArtHandle art) const { return stampOfArt(art) <= fit_.stamp; }

std::uint64_t FreshCopies::newestOf(std::span<const AIArtHandle> objectAndMembers) const {
    if (fit_.reach == StampReach::Descendants) return stampOfArt(objectAndMembers.front());
    std::uint64_t newest = 0;
    for (const AIArtHandle art : objectAndMembers)
        newest = std::max(newest, stampOfArt(art));
    return newest;
}

bool FreshCopies::locksAgree(std::span<const AIArtHandle> source,
                             std::span<const AIArtHandle> copy) const {
    return !isOpen(copy.front()) &&
           std::ranges::equal(source, copy.subspan(1), [this](AIArtHandle one, AIArtHandle other) {
               return isOpen(one) == isOpen(other);
           });
}

std::optional<std::size_t> FreshCopies::passedOver(const Unit& source,
                                                   std::span<const AIArtHandle> behind,
                                                   std::span<AIRealMatrix> images) const {
    std::vector<AIArtHandle> whole{source.art};
    if (isContainer(source)) {
        const std::vector<AIArtHandle> inside = artInside(source.art);
        whole.insert(whole.end(), inside.begin(), inside.end());
    }
    const std::span<const AIArtHandle> members = std::span{whole}.subspan(1);
    const std::size_t length = members.size() + images.size() * whole.size();
    // What the list leaves out, as it does the results of plug-in groups, nobody can judge.
    if (behind.size() < length || !std::ranges::equal(members, behind.first(members.size())))
        return {};
    std::uint64_t stamp = newestOf(whole);
    for (auto rest = behind.first(length).subspan(members.size()); !rest.empty();
         rest = rest.subspan(whole.size())) {
        const std::span<const AIArtHandle> copy = rest.first(whole.size());
        if (!locksAgree(members, copy)) return {};
        const std::uint64_t next = newestOf(copy);
        if (next <= stamp) return {};
        stamp = next;
    }
    if (stamp > fit_.stamp) return {};
    if (images.empty()) return length;
    const AIArtHandle last = behind[length - whole.size()];
    if (!isCopy(last) || !liesWhere(last, source, images.back())) return {};
    const bool oneMore =
        behind.size() > length && !isOpen(behind[length]) && isCopy(behind[length]);
    if (oneMore) return {};
    return length;
}

} // namespace facetta
