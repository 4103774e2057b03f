#include "symmetry/MirrorTag.h"

#include "host/Error.h"
#include "symmetry/ArtMarks.h"
#include "symmetry/ArtTree.h"

namespace facetta::MirrorTag {
namespace {

/// Whether `wanted` holds for the mark of an object that contains `art`.
template <typename Wanted> bool anyAncestor(AIArtHandle art, Wanted wanted) {
    if (art == nullptr) return false;
    for (AIArtHandle parent = parentOf(art); parent != nullptr; parent = parentOf(parent))
        if (wanted(get(parent))) return true;
    return false;
}

} // namespace

AIDictKey key() { return ai::suites.dictionary->Key("FTMirroredv1"); }

void set(AIArtHandle art, ai::int32 value) {
    const ai::Dictionary entries = dictionaryOf(art);
    if (!entries) return;
    const AIDictKey mark = key();
    if (!ai::suites.dictionary->IsKnown(entries.get(), mark))
        ai::check(ai::suites.dictionary->SetIntegerEntry(entries.get(), mark, value));
}

ai::int32 get(AIArtHandle art) {
    const ai::Dictionary entries = dictionaryOf(art);
    return entries ? mirrorMarkIn(entries.get(), key()) : kSource;
}

bool clear(AIArtHandle art) {
    const ai::Dictionary entries = dictionaryOf(art);
    const AIDictKey mark = key();
    if (!entries || !ai::suites.dictionary->IsKnown(entries.get(), mark)) return false;
    ai::check(ai::suites.dictionary->DeleteEntry(entries.get(), mark));
    return true;
}

bool anyAncestorTagged(AIArtHandle art) {
    return anyAncestor(art, [](ai::int32 mark) { return mark != kSource; });
}

bool anyAncestorIsCopy(AIArtHandle art) {
    return anyAncestor(art, [](ai::int32 mark) { return mark == kCopy; });
}

} // namespace facetta::MirrorTag
