#include "platform/Platform.h"

#include <windows.h>

#include <shellapi.h>

namespace facetta::platform {

KeyState readKeys() {
    // Key by key: the table of all keys may be out of date in a thread that waits for messages
    // elsewhere, as the host's does.
    constexpr Key kRead[] = {Key::Shift,  Key::Control,     Key::Alt,
                             Key::Escape, Key::Space,       Key::A,
                             Key::U,      Key::LeftBracket, Key::RightBracket};
    KeyState keys;
    const auto read = [&keys](unsigned char key) { keys.down.at(key) = GetKeyState(key) < 0; };
    for (const Key key : kRead)
        read(static_cast<unsigned char>(key));
    for (auto digit = static_cast<unsigned char>(Key::Digit1);
         digit <= static_cast<unsigned char>(Key::Digit9); ++digit)
        read(digit);
    return keys;
}

bool mouseIsHeld() {
    const auto isDown = [](Key button) { return GetKeyState(static_cast<int>(button)) < 0; };
    return isDown(Key::LeftButton) || isDown(Key::RightButton) || isDown(Key::MiddleButton) ||
           GetCapture() != nullptr;
}

ai::uint64 ticks() noexcept { return GetTickCount64(); }

std::u16string moduleFileName() {
    HMODULE module = nullptr;
    constexpr DWORD kOfThisCode =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    const auto* here = reinterpret_cast<const wchar_t*>(&moduleFileName);
    if (GetModuleHandleExW(kOfThisCode, here, &module) == 0) return {};
    std::array<wchar_t, kLongestModuleName> name{};
    const DWORD length = GetModuleFileNameW(module, name.data(), kLongestModuleName);
    if (length == 0 || length >= kLongestModuleName) return {};
    return {name.begin(), name.begin() + length};
}

bool open(const std::u16string& what) {
    const std::wstring wide(what.begin(), what.end());
    const auto result =
        ShellExecuteW(nullptr, L"open", wide.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    constexpr INT_PTR kLastFailure = 32;
    return reinterpret_cast<INT_PTR>(result) > kLastFailure;
}

void showMessage(void* owner, const std::u16string& text) {
    const std::wstring wide(text.begin(), text.end());
    MessageBoxW(static_cast<HWND>(owner), wide.c_str(), L"Facetta", MB_OK | MB_ICONWARNING);
}

} // namespace facetta::platform
