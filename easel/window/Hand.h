#pragma once

#include "easel/script/LiveScript.h"

#include <windows.h>

#include <functional>
#include <set>

namespace easel::window {

/// The user's hand in the window. Everything that it does goes through here as a line of a script;
/// what cannot be done, or is answered with an error, is shown to the user.
class Hand {
public:
    Hand(Session& session, const script::PlayerSettings& settings);

    /// False when it could not be done.
    bool act(const std::string& line) { return act(line, line); }
    /// The same, kept in other words.
    bool act(const std::string& line, const std::string& kept);
    /// Lets the host's clock run on and timers come, if nothing is under way.
    void passTime();
    /// Shows what is wrong; the same text once only.
    void complain(const std::string& what);

    [[nodiscard]] bool hasDocument() const { return session_.current != nullptr; }
    [[nodiscard]] Document& document() { return player.document(); }
    [[nodiscard]] Host& host() { return player.host(); }
    /// The view's place on the screen is this window's; it also owns what is shown to the user.
    HWND owner = nullptr;
    /// Called after each act, and when the plug-in has acted by itself.
    std::function<void()> settled;

    script::Player player;
    script::LiveScript script{player};

private:
    AIAnswer show(const Alert& alert);

    Session& session_;
    std::set<std::string> complaints_; ///< Shown already.
    ULONGLONG lastTick_ = 0;
};

/// A script's word for a place on the canvas: "X,Ypx".
[[nodiscard]] std::string pixelPlace(double x, double y);

} // namespace easel::window
