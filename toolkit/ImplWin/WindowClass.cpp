#include "toolkit/ImplWin/WindowClass.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <cwchar>
#include <iterator>

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

WindowClass::WindowClass(WNDPROC procedure) {
    wchar_t name[40];
    std::swprintf(name, std::size(name), L"NRDMStdClass%p", static_cast<const void*>(&kOwnAddress));
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = procedure;
    description.hInstance = library();
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    atom_ = RegisterClassExW(&description);
    if (atom_ == 0) throw NRDMResourceException();
}

WindowClass::~WindowClass() { UnregisterClassW(name(), library()); }

} // namespace NRDM
