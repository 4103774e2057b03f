#include "symmetry/Unlocked.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtTree.h"

namespace facetta {

/// From the outside in, and back: in a locked group a host need not change anything.
Unlocked::Unlocked(const std::vector<AIArtHandle>& art) {
    try {
        for (const AIArtHandle each : art) {
            if (attributesOf(each, kArtLocked) == 0) continue;
            ai::check(ai::suites.art->SetArtUserAttr(each, kArtLocked, 0));
            unlocked_.push_back(each);
        }
    } catch (...) {
        lockAgain();
        throw;
    }
}

Unlocked::~Unlocked() { lockAgain(); }

void Unlocked::lockAgain() const noexcept {
    for (auto each = unlocked_.rbegin(); each != unlocked_.rend(); ++each)
        ai::suites.art->SetArtUserAttr(*each, kArtLocked, kArtLocked);
}

} // namespace facetta
