#include "symmetry/Unlocked.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtTree.h"

#include <algorithm>

namespace facetta {

bool holdsLocked(AIArtHandle art) {
    return std::ranges::any_of(
        artInside(art), [](AIArtHandle member) { return attributesOf(member, kArtLocked) != 0; });
}

void unlockAll(AIArtHandle art, ai::int16 type) {
    ai::check(ai::suites.art->SetArtUserAttr(art, kArtLocked | kArtHidden, 0));
    if (type == kPathArt) return;
    for (const AIArtHandle member : artInside(art))
        if (attributesOf(member, kArtLocked) != 0)
            ai::check(ai::suites.art->SetArtUserAttr(member, kArtLocked, 0));
}

/// From the outside in, and back: in a locked or hidden group a host need not change anything.
Unlocked::Unlocked(const std::vector<AIArtHandle>& art) {
    try {
        for (const AIArtHandle each : art) {
            const ai::int32 state = attributesOf(each, kArtLocked | kArtHidden);
            if (state == 0) continue;
            ai::check(ai::suites.art->SetArtUserAttr(each, state, 0));
            former_.push_back({each, state});
        }
    } catch (...) {
        lockWhatCanBe();
        throw;
    }
}

Unlocked::~Unlocked() { lockWhatCanBe(); }

void Unlocked::lockAgain() {
    while (!former_.empty()) {
        const auto& [art, state] = former_.back();
        ai::check(ai::suites.art->SetArtUserAttr(art, state, state));
        former_.pop_back();
    }
}

void Unlocked::lockWhatCanBe() const noexcept {
    for (auto each = former_.rbegin(); each != former_.rend(); ++each)
        ai::suites.art->SetArtUserAttr(each->art, each->state, each->state);
}

} // namespace facetta
