#include "symmetry/ClipGroup.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/Draft.h"
#include "symmetry/ImageCopies.h"
#include "symmetry/Unlocked.h"

#include <algorithm>

namespace facetta {
namespace {

constexpr ai::int32 kSelectionAttributes = kArtSelected | kArtFullySelected;

void writePath(AIArtHandle path, const PathShape& shape, PathTransfer& transfer) {
    const bool isSelected = attributesOf(path, kArtSelected) != 0;
    transfer.write(path, shape);
    if (!isSelected) return;
    ai::check(ai::suites.art->SetArtUserAttr(path, kArtSelected, 0));
    selectAnchors(path, shape);
}

void writeMask(AIArtHandle mask, const SectorMask& part, PathTransfer& transfer) {
    whileUnlocked({mask}, [&] {
        if (typeOf(mask) == kPathArt) return writePath(mask, part.members.front(), transfer);
        MirroredPath members;
        members.compound = true;
        for (const PathShape& member : part.members)
            members.contours.push_back({.shape = member});
        Unit compound;
        compound.art = mask;
        static_cast<void>(replaceMembers(compound, members, {}, transfer));
    });
}

/// In Plain mode even on a live layer: what is made here is source art.
Draft duplicateOf(AIArtHandle group, AIArtHandle behind) {
    CopyMaker copies{CopyMode::Plain};
    AIRealMatrix inPlace = narrow(Matrix{});
    Draft duplicate;
    *duplicate.put() = copies.make(copySource(group, copies.keys()), inPlace, behind);
    return duplicate;
}

bool isWhole(const std::vector<SectorMask>& parts, const std::vector<PathShape>& members) {
    return parts.size() == 1 && std::ranges::equal(parts.front().members, members,
                                                   [](const auto& one, const auto& other) {
                                                       return sameShape(one, other);
                                                   });
}

} // namespace

AIArtHandle maskOf(AIArtHandle group) {
    for (const AIArtHandle member : childrenOf(group)) {
        const ai::int16 type = typeOf(member);
        const bool hasOutline = type == kPathArt || type == kCompoundPathArt;
        if (hasOutline && attributesOf(member, kArtIsClipMask) != 0) return member;
    }
    return nullptr;
}

std::vector<AIArtHandle> pathsOf(AIArtHandle mask) {
    if (mask == nullptr) return {};
    if (typeOf(mask) == kPathArt) return {mask};
    return pathsInside(mask);
}

void cutClipGroup(const Unit& group, const MirrorFrame& frame, CutScratch& scratch,
                  PathTransfer& transfer, std::vector<PlacedArt>& placed) {
    placed.assign(1, {.art = group.art});
    const AIArtHandle mask = maskOf(group.art);
    const std::vector<AIArtHandle> paths = pathsOf(mask);
    if (paths.empty()) return;
    std::vector<PathShape> members;
    for (const AIArtHandle path : paths)
        transfer.read(path, attributesOf(path, kSelectionAttributes), members.emplace_back());
    const std::vector<SectorMask> parts =
        cutMask(frame, members, fillRuleOf(paths.front()), scratch);
    if (parts.empty() || isWhole(parts, members)) return;

    std::vector<Draft> others;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        others.push_back(duplicateOf(group.art, i == 1 ? group.art : others.back().get()));
        writeMask(maskOf(others.back().get()), parts[i], transfer);
    }
    writeMask(mask, parts.front(), transfer);
    for (Draft& other : others)
        placed.push_back({.art = other.release()});
}

} // namespace facetta
