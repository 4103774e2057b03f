#pragma once

/// The one seam between Facetta and whatever decides what its licence allows. It is asked by the
/// shell, the tool and the panel, each before the action it guards.

#include <initializer_list>

namespace facetta {

enum class LicenceState { Licensed, Expired };

enum class GuardedAction : unsigned {
    StartUp,
    Reload,
    ToolMouseDown,
    ToolMouseUp,
    ApplyToSelection,
    ApplyToLayer,
};

/// Everything is licensed unless it is said otherwise. A plain value.
class Licensing {
public:
    Licensing() noexcept = default;
    Licensing(LicenceState state, std::initializer_list<GuardedAction> refused) : state_(state) {
        for (const GuardedAction action : refused)
            refused_ |= bit(action);
    }

    [[nodiscard]] LicenceState state() const noexcept { return state_; }
    [[nodiscard]] bool allows(GuardedAction action) const noexcept {
        return (refused_ & bit(action)) == 0;
    }

private:
    static unsigned bit(GuardedAction action) noexcept {
        return 1U << static_cast<unsigned>(action);
    }

    LicenceState state_ = LicenceState::Licensed;
    unsigned refused_ = 0;
};

} // namespace facetta
