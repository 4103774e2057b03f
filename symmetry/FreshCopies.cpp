#include "symmetry/FreshCopies.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
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

/// A host that cannot tell, tells that there is doubt.
bool liesWhere(AIArtHandle copy, AIArtHandle source, AIRealMatrix& image) {
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

bool isLastImage(AIArtHandle copy, AIArtHandle source, AIRealMatrix& image) {
    return MirrorTag::get(copy) == MirrorTag::kCopy && parentOf(copy) == parentOf(source) &&
           liesWhere(copy, source, image);
}

} // namespace

FreshCopies::FreshCopies(AILayerHandle layer, const FitState& fit) : fit_(fit) {
    for (const AIArtHandle art : openArtOnLayer(layer))
        open_.insert(art);
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
           std::ranges::equal(source, copy.subspan(1),
                              [this](AIArtHandle one, AIArtHandle other) {
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
    if (!isLastImage(last, source.art, images.back())) return {};
    const bool oneMore = behind.size() > length && !isOpen(behind[length]) &&
                         MirrorTag::get(behind[length]) == MirrorTag::kCopy;
    if (oneMore) return {};
    return length;
}

} // namespace facetta
