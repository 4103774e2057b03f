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

void unlockAll(AIArtHandle art) {
    ai::check(ai::suites.art->SetArtUserAttr(art, kArtLocked | kArtHidden, 0));
    for (const AIArtHandle member : artInside(art))
        if (attributesOf(member, kArtLocked) != 0)
            ai::check(ai::suites.art->SetArtUserAttr(member, kArtLocked, 0));
}

/// From the outside in, and back: in a locked group a host need not change anything.
Unlocked::Unlocked(const std::vector<AIArtHandle>& art, AIArtUserAttr state) : state_(state) {
    try {
        for (const AIArtHandle each : art) {
            if (attributesOf(each, state_) == 0) continue;
            ai::check(ai::suites.art->SetArtUserAttr(each, state_, 0));
            unlocked_.push_back(each);
        }
    } catch (...) {
        lockWhatCanBe();
        throw;
    }
}

Unlocked::~Unlocked() { lockWhatCanBe(); }

void Unlocked::lockAgain() {
    while (!unlocked_.empty()) {
        ai::check(ai::suites.art->SetArtUserAttr(unlocked_.back(), state_, state_));
        unlocked_.pop_back();
    }
}

void Unlocked::lockWhatCanBe() const noexcept {
    for (auto each = unlocked_.rbegin(); each != unlocked_.rend(); ++each)
        ai::suites.art->SetArtUserAttr(*each, state_, state_);
}

} // namespace facetta
