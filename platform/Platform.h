#pragma once

/// What Facetta asks of the system itself, past the host: keys, time, its own file, the desktop.
/// win32.cpp serves Windows; headless.cpp serves builds without a keyboard, a screen or a desktop.

#include "host/Types.h"

#include <array>
#include <string>

namespace facetta::platform {

/// Virtual key codes of the keys and mouse buttons that Facetta reads. Digits are '0' to '9',
/// letters 'A' to 'Z'.
enum class Key : unsigned char {
    LeftButton = 0x01,
    RightButton = 0x02,
    MiddleButton = 0x04,
    Shift = 0x10,
    Control = 0x11,
    Alt = 0x12,
    Escape = 0x1B,
    Space = 0x20,
    Digit1 = '1',
    Digit9 = '9',
    A = 'A',
    U = 'U',
    LeftBracket = 219,
    RightBracket = 221,
};

/// Which keys are down; taken once a message, because asking the system is slow.
struct KeyState {
    std::array<bool, 256> down{};

    [[nodiscard]] bool isDown(Key key) const noexcept {
        return down.at(static_cast<unsigned char>(key));
    }
};

/// The keys as they are for the message being handled.
[[nodiscard]] KeyState readKeys();

/// Whether a button of the mouse is down, or a window of this thread has kept the mouse to itself
/// after one was pressed.
[[nodiscard]] bool mouseIsHeld();

/// Milliseconds of the system's tick counter.
[[nodiscard]] ai::uint64 ticks() noexcept;

/// Full name of the library that this code lives in; empty when the system cannot tell it or it is
/// `kLongestModuleName` characters or longer.
[[nodiscard]] std::u16string moduleFileName();

/// The longest file name that the host's older file records can hold, and one.
constexpr std::size_t kLongestModuleName = 300;

/// Opens a web address, or a file by its full name, with the program that the desktop has for it.
/// False when that cannot be done.
bool open(const std::u16string& what);

/// Shows `text` in a modal box above the window `owner`, which may be null.
void showMessage(void* owner, const std::u16string& text);

} // namespace facetta::platform
