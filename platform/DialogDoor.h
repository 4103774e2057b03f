#pragma once

/// A dialog or panel as a user has it in front of them: what can be seen of it, and what hands can
/// do to it.
///
/// Where there is no screen the toolkit shows its dialogs to the program that runs the plug-in.
/// Neither includes a header of the other's, and the library exports PluginMain alone; so the
/// program exports a function, which the toolkit looks up by name, and this header is all they
/// share. On Windows no door is needed: a program finds the windows themselves.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace facetta::door {

struct SeenItem {
    int id = 0;
    bool isField = false; ///< `text` can be typed in
    std::string text;     ///< a caption without its marks, or what a field holds
    std::string tip;
    bool enabled = true;
    bool shown = true; ///< and not cut off: its middle lies within the dialog
    bool focused = false;
    bool on = false;                ///< of boxes and radio buttons
    std::optional<double> position; ///< of a slider
};

/// Virtual key codes of the keys that mean something in dialogs; letters and digits are as they
/// are everywhere.
enum class Key : unsigned {
    Tab = 0x09,
    Enter = 0x0D,
    Escape = 0x1B,
    Space = 0x20,
    PageUp = 0x21,
    PageDown = 0x22,
    End = 0x23,
    Home = 0x24,
    Left = 0x25,
    Up = 0x26,
    Right = 0x27,
    Down = 0x28,
};

struct Modifiers {
    bool shift = false;
    bool alt = false;
};

/// All that acts does as mouse and keyboard would; it may close the dialog. What is answered false
/// could not be done: the item is no such thing.
class Dialog {
public:
    virtual ~Dialog() = default;

    [[nodiscard]] virtual bool isModal() const = 0;
    [[nodiscard]] virtual std::string title() const = 0;
    /// In the order in which they were made.
    [[nodiscard]] virtual std::vector<SeenItem> items() const = 0;

    /// Presses and lets go of the mouse button on the item's middle.
    virtual void click(int id) = 0;
    /// Selects all of the field that has the keyboard, and types over it; nothing is taken over
    /// yet.
    virtual bool type(std::string_view text) = 0;
    /// False when the keyboard is elsewhere.
    virtual bool press(Key key, Modifiers modifiers) = 0;
    /// Clicks on the arrow beside a field.
    virtual bool spin(int id, bool up, bool large) = 0;
    /// Drags a slider's thumb to the pixel nearest to `value`, in that many moves.
    virtual bool slide(int id, double value, int moves) = 0;
    /// Opens the list that belongs to the item, and clicks on the entry of that text.
    virtual bool choose(int id, std::string_view entry) = 0;
    virtual void clickCloseBox() = 0;
    /// The user clicks somewhere else: the keyboard goes there.
    virtual void leave() = 0;
};

/// What the toolkit asks of the program.
class Program {
public:
    virtual void opened(Dialog& dialog) = 0;
    /// It is gone with this call.
    virtual void closed(Dialog& dialog) noexcept = 0;
    /// Does what the user does next, while a modal dialog waits for it. False when nothing is left
    /// to do: the dialog is closed then.
    virtual bool nextEvent() noexcept = 0;

protected:
    ~Program() = default;
};

/// The name and type of what the program exports, with C linkage.
inline constexpr char kProgramFunction[] = "headlessProgram";
using ProgramFunction = Program*();

} // namespace facetta::door
