#include "toolkit/ImplWin/WindowClass.h"

#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplWin/HWNDBased.h"

#include <array>
#include <cwchar>

namespace NRDM {
namespace {

/// Only its address is of interest.
constexpr char kOwnAddress = 0;

} // namespace

HINSTANCE WindowClass::library() noexcept {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&kOwnAddress), &module);
    return module;
}

const WindowClass& WindowClass::ofLibrary() {
    static const WindowClass one;
    return one;
}

WindowClass::WindowClass() {
    std::array<wchar_t, 40> className{};
    std::swprintf(className.data(), className.size(), L"NRDMStdClass%p",
                  static_cast<const void*>(&kOwnAddress));
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = HWNDBased::procedure;
    description.hInstance = library();
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = className.data();
    class_ = RegisterClassExW(&description);
    if (class_ == 0) throw NRDMResourceException();
}

WindowClass::~WindowClass() { UnregisterClassW(name(), library()); }

} // namespace NRDM
