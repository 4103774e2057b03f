#pragma once

#include "easel/window/Hand.h"

namespace easel::window {

/// The tools in a row: the host's own, then those of plug-ins with their icons. A second click soon
/// after the first asks for a tool's options.
class ToolBar {
public:
    explicit ToolBar(Hand& hand) : hand_(hand) {}

    void open(HWND parent, int id, int firstCommand);
    /// Shows which tool is in hand, and other icons in another theme.
    void follow();
    /// True when `command` is that of a tool, which is then taken in hand.
    bool choose(int command);
    [[nodiscard]] HWND handle() const noexcept { return bar_; }
    [[nodiscard]] int height() const;
    /// The name that the user reads when the mouse rests on the tool.
    [[nodiscard]] std::wstring tipOf(int command) const;

private:
    struct Entry {
        std::string name;
        std::wstring title;
    };
    void fill();
    [[nodiscard]] int indexOf(int command) const;

    Hand& hand_;
    HWND bar_ = nullptr;
    int firstCommand_ = 0;
    std::vector<Entry> tools_;
    bool dark_ = false;
    int lastChosen_ = -1;
    LONG lastChosenAt_ = 0;
};

} // namespace easel::window
