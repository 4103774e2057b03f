#pragma once

#include "tool/Licensing.h"

#include <algorithm>
#include <string>
#include <vector>

namespace facetta::tests {

/// Refuses what it is told to, which may change while the plug-in runs, and counts what it hears.
class TestLicence final : public Licensing {
public:
    TestLicence() = default;
    TestLicence(LicenceState state, std::vector<GuardedAction> refused)
        : state_(state), refused_(std::move(refused)) {}

    void refuse(std::vector<GuardedAction> actions) { refused_ = std::move(actions); }

    [[nodiscard]] LicenceState state() const noexcept override { return state_; }
    [[nodiscard]] bool allows(GuardedAction action) const noexcept override {
        return std::ranges::find(refused_, action) == refused_.end();
    }
    [[nodiscard]] std::string statusLine() const override { return status; }
    [[nodiscard]] LicenceButtons buttons() const override { return buttonTexts; }
    [[nodiscard]] std::string pageFragment() const override { return fragment; }
    void openDialog() const override { ++dialogs; }
    void applicationStarted(SPPluginRef) const override { ++starts; }
    void notified(const AINotifierMessage& message) const override {
        heard.emplace_back(message.type != nullptr ? message.type : "");
    }
    void timerWentOff(const AITimerMessage&, const std::function<void()>& changed) const override {
        ++timers;
        if (changesOnTimer) changed();
    }

    std::string status = "On loan until Friday";
    LicenceButtons buttonTexts{"Buy Now", ""};
    std::string fragment;
    bool changesOnTimer = false;

    mutable int dialogs = 0;
    mutable int starts = 0;
    mutable int timers = 0;
    mutable std::vector<std::string> heard; ///< types of notifications

private:
    LicenceState state_ = LicenceState::Licensed;
    std::vector<GuardedAction> refused_;
};

} // namespace facetta::tests
