#pragma once

#include "host/Art.h"
#include "host/Handles.h"

#include <vector>

namespace facetta {

/// Whether anything inside `art` is locked. Throws `ai::Error`.
[[nodiscard]] bool holdsLocked(AIArtHandle art);

/// Shows `art` and unlocks it with all inside it, to dispose of it. Throws `ai::Error`.
void unlockAll(AIArtHandle art);

/// While it lives, those of some objects that were locked, or hidden, are not: a host need not
/// change what is, nor what contains something locked. None may be disposed of meanwhile. The
/// constructor throws `ai::Error`.
class Unlocked {
public:
    explicit Unlocked(const std::vector<AIArtHandle>& art, AIArtUserAttr state = kArtLocked);
    /// Locks what `lockAgain` has not, as far as the host does it.
    ~Unlocked();
    Unlocked(const Unlocked&) = delete;
    Unlocked& operator=(const Unlocked&) = delete;

    /// Throws `ai::Error`, which a destructor cannot.
    void lockAgain();

private:
    void lockWhatCanBe() const noexcept;

    AIArtUserAttr state_;
    std::vector<AIArtHandle> unlocked_;
};

/// Runs `work` while those of `art` that are locked are not. Throws `ai::Error` and what `work`
/// throws.
template <typename Work> void whileUnlocked(const std::vector<AIArtHandle>& art, Work work) {
    Unlocked unlocked{art};
    work();
    unlocked.lockAgain();
}

} // namespace facetta
