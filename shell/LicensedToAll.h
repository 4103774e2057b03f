#pragma once

#include "tool/Licensing.h"

namespace facetta {

/// The licence of a build that brings no licensing of its own: everything is allowed to everybody.
class LicensedToAll final : public Licensing {
public:
    [[nodiscard]] LicenceState state() const noexcept override { return LicenceState::Licensed; }
    [[nodiscard]] bool allows(GuardedAction) const noexcept override { return true; }
    [[nodiscard]] std::string statusLine() const override { return "Licensed to all"; }
    /// There is nothing to activate.
    [[nodiscard]] LicenceButtons buttons() const override { return {"Buy Now", ""}; }
    [[nodiscard]] std::string pageFragment() const override { return {}; }
    void openDialog() const override;
    void applicationStarted(SPPluginRef) const override {}
    void notified(const AINotifierMessage&) const override {}
    void timerWentOff(const AITimerMessage&, const std::function<void()>&) const override {}
};

} // namespace facetta
