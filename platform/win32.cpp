#include "platform/Platform.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

namespace facetta::platform {

KeyState readKeys() {
    // One call for all keys: the same state that GetKeyState tells key by key, as of the message
    // being handled, for the price of one.
    std::array<BYTE, 256> bytes{};
    KeyState keys;
    if (GetKeyboardState(bytes.data()) == 0) return keys;
    constexpr BYTE kDown = 0x80;
    std::transform(bytes.begin(), bytes.end(), keys.down.begin(),
                   [](BYTE byte) { return (byte & kDown) != 0; });
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
