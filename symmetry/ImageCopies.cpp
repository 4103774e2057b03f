#include "symmetry/ImageCopies.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/GuideTag.h"
#include "symmetry/MirrorTag.h"
#include "symmetry/PathArt.h"
#include "symmetry/Unlocked.h"

namespace facetta {
namespace {

std::vector<AIArtHandle> mapAll(std::span<const AIArtHandle> set, const Matrix& map,
                                Duplicate duplicate, CopyMode mode) {
    CopyMaker copies{mode};
    ContainerTransform inPlace;
    AIRealMatrix matrix = narrow(map);
    std::vector<AIArtHandle> made;
    for (const AIArtHandle art : set) {
        const CopySource source = copySource(art, copies.keys());
        if (duplicate == Duplicate::Yes)
            made.push_back(copies.make(source, matrix, art));
        else
            inPlace.apply(art, matrix, source.parts);
    }
    return made;
}

} // namespace

bool holdsGuides(AIArtHandle art) { return !GuideTag::marksInside(art).empty(); }

Selected selectedOf(ai::int32 attributes, bool isPath) {
    if ((attributes & kArtSelected) == 0) return Selected::Nothing;
    if (!isPath) return Selected::Object;
    return (attributes & kArtFullySelected) != 0 ? Selected::Path : Selected::PartOfPath;
}

CopySource copySource(AIArtHandle art, const MarkKeys& keys) {
    const ai::int16 type = typeOf(art);
    return {.art = art,
            .marks = marksOf(art, keys),
            .holdsArt = type != kPathArt,
            .holdsGuides = holdsGuides(art),
            .holdsLocked = holdsLocked(art),
            .selected =
                selectedOf(attributesOf(art, kArtSelected | kArtFullySelected), type == kPathArt),
            .parts = type == kPluginArt ? Transform::AndTellPlugins : Transform::Whole};
}

AIArtHandle CopyMaker::make(const CopySource& source, AIRealMatrix& matrix, AIArtHandle behind) {
    AIArtHandle copy = nullptr;
    ai::check(ai::suites.art->DuplicateArt(source.art, kPlaceBelow, behind, &copy));
    if (source.holdsLocked)
        whileUnlocked(artInside(copy), [&] { containers_.apply(copy, matrix, source.parts); });
    else if (source.holdsArt)
        containers_.apply(copy, matrix, source.parts);
    else
        transformArt(copy, matrix, source.parts);
    if (source.holdsGuides)
        for (const AIArtHandle guide : GuideTag::marksInside(copy))
            GuideTag::clear(guide);
    if (mode_ == CopyMode::Live) {
        markAndLock(copy, source);
    } else {
        if (source.isMarked()) shedMarks(copy);
        if (!isSelectedAsItIs(source)) select(copy, source);
    }
    return copy;
}

/// The source's own mark, which came along with its dictionary, is overwritten. Locking comes last,
/// because the host changes no locked art.
void CopyMaker::markAndLock(AIArtHandle copy, const CopySource& source) const {
    const ai::Dictionary entries = dictionaryOf(copy);
    if (source.marks.guide && ai::suites.dictionary->IsKnown(entries.get(), keys_.guide))
        ai::check(ai::suites.dictionary->DeleteEntry(entries.get(), keys_.guide));
    ai::check(
        ai::suites.dictionary->SetIntegerEntry(entries.get(), keys_.mirror, MirrorTag::kCopy));
    // In two calls: the order in which a host sets the attributes of one call is not specified.
    if (source.selected != Selected::Nothing)
        ai::check(ai::suites.art->SetArtUserAttr(copy, kArtSelected, 0));
    ai::check(ai::suites.art->SetArtUserAttr(copy, kArtLocked, kArtLocked));
}

/// Whether a duplicate is selected with its source is the host's affair. Of paths there are many:
/// the first one tells.
void CopyMaker::select(AIArtHandle copy, const CopySource& source) {
    switch (source.selected) {
    case Selected::Nothing:
        return;
    case Selected::PartOfPath:
        ai::check(ai::suites.art->SetArtUserAttr(copy, kArtSelected, 0));
        return selectAnchors(copy, readPath(source.art, kArtSelected));
    case Selected::Path:
        if (!pathsStaySelected_) pathsStaySelected_ = attributesOf(copy, kArtFullySelected) != 0;
        if (*pathsStaySelected_) return;
        [[fallthrough]];
    case Selected::Object:
        ai::check(ai::suites.art->SetArtUserAttr(copy, kArtSelected, kArtSelected));
    }
}

void CopyMaker::shedMarks(AIArtHandle copy) const {
    const ai::Dictionary entries = dictionaryOf(copy);
    for (const AIDictKey key : {keys_.mirror, keys_.guide})
        if (ai::suites.dictionary->IsKnown(entries.get(), key))
            ai::check(ai::suites.dictionary->DeleteEntry(entries.get(), key));
}

std::vector<AIArtHandle> reflectCopies(std::span<const AIArtHandle> set, const PageAxes& axes,
                                       int rayIndex, Duplicate duplicate, CopyMode mode) {
    return mapAll(set, rayReflection(axes, rayIndex), duplicate, mode);
}

std::vector<AIArtHandle> rotateCopies(std::span<const AIArtHandle> set, const PageAxes& axes,
                                      double angle, Duplicate duplicate, CopyMode mode) {
    const Matrix clockwise = rotationAbout(axes.origin, -angle); // `angle` is counter-clockwise
    return mapAll(set, clockwise, duplicate, mode);
}

} // namespace facetta
