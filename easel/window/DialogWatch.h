#pragma once

#include "easel/window/Hand.h"

namespace easel::window {

/// Sees what the user does in the panels and modal dialogs of plug-ins, which are windows of the
/// plug-in's own, and keeps it as lines of the script.
///
/// Each message of mouse or keyboard is seen when a loop takes it from the queue, before it has
/// done anything, also in the loops of modal dialogs. What a click or a key does to a button is
/// kept then. What is set (a number, an entry, a slider) is kept by its outcome, when the next
/// message comes: a value however it was reached.
class DialogWatch {
public:
    explicit DialogWatch(Hand& hand);
    ~DialogWatch();
    DialogWatch(const DialogWatch&) = delete;
    DialogWatch& operator=(const DialogWatch&) = delete;

private:
    /// An item of a panel or a dialog.
    struct Item {
        HWND dialog = nullptr;
        HWND window = nullptr;
        int id = 0;
        bool inPanel = false;
    };
    static LRESULT CALLBACK hook(int code, WPARAM first, LPARAM second);
    [[nodiscard]] Item itemOf(HWND window) const;
    void see(const MSG& message);
    void seeKey(const MSG& message);
    void followField();
    void leaveField(const char* then);
    void keepOutcome();
    void note(const Item& item, const std::string& deed);

    static DialogWatch* current;

    Hand& hand_;
    HHOOK hook_ = nullptr;
    Item field_;            ///< That has the keyboard.
    std::wstring before_;   ///< What the field held when it was last taken over.
    bool typed_ = false;    ///< Something is typed in it and not taken over.
    bool settling_ = false; ///< It is being taken over.
    Item pressed_;          ///< That the mouse was pressed on.
    std::wstring pressedText_;
    LRESULT pressedPosition_ = 0;
};

} // namespace easel::window
