#include "symmetry/GuideTag.h"

#include "host/Error.h"
#include "symmetry/ArtMarks.h"
#include "symmetry/ArtTree.h"
#include "symmetry/MirrorTag.h"

namespace facetta::GuideTag {

AIDictKey key() { return ai::suites.dictionary->Key("FTAxisGuide"); }

void set(AIArtHandle art) {
    const ai::Dictionary entries = dictionaryOf(art);
    if (!entries || ai::suites.dictionary->IsKnown(entries.get(), MirrorTag::key())) return;
    ai::check(ai::suites.dictionary->SetBooleanEntry(entries.get(), key(), true));
}

bool has(AIArtHandle art) {
    const ai::Dictionary entries = dictionaryOf(art);
    return entries && ai::suites.dictionary->IsKnown(entries.get(), key());
}

void clear(AIArtHandle art) {
    const ai::Dictionary entries = dictionaryOf(art);
    const AIDictKey mark = key();
    if (entries && ai::suites.dictionary->IsKnown(entries.get(), mark))
        ai::check(ai::suites.dictionary->DeleteEntry(entries.get(), mark));
}

std::vector<AIArtHandle> marksInside(AIArtHandle container) {
    std::vector<AIArtHandle> inside = artInside(container);
    std::erase_if(inside, [](AIArtHandle art) { return !has(art); });
    return inside;
}

} // namespace facetta::GuideTag
