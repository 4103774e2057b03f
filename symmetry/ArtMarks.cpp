#include "symmetry/ArtMarks.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/GuideTag.h"
#include "symmetry/MirrorTag.h"

#include <algorithm>
#include <array>

namespace facetta {

ai::Dictionary dictionaryOf(AIArtHandle art) {
    ai::Dictionary entries;
    if (art != nullptr) ai::checkLent(ai::suites.art->GetDictionary(art, entries.put()), entries);
    return entries;
}

bool wasRead(AIErr error) {
    constexpr std::array kNothingToRead = {kNoSuchKey, kNoSuchEntry, kWrongEntryType,
                                           kNoConversionErr, kBadParameterErr};
    if (std::ranges::find(kNothingToRead, error) != kNothingToRead.end()) return false;
    ai::check(error);
    return true;
}

MarkKeys markKeys() { return {MirrorTag::key(), GuideTag::key()}; }

ai::int32 mirrorMarkIn(AIDictionaryRef entries, AIDictKey key) {
    ai::int32 value = MirrorTag::kCopy;
    if (wasRead(ai::suites.dictionary->GetIntegerEntry(entries, key, &value)))
        return std::clamp(value, MirrorTag::kCopy, MirrorTag::kKept);
    return ai::suites.dictionary->IsKnown(entries, key) ? MirrorTag::kCopy : MirrorTag::kSource;
}

ArtMarks marksOf(AIArtHandle art, const MarkKeys& keys) {
    const ai::Dictionary entries = dictionaryOf(art);
    if (!entries || ai::suites.dictionary->Size(entries.get()) == 0) return {}; // nearly all art
    const ai::int32 mirror = mirrorMarkIn(entries.get(), keys.mirror);
    if (mirror == MirrorTag::kCopy) return {.mirror = mirror, .entries = true};
    const bool guide = ai::suites.dictionary->IsKnown(entries.get(), keys.guide) != 0;
    return {.mirror = mirror, .guide = guide, .entries = true};
}

} // namespace facetta
