#pragma once

#include "host/Handles.h"

#include <vector>

namespace facetta {

/// Whether anything inside `art` is locked. Throws `ai::Error`.
[[nodiscard]] bool holdsLocked(AIArtHandle art);

/// Shows `art` and unlocks it with all inside it, to dispose of it. Throws `ai::Error`.
void unlockAll(AIArtHandle art);

/// While it lives, those of some objects that were locked are not: a host need not change what is
/// locked, nor what contains something locked. None may be disposed of meanwhile. The constructor
/// throws `ai::Error`.
class Unlocked {
public:
    explicit Unlocked(const std::vector<AIArtHandle>& art);
    ~Unlocked();
    Unlocked(const Unlocked&) = delete;
    Unlocked& operator=(const Unlocked&) = delete;

private:
    void lockAgain() const noexcept;

    std::vector<AIArtHandle> unlocked_;
};

} // namespace facetta
