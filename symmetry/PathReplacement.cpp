#include "symmetry/PathReplacement.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Lent.h"
#include "host/Suites.h"
#include "host/UnicodeString.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtMarks.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/Draft.h"
#include "symmetry/TransformedArt.h"
#include "symmetry/Unlocked.h"

#include <span>

namespace facetta {
namespace {

/// A bit of `TransferAttributes`: fill, stroke and appearance.
constexpr ai::uint32 kTransferStyle = 1U << 1;

Draft newArt(ai::int16 type, ai::int16 order, AIArtHandle place) {
    Draft art;
    ai::checkLent(ai::suites.art->NewArt(type, order, place, art.put()), art);
    return art;
}

void foldArt(AIArtHandle art, const Matrix& fold, Transform parts) {
    AIRealMatrix matrix = narrow(fold);
    transformArt(art, matrix, parts);
}

/// Gradients and patterns follow the art into sector 0; new geometry is in its place already.
void foldPaint(AIArtHandle art, const Matrix& fold) {
    if (fold != Matrix{}) foldArt(art, fold, Transform::PaintOnly);
}

/// The user's note is not among the attributes that the host transfers.
void carryNote(AIArtHandle from, AIArtHandle to) {
    if (!ai::suites.art->HasNote(from)) return;
    ai::UnicodeString note;
    ai::check(ai::suites.art->GetNote(from, note));
    ai::check(ai::suites.art->SetNote(to, note));
}

/// What plug-ins, this one among them, have stored with the source.
void carryEntries(const Unit& from, AIArtHandle to) {
    if (!from.marks.entries) return;
    ai::check(ai::suites.dictionary->Copy(dictionaryOf(to).get(), dictionaryOf(from.art).get()));
}

void carryOver(const Unit& source, AIArtHandle art, const Matrix& fold) {
    ai::check(ai::suites.art->TransferAttributes(source.art, art, kTransferAll));
    carryNote(source.art, art);
    carryEntries(source, art);
    foldPaint(art, fold);
}

Draft newPath(const Contour& contour, ai::int16 order, AIArtHandle place, PathTransfer& transfer) {
    Draft path = newArt(kPathArt, order, place);
    transfer.write(path.get(), contour.shape);
    return path;
}

void selectAll(std::span<const Draft> paths, const std::vector<Contour>& contours) {
    for (std::size_t i = 0; i < paths.size(); ++i)
        selectAnchors(paths[i].get(), contours[i].shape);
}

/// Members for `compound`, behind those that it has.
std::vector<Draft> newMembers(AIArtHandle compound, const std::vector<Contour>& contours,
                              PathTransfer& transfer) {
    std::vector<Draft> members;
    members.reserve(contours.size());
    for (const Contour& contour : contours)
        members.push_back(newPath(contour, kPlaceInsideOnBottom, compound, transfer));
    return members;
}

/// The members share one style, which the host may keep on each of them.
void styleMembers(std::span<const Draft> members, AIArtHandle like) {
    for (const Draft& member : members)
        ai::check(ai::suites.art->TransferAttributes(like, member.get(), kTransferStyle));
}

void keep(std::vector<Draft>& drafts) {
    for (Draft& draft : drafts)
        static_cast<void>(draft.release());
}

PlacedArt replaceByCompound(const Unit& source, const MirroredPath& mirrored, const Matrix& fold,
                            PathTransfer& transfer) {
    Draft compound = newArt(kCompoundPathArt, kPlaceBelow, source.art);
    std::vector<Draft> members = newMembers(compound.get(), mirrored.contours, transfer);
    styleMembers(members, source.art);
    carryOver(source, compound.get(), fold);
    selectAll(members, mirrored.contours);
    ai::check(ai::suites.art->DisposeArt(source.art));
    keep(members);
    return {compound.release(), mirrored.contours.front().images};
}

void replaceByPaths(const Unit& source, const MirroredPath& mirrored, const Matrix& fold,
                    PathTransfer& transfer, std::vector<PlacedArt>& placed) {
    std::vector<Draft> paths;
    paths.reserve(mirrored.contours.size());
    AIArtHandle inFront = source.art;
    for (const Contour& contour : mirrored.contours) {
        paths.push_back(newPath(contour, kPlaceBelow, inFront, transfer));
        inFront = paths.back().get();
        carryOver(source, inFront, fold);
    }
    selectAll(paths, mirrored.contours);
    ai::check(ai::suites.art->DisposeArt(source.art));
    for (std::size_t i = 0; i < paths.size(); ++i)
        placed.push_back({paths[i].release(), mirrored.contours[i].images, /*isPath*/ true});
}

} // namespace

void replacePath(const Unit& source, const MirroredPath& mirrored, const Matrix& fold,
                 PathTransfer& transfer, std::vector<PlacedArt>& placed) {
    placed.clear();
    if (mirrored.contours.empty()) return;
    if (mirrored.unchanged || mirrored.carried) {
        if (!mirrored.unchanged) foldArt(source.art, fold, Transform::Whole);
        placed.push_back({source.art, mirrored.contours.front().images, /*isPath*/ true});
        return;
    }
    if (mirrored.compound && mirrored.contours.size() > 1)
        placed.push_back(replaceByCompound(source, mirrored, fold, transfer));
    else
        replaceByPaths(source, mirrored, fold, transfer, placed);
}

PlacedArt replaceMembers(const Unit& compound, const MirroredPath& mirrored, const Matrix& fold,
                         PathTransfer& transfer) {
    const PlacedArt placed{compound.art, mirrored.contours.front().images};
    if (mirrored.unchanged) return placed;
    if (mirrored.carried) {
        AIRealMatrix matrix = narrow(fold);
        ContainerTransform{}.apply(compound.art, matrix, Transform::Whole);
        return placed;
    }
    const std::vector<AIArtHandle> formerMembers = childrenOf(compound.art);
    std::vector<Draft> members = newMembers(compound.art, mirrored.contours, transfer);
    styleMembers(members, pathsInside(compound.art).front());
    selectAll(members, mirrored.contours);
    for (const AIArtHandle former : formerMembers) {
        unlockAll(former, typeOf(former)); // a member can be locked by itself
        ai::check(ai::suites.art->DisposeArt(former));
    }
    keep(members);
    foldPaint(compound.art, fold);
    return placed;
}

} // namespace facetta
