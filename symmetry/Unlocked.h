#pragma once

#include "host/Art.h"
#include "host/Handles.h"

#include <vector>

namespace facetta {

/// Whether anything inside `art` is locked. Throws `ai::Error`.
[[nodiscard]] bool holdsLocked(AIArtHandle art);

/// Shows `art`, which is of `type`, and unlocks it with all inside it, to dispose of it. Throws
/// `ai::Error`.
void unlockAll(AIArtHandle art, ai::int16 type);

/// While it lives, those of some objects that were locked or hidden are neither: a host need not
/// change what is, nor what contains something locked, nor what lies in it. The objects are given
/// containers first. None may be disposed of meanwhile. The constructor throws `ai::Error`.
class Unlocked {
public:
    explicit Unlocked(const std::vector<AIArtHandle>& art);
    /// Locks and hides what `lockAgain` has not, as far as the host does it.
    ~Unlocked();
    Unlocked(const Unlocked&) = delete;
    Unlocked& operator=(const Unlocked&) = delete;

    /// Brings the former states back. Throws `ai::Error`, which a destructor cannot.
    void lockAgain();

private:
    struct Former {
        AIArtHandle art;
        ai::int32 state;
    };

    void lockWhatCanBe() const noexcept;

    std::vector<Former> former_;
};

/// Runs `work` while none of `art` is locked or hidden. Throws `ai::Error` and what `work` throws.
template <typename Work> void whileUnlocked(const std::vector<AIArtHandle>& art, Work work) {
    Unlocked unlocked{art};
    work();
    unlocked.lockAgain();
}

} // namespace facetta
